// A maze in words, for those who hear it.
#pragma once

#include <string>

#include "play/giocatore.h"
#include "shell/lingue.h"

namespace trameli {

/// A direction, in the current language.
std::string NomeDirezione(Lato lato, Lingue& lingue);

/// Where the player stands, by row and column, and which ways are open from there. From the last
/// cell one of them is the way out, and is told as such.
std::string DovEIlGiocatore(const Giocatore& giocatore, const Tramelo& tramelo, Lingue& lingue);

/// The same, and in which cell the finish lies.
std::string DescriviTramelo(const Giocatore& giocatore, const Tramelo& tramelo, Lingue& lingue);

/// A wall is in the way.
std::string DescriviUrto(Lato lato, Lingue& lingue);

/// The player is out of the maze.
std::string DescriviArrivo(Lingue& lingue);

}  // namespace trameli
