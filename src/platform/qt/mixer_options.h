// What can be chosen about the sound device.
#pragma once

#include <chrono>
#include <filesystem>
#include <vector>

namespace trameli {

/// The values given here are those of the game.
struct MixerOptions {
    using Time = std::chrono::steady_clock::duration;

    Time Silence = std::chrono::seconds(5);  ///< until the device is given back
    Time Retry = std::chrono::seconds(10);   ///< until a device that failed is tried again
    /// Where General MIDI instruments may lie; the first that exist are taken. Small sets come
    /// first: all of a set is read before the first note.
    std::vector<std::filesystem::path> SoundFonts = {
        "/usr/share/sounds/sf2/TimGM6mb.sf2",   "/usr/share/soundfonts/TimGM6mb.sf2",
        "/usr/share/sounds/sf3/default-GM.sf3", "/usr/share/sounds/sf2/default-GM.sf2",
        "/usr/share/soundfonts/default.sf2",    "/usr/share/soundfonts/FluidR3_GM.sf2",
    };
};

}  // namespace trameli
