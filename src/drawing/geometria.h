// How a grid is fitted into its picture box.
#pragma once

#include <cstdint>

#include "drawing/spessori.h"
#include "engine/partenza_arrivo.h"

namespace trameli {

/// Size and place of the grid on its picture box, twips.
struct Geometria {
    std::int16_t DimensioneCella = 0;   ///< side of a cell
    std::int16_t MargineSinistro = 0;   ///< left edge of the box to the grid
    std::int16_t MargineSuperiore = 0;  ///< top edge of the box to the grid

    bool operator==(const Geometria&) const = default;
};

/// The largest cells that leave half a cell free at each side of the grid and a whole one above
/// and below, where the finish picture goes; the grid in the middle. Width and height of the box
/// are in twips and need not be whole. What does not fit into 16 bits stops at their limit.
Geometria CalcolaGeometria(double larghezza, double altezza, int righe, int colonne);

/// Both together, as the engine asks for them.
Misure MisureDi(const Geometria& geometria, const Spessori& spessori);

}  // namespace trameli
