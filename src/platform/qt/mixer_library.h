// The functions of the sound library.
#pragma once

#include <SDL.h>
#include <SDL_mixer.h>

namespace trameli {

/// SDL and its mixer, under their own names. They are not linked but looked up at the first sound:
/// with all that they bring along they would add a third to the time in which the program starts.
/// Without them the game is silent.
struct MixerLibrary {
    /// True if all functions are there, now or from an earlier call. Libraries stay for good, since
    /// a thread of theirs may outlive everything that is ours.
    bool Load();

    decltype(&::SDL_SetHint) SDL_SetHint = nullptr;
    decltype(&::SDL_InitSubSystem) SDL_InitSubSystem = nullptr;
    decltype(&::SDL_QuitSubSystem) SDL_QuitSubSystem = nullptr;
    decltype(&::SDL_GetAudioDeviceStatus) SDL_GetAudioDeviceStatus = nullptr;
    decltype(&::SDL_RWFromConstMem) SDL_RWFromConstMem = nullptr;
    decltype(&::SDL_TLSCleanup) SDL_TLSCleanup = nullptr;

    decltype(&::Mix_OpenAudioDevice) Mix_OpenAudioDevice = nullptr;
    decltype(&::Mix_CloseAudio) Mix_CloseAudio = nullptr;
    decltype(&::Mix_AllocateChannels) Mix_AllocateChannels = nullptr;
    decltype(&::Mix_LoadWAV_RW) Mix_LoadWAV_RW = nullptr;
    decltype(&::Mix_FreeChunk) Mix_FreeChunk = nullptr;
    decltype(&::Mix_PlayChannelTimed) Mix_PlayChannelTimed = nullptr;
    decltype(&::Mix_HaltChannel) Mix_HaltChannel = nullptr;
    decltype(&::Mix_Playing) Mix_Playing = nullptr;
    decltype(&::Mix_SetSoundFonts) Mix_SetSoundFonts = nullptr;
    decltype(&::Mix_LoadMUSType_RW) Mix_LoadMUSType_RW = nullptr;
    decltype(&::Mix_FreeMusic) Mix_FreeMusic = nullptr;
    decltype(&::Mix_PlayMusic) Mix_PlayMusic = nullptr;
    decltype(&::Mix_HaltMusic) Mix_HaltMusic = nullptr;
    decltype(&::Mix_PlayingMusic) Mix_PlayingMusic = nullptr;

private:
    bool loaded_ = false;
};

}  // namespace trameli
