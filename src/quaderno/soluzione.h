// The way through a maze.
#pragma once

#include <vector>

#include "engine/partenza_arrivo.h"
#include "engine/tramelo.h"

namespace trameli {

/// The cells of a shortest way from the start's cell to the finish's, both included. There is one
/// in every maze of the game.
std::vector<Cella> Soluzione(const Tramelo& tramelo, const PartenzaArrivo& percorso);

}  // namespace trameli
