// What is played at each of the levels.
#pragma once

#include "base/griglie.h"
#include "shell/stato.h"

namespace trameli {

/// Name of the form that plays a level, 0 to 15.
const char* FormDelLivello(int livello);

/// Sets `RigheGriglia` and `ColonneGriglia` to the grid of `Livello`. They count at levels 8 to 15
/// only; below, they stay as they are.
void ImpostaGriglia(Stato& stato);

}  // namespace trameli
