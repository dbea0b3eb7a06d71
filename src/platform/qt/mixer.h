// The sound device, and what plays on it.
#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "platform/qt/local_file_system.h"
#include "platform/qt/mixer_library.h"
#include "platform/qt/mixer_options.h"

namespace trameli {

/// Plays a wave and a piece of music at a time. Every call may take as long as the sound system
/// pleases, so they are made on one thread of their own. The device is opened when something is to
/// be heard and given back after some silence: an open one costs processor time for nothing.
class Mixer {
public:
    /// Neither library nor device is touched yet.
    Mixer(LocalFileSystem files, MixerOptions options);
    ~Mixer();
    Mixer(const Mixer&) = delete;
    Mixer& operator=(const Mixer&) = delete;

    /// Plays a wave unless it is later than `deadline` by the time the device is open.
    void PlayWave(const std::string& path, std::chrono::steady_clock::time_point deadline);
    /// Plays from the beginning; there is one piece at most.
    void PlayMusic(const std::string& path);
    void StopMusic();

    /// True while the device is open. Then Rest wants to be called now and then.
    bool IsOpen() const { return open_; }
    /// Gives the device back if it was silent for long enough, or if it has gone.
    void Rest();

private:
    struct FreeChunk {
        const MixerLibrary* Sdl;
        void operator()(Mix_Chunk* chunk) const;
    };
    struct FreeMusic {
        const MixerLibrary* Sdl;
        void operator()(Mix_Music* music) const;
    };

    bool Open();
    bool OpenDevice() const;
    void Close();
    bool CloseIfLost();
    std::filesystem::path SoundFont() const;
    Mix_Chunk* Wave(const std::string& path);
    SDL_RWops* Stream(const std::string& bytes) const;

    MixerLibrary sdl_;
    LocalFileSystem files_;
    MixerOptions options_;
    bool open_ = false;
    std::chrono::steady_clock::time_point retryAt_{};  ///< no device is opened before
    std::chrono::steady_clock::time_point lastSound_{};
    /// Decoded once; what could not be is kept as nothing, so that it is not tried at every step.
    std::map<std::string, std::unique_ptr<Mix_Chunk, FreeChunk>> waves_;
    std::string musicBytes_;  ///< outlives the piece that is made of them
    std::unique_ptr<Mix_Music, FreeMusic> music_{nullptr, FreeMusic{&sdl_}};
};

}  // namespace trameli
