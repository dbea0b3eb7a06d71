// What the player hears.
#pragma once

#include <string>

namespace trameli {

/// The service for sounds. Paths are the program's own, as those of FileSystem. All calls return at
/// once, whatever happens to the sound, and nothing is ever reported: what cannot be played is
/// silent. In a test it notes what was asked.
class Sounds {
public:
    virtual ~Sounds() = default;

    /// Plays a wave file in the background; it cuts off the one that still plays.
    virtual void PlayWave(const std::string& path) = 0;

    /// Plays a MIDI file in the background, from its beginning to its end, in place of the piece
    /// that still plays.
    virtual void PlayMusic(const std::string& path) = 0;
    /// Ends the piece.
    virtual void StopMusic() = 0;
};

}  // namespace trameli
