#include "platform/qt/mixer.h"

#include <optional>
#include <utility>

#include "platform/qt/sound_files.h"

namespace trameli {

namespace {

using Now = std::chrono::steady_clock;

/// Half a minute of stereo, and music for hours: what is longer is no sound of a game.
constexpr std::size_t LongestWave = 4 << 20;
constexpr std::size_t LongestMusic = 1 << 20;

constexpr int Rate = 44100;
constexpr int Stereo = 2;
constexpr int FramesPerBuffer = 1024;  // a step is heard within some 25 ms
constexpr int OnlyChannel = 0;

/// The number that the library gives to the first device a process opens.
constexpr SDL_AudioDeviceID OnlyDevice = 2;

/// The bytes of a file that is not longer than `longest`.
std::optional<std::string> Read(const LocalFileSystem& files, const std::string& path,
                                std::size_t longest) {
    auto bytes = files.Read(path, longest + 1);
    if (bytes && bytes->size() > longest) {
        bytes.reset();
    }
    return bytes;
}

}  // namespace

void Mixer::FreeChunk::operator()(Mix_Chunk* chunk) const {
    Sdl->Mix_FreeChunk(chunk);
}

void Mixer::FreeMusic::operator()(Mix_Music* music) const {
    Sdl->Mix_FreeMusic(music);
}

Mixer::Mixer(LocalFileSystem files, MixerOptions options)
    : files_(std::move(files)), options_(std::move(options)) {}

Mixer::~Mixer() {
    Close();
    waves_.clear();
    if (sdl_.SDL_TLSCleanup) {
        sdl_.SDL_TLSCleanup();  // last of all; the library does it only for its own threads
    }
}

bool Mixer::Open() {
    CloseIfLost();
    lastSound_ = Now::now();
    if (open_) {
        return true;
    }
    if (lastSound_ < retryAt_) {
        return false;
    }
    open_ = sdl_.Load() && OpenDevice();
    retryAt_ = Now::now() + options_.Retry;
    return open_;
}

bool Mixer::OpenDevice() const {
    // Ctrl-C ends the program as if there were no sounds.
    sdl_.SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    sdl_.SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Trameli");
    if (sdl_.SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) {
        return false;
    }
    if (sdl_.Mix_OpenAudioDevice(Rate, AUDIO_S16SYS, Stereo, FramesPerBuffer, nullptr, 0) != 0) {
        sdl_.SDL_QuitSubSystem(SDL_INIT_AUDIO);
        return false;
    }
    sdl_.Mix_AllocateChannels(OnlyChannel + 1);
    return true;
}

SDL_RWops* Mixer::Stream(const std::string& bytes) const {
    return sdl_.SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size()));
}

void Mixer::Close() {
    if (!open_) {
        return;
    }
    StopMusic();
    sdl_.Mix_HaltChannel(OnlyChannel);
    // The waves stay for the next time; they were decoded for a format that is always asked for.
    sdl_.Mix_CloseAudio();
    sdl_.SDL_QuitSubSystem(SDL_INIT_AUDIO);
    open_ = false;
}

/// One that went after it had played for a while was unplugged, and another may be there at once.
/// One that goes again and again is tried no more often than one that does not open.
bool Mixer::CloseIfLost() {
    if (!open_ || sdl_.SDL_GetAudioDeviceStatus(OnlyDevice) != SDL_AUDIO_STOPPED) {
        return false;
    }
    Close();
    return true;
}

void Mixer::Rest() {
    if (!open_) {
        return;
    }
    if (CloseIfLost()) {
        return;
    }
    const auto now = Now::now();
    if (sdl_.Mix_Playing(OnlyChannel) != 0 || sdl_.Mix_PlayingMusic() != 0) {
        lastSound_ = now;
    } else if (now - lastSound_ >= options_.Silence) {
        Close();
        retryAt_ = {};  // nothing was wrong with it
    }
}

Mix_Chunk* Mixer::Wave(const std::string& path) {
    const auto known = waves_.find(path);
    if (known != waves_.end()) {
        return known->second.get();
    }
    auto& wave = waves_.try_emplace(path, nullptr, FreeChunk{&sdl_}).first->second;
    auto bytes = Read(files_, path, LongestWave);
    if (bytes && IsPlainWave(*bytes)) {
        CorrectLength(*bytes);
        wave.reset(sdl_.Mix_LoadWAV_RW(Stream(*bytes), 1));
    }
    return wave.get();
}

void Mixer::PlayWave(const std::string& path, Now::time_point deadline) {
    if (!Open() || Now::now() > deadline) {
        return;
    }
    if (Mix_Chunk* wave = Wave(path)) {
        sdl_.Mix_PlayChannelTimed(OnlyChannel, wave, 0, -1);
    }
}

std::filesystem::path Mixer::SoundFont() const {
    for (const auto& font : options_.SoundFonts) {
        std::error_code error;
        if (std::filesystem::is_regular_file(font, error)) {
            return font;
        }
    }
    return {};
}

void Mixer::PlayMusic(const std::string& path) {
    StopMusic();
    auto bytes = Read(files_, path, LongestMusic);
    const auto font = SoundFont();
    if (!bytes || !IsMidi(*bytes) || font.empty() || !Open()) {
        return;
    }
    musicBytes_ = std::move(*bytes);
    sdl_.Mix_SetSoundFonts(font.c_str());
    music_.reset(sdl_.Mix_LoadMUSType_RW(Stream(musicBytes_), MUS_MID, 1));
    if (music_) {
        sdl_.Mix_PlayMusic(music_.get(), 1);
    }
}

void Mixer::StopMusic() {
    if (music_) {
        sdl_.Mix_HaltMusic();
        music_.reset();
    }
}

}  // namespace trameli
