// Walls as bars that lie on the surface.
#pragma once

#include <vector>

#include "engine/partenza_arrivo.h"
#include "engine/tramelo.h"
#include "platform/control.h"

namespace trameli {

/// The place of the bar that is the wall on one side of a cell: a third of a cell thick, centred on
/// the wall, and longer than it by a sixth of a cell at each end, so that bars meet in corners
/// without a gap.
Bounds PostoBarra(Cella cella, Lato lato, const Geometria& geometria);

/// The places of the bars of all walls that stand, one for each wall: those of the upper edge, the
/// left edge, the lower sides of all cells and their right sides.
std::vector<Bounds> PostiBarre(const Tramelo& tramelo, const Geometria& geometria);

}  // namespace trameli
