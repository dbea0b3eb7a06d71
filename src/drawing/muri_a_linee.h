// Walls drawn with a pen.
#pragma once

#include "drawing/segmento.h"
#include "engine/partenza_arrivo.h"
#include "engine/tramelo.h"
#include "platform/surface.h"

namespace trameli {

/// The place of the wall on one side of a cell, from corner to corner, and `sporgenza` twips longer
/// at each end.
Segmento SegmentoMuro(Cella cella, Lato lato, const Misure& misure, int sporgenza);

/// Draws all walls that stand; openings are left as they are. The surface is not cleared before.
/// Square-ended walls are longer by half their thickness at each end, so that they meet in square
/// corners.
void DisegnaMuriALinee(Surface& superficie, const Tramelo& tramelo, const Misure& misure,
                       Estremi estremi, Colour colore, double twipsPerPixelX);

}  // namespace trameli
