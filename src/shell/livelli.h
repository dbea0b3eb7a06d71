// The sixteen levels.
#pragma once

#include "shell/stato.h"

namespace trameli {

/// How many levels there are; a level is 0 to one less.
inline constexpr int NumeroLivelli = 16;

/// Name of the form that plays a level, 0 to 15.
const char* FormDelLivello(int livello);

/// Sets the size of the grid that belongs to `Livello`. Levels 0 to 7 have sizes of their own,
/// which the play forms know: for them nothing changes.
void ImpostaGriglia(Stato& stato);

}  // namespace trameli
