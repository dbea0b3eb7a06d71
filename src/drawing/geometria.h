// How a grid is fitted into its picture box.
#pragma once

#include "engine/partenza_arrivo.h"

namespace trameli {

/// In which sides of the grid start and finish can be.
enum class Aperture { OgniLato, SopraESotto };

/// The largest cells that leave a whole cell free where the finish picture can go: above and below
/// the grid, and at its sides too unless only half a cell is wanted there; the grid in the middle.
/// Width and height of the box are in twips and need not be whole. What does not fit into 16 bits
/// stops at their limit.
Geometria CalcolaGeometria(double larghezza, double altezza, int righe, int colonne,
                           Aperture aperture = Aperture::OgniLato);

}  // namespace trameli
