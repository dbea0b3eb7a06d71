// The sounds of the game.
#pragma once

#include <string>

#include "platform/sounds.h"
#include "shell/stato.h"

namespace trameli {

/// What the player hears. Each routine asks the settings itself, so that its callers need not.
class Suoni {
public:
    /// Both must outlive it.
    Suoni(const Stato& stato, Sounds& sounds) : stato_(stato), sounds_(sounds) {}

    /// The player ran into a wall.
    void SuonoMuro();
    /// The player reached the finish.
    void SuonoArrivo();
    /// One step of the symbol.
    void SuonoPasso();
    /// Plays the MIDI file `percorso` from its beginning, in place of a piece that still plays.
    void SuonaMidi(const std::string& percorso);
    /// Ends the piece, with sounds switched off too: they may have been on when it began.
    void FermaMidi();

private:
    const Stato& stato_;
    Sounds& sounds_;
};

}  // namespace trameli
