// The sound device, and what plays on it.
#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <string>

#include "platform/qt/local_file_system.h"
#include "platform/qt/mixer_library.h"

namespace trameli {

/// Plays a wave and a piece of music at a time. Every call may take as long as the sound system
/// pleases, so they are made on one thread of their own. The device is opened when something is to
/// be heard and given back after some silence: an open one costs processor time for nothing.
class Mixer {
public:
    using Time = std::chrono::steady_clock::duration;

    /// How long to wait for what.
    struct Patience {
        Time Silence = std::chrono::seconds(5);  ///< until the device is given back
        Time Retry = std::chrono::seconds(10);   ///< until a device that failed is tried again
    };

    Mixer(LocalFileSystem files, Patience patience);
    ~Mixer();
    Mixer(const Mixer&) = delete;
    Mixer& operator=(const Mixer&) = delete;

    void PlayWave(const std::string& path);
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
    bool OpenDevice();
    void Close();
    bool HasLostDevice() const;
    Mix_Chunk* Wave(const std::string& path);
    SDL_RWops* Stream(const std::string& bytes) const;

    MixerLibrary sdl_;
    LocalFileSystem files_;
    Patience patience_;
    bool open_ = false;
    std::chrono::steady_clock::time_point retryAt_{};
    std::chrono::steady_clock::time_point lastSound_{};
    /// Decoded once; what could not be is kept as nothing, so that it is not tried at every step.
    std::map<std::string, std::unique_ptr<Mix_Chunk, FreeChunk>> waves_;
    std::string musicBytes_;  ///< outlives the piece that is made of them
    std::unique_ptr<Mix_Music, FreeMusic> music_{nullptr, FreeMusic{&sdl_}};
};

}  // namespace trameli
