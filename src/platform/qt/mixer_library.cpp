#include "platform/qt/mixer_library.h"

#include "platform/qt/shared_library.h"

namespace trameli {

namespace {

extern "C" {
static void DropAlsaError(const char*, int, const char*, int, const char*, ...) {}
static void DropFluidSynthMessage(int, const char*, void*) {}
}

/// Looks a function up in a library that others have loaded.
template <typename Function>
void FindLoaded(const char* library, const char* name, Function& function) {
    void* handle = dlopen(library, RTLD_NOW | RTLD_NOLOAD);
    function = handle ? reinterpret_cast<Function>(dlsym(handle, name)) : nullptr;
}

/// A machine without a sound card is nothing to be told about, and ALSA tells it in sixteen lines
/// on the terminal at each try. FluidSynth is as frank about broken files.
void SilenceLibraries() {
    int (*setAlsaHandler)(decltype(&DropAlsaError)) = nullptr;
    FindLoaded("libasound.so.2", "snd_lib_error_set_handler", setAlsaHandler);
    if (setAlsaHandler) {
        setAlsaHandler(DropAlsaError);
    }
    using FluidSynthHandler = decltype(&DropFluidSynthMessage);
    FluidSynthHandler (*setFluidSynthHandler)(int, FluidSynthHandler, void*) = nullptr;
    FindLoaded("libfluidsynth.so.3", "fluid_set_log_function", setFluidSynthHandler);
    for (int level = 0; setFluidSynthHandler && level < 5; ++level) {
        setFluidSynthHandler(level, DropFluidSynthMessage, nullptr);
    }
}

}  // namespace

bool MixerLibrary::Load() {
    if (loaded_) {
        return true;
    }
    SharedLibrary sdl("libSDL2-2.0.so.0");
    sdl.Find("SDL_SetHint", SDL_SetHint);
    sdl.Find("SDL_InitSubSystem", SDL_InitSubSystem);
    sdl.Find("SDL_QuitSubSystem", SDL_QuitSubSystem);
    sdl.Find("SDL_GetAudioDeviceStatus", SDL_GetAudioDeviceStatus);
    sdl.Find("SDL_RWFromConstMem", SDL_RWFromConstMem);
    sdl.Find("SDL_TLSCleanup", SDL_TLSCleanup);
    SharedLibrary mixer("libSDL2_mixer-2.0.so.0");
    mixer.Find("Mix_OpenAudioDevice", Mix_OpenAudioDevice);
    mixer.Find("Mix_CloseAudio", Mix_CloseAudio);
    mixer.Find("Mix_AllocateChannels", Mix_AllocateChannels);
    mixer.Find("Mix_LoadWAV_RW", Mix_LoadWAV_RW);
    mixer.Find("Mix_FreeChunk", Mix_FreeChunk);
    mixer.Find("Mix_PlayChannelTimed", Mix_PlayChannelTimed);
    mixer.Find("Mix_HaltChannel", Mix_HaltChannel);
    mixer.Find("Mix_Playing", Mix_Playing);
    mixer.Find("Mix_SetSoundFonts", Mix_SetSoundFonts);
    mixer.Find("Mix_LoadMUSType_RW", Mix_LoadMUSType_RW);
    mixer.Find("Mix_FreeMusic", Mix_FreeMusic);
    mixer.Find("Mix_PlayMusic", Mix_PlayMusic);
    mixer.Find("Mix_HaltMusic", Mix_HaltMusic);
    mixer.Find("Mix_PlayingMusic", Mix_PlayingMusic);
    SilenceLibraries();
    loaded_ = sdl.IsComplete() && mixer.IsComplete();
    return loaded_;
}

}  // namespace trameli
