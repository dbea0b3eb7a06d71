// What each level's maze is made of. A level is 0 to 15 throughout; any other number makes these
// functions throw std::out_of_range.
#pragma once

#include <cstdint>
#include <functional>

#include "engine/tramelo.h"

namespace trameli {

/// How the walls of a level come about.
enum class Ricetta {
    ScatolaVuota,       ///< outside walls only, nothing carved
    ScavataEAllargata,  ///< carved, then a number of further walls knocked down
    Scavata             ///< carved: a perfect maze
};

/// The recipe of a level.
Ricetta RicettaDi(int livello);

/// How many more walls to knock down at levels 1 to 4, 6 and 7, from the figure that
/// Tramelo::ContaMuriRimasti leaves; 0 at the levels whose recipe has no such step.
std::int16_t QuantiMuriDaAbbattere(int livello, std::int16_t muriRimasti);

/// Makes a maze of the level. `apri` chooses start and finish and opens them: that has its place
/// among the draws.
void CreaTramelo(Tramelo& tramelo, int livello, const std::function<void()>& apri);

}  // namespace trameli
