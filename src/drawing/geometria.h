// How a grid is fitted into its picture box.
#pragma once

#include "engine/partenza_arrivo.h"

namespace trameli {

/// The largest cells that leave half a cell free at each side of the grid and a whole one above
/// and below, where the finish picture goes; the grid in the middle. Width and height of the box
/// are in twips and need not be whole. What does not fit into 16 bits stops at their limit.
Geometria CalcolaGeometria(double larghezza, double altezza, int righe, int colonne);

}  // namespace trameli
