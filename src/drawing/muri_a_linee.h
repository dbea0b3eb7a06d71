// Walls drawn with a pen.
#pragma once

#include "drawing/segmento.h"
#include "engine/partenza_arrivo.h"
#include "engine/tramelo.h"
#include "platform/surface.h"

namespace trameli {

/// Half the thickness of the walls in twips: by so much square-ended walls are longer at each end,
/// so that they meet in square corners.
int SporgenzaMuri(double spessoreMuri, double twipsPerPixelX);

/// The place of the wall on one side of a cell, both ends moved outward along it by `sporgenza`
/// twips.
Segmento SegmentoMuro(Cella cella, Lato lato, const Misure& misure, int sporgenza);

/// Draws all walls that stand; openings are left as they are. The surface is not cleared before.
/// With round ends a wall is as long as a cell's side, with square ones longer by its thickness.
void DisegnaMuriALinee(Surface& superficie, const Tramelo& tramelo, const Misure& misure,
                       Estremi estremi, Colour colore, double twipsPerPixelX);

}  // namespace trameli
