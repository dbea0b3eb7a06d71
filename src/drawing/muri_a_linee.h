// Walls drawn with a pen.
#pragma once

#include <functional>

#include "drawing/segmento.h"
#include "engine/partenza_arrivo.h"
#include "engine/tramelo.h"
#include "platform/surface.h"

namespace trameli {

/// The place of the wall on one side of a cell, from corner to corner.
Segmento SegmentoMuro(Cella cella, Lato lato, const Geometria& geometria);

/// Calls `azione` with the place of each side of each cell that has a wall.
void PerOgniMuro(const Tramelo& tramelo, const Geometria& geometria,
                 const std::function<void(const Segmento&)>& azione);

/// Draws all walls that stand, with a pen of so many pixels; openings are left as they are. The
/// surface is not cleared before. Each wall ends half a pen beyond its corners, round or square.
void DisegnaMuriALinee(Surface& superficie, const Tramelo& tramelo, const Geometria& geometria,
                       double spessoreMuri, Estremi estremi, Colour colore);

}  // namespace trameli
