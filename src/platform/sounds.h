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

    /// Makes the MIDI file the piece that PlayMusic plays. The one that was open is closed.
    virtual void OpenMusic(const std::string& path) = 0;
    /// Plays the open piece in the background, from its beginning to its end.
    virtual void PlayMusic() = 0;
    /// Closes the open piece, which ends if it still plays.
    virtual void CloseMusic() = 0;
};

}  // namespace trameli
