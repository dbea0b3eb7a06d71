// Whatever a sound file holds, reading and playing it ends, and takes no more memory than its
// length allows.
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <thread>

#include "platform/qt/mixer_library.h"
#include "platform/qt/mixer_options.h"
#include "platform/qt/sound_files.h"

namespace {

constexpr int Frequenza = 44100;
constexpr int Campioni = 1024;
/// A byte of the slowest and narrowest wave, as samples of the mixer's.
constexpr std::size_t Crescita = 24;
/// Making the instruments ready takes longer than a thousand waves, so one piece of so many is
/// played, and only until the device has asked for some of it.
constexpr std::size_t Brani = 1024;
constexpr int Millisecondi = 60;

class Suonatore {
public:
    Suonatore() {
        setenv("SDL_AUDIODRIVER", "dummy", 1);
        if (!sdl_.Load() || sdl_.SDL_InitSubSystem(SDL_INIT_AUDIO) != 0 ||
            sdl_.Mix_OpenAudioDevice(Frequenza, AUDIO_S16SYS, 2, Campioni, nullptr, 0) != 0) {
            std::abort();
        }
        for (const auto& strumenti : trameli::MixerOptions().SoundFonts) {
            if (std::filesystem::exists(strumenti)) {
                sdl_.Mix_SetSoundFonts(strumenti.c_str());
            }
        }
    }

    void Onda(std::string_view byte) {
        if (Mix_Chunk* const onda = sdl_.Mix_LoadWAV_RW(Flusso(byte), 1)) {
            if (onda->alen > Crescita * (byte.size() + Campioni)) {
                std::abort();
            }
            sdl_.Mix_FreeChunk(onda);
        }
    }
    void Musica(std::string_view byte) {
        if (Mix_Music* const musica = sdl_.Mix_LoadMUSType_RW(Flusso(byte), MUS_MID, 1)) {
            sdl_.Mix_PlayMusic(musica, 1);
            for (int i = 0; i < Millisecondi && sdl_.Mix_PlayingMusic() != 0; ++i) {
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            }
            sdl_.Mix_HaltMusic();
            sdl_.Mix_FreeMusic(musica);
        }
    }

private:
    SDL_RWops* Flusso(std::string_view byte) const {
        return sdl_.SDL_RWFromConstMem(byte.data(), static_cast<int>(byte.size()));
    }

    trameli::MixerLibrary sdl_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti) {
    static auto& suonatore = *new Suonatore;  // the library's threads go on to the end
    const std::string_view file(reinterpret_cast<const char*>(byte), quanti);
    if (trameli::IsPlainWave(file)) {
        std::string onda(file);
        trameli::CorrectLength(onda);
        suonatore.Onda(onda);
    } else if (trameli::IsMidi(file) && std::hash<std::string_view>()(file) % Brani == 0) {
        suonatore.Musica(file);
    }
    return 0;
}
