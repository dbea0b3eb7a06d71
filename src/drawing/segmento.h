// Strokes on a surface.
#pragma once

#include "engine/partenza_arrivo.h"
#include "platform/surface.h"

namespace trameli {

/// A straight stroke from one point to another, twips.
struct Segmento {
    Punto Da;
    Punto A;
    bool operator==(const Segmento&) const = default;
};

/// How a stroke ends: with the round end of the pen, or cut off square.
enum class Estremi { Tondi, Quadri };

/// Draws the stroke with the pen that the surface has.
inline void Disegna(Surface& superficie, const Segmento& segmento, Estremi estremi, Colour colore) {
    const auto& [da, a] = segmento;
    if (estremi == Estremi::Quadri) {
        superficie.DrawBox(da.X, da.Y, a.X, a.Y, colore);
    } else {
        superficie.DrawLine(da.X, da.Y, a.X, a.Y, colore);
    }
}

}  // namespace trameli
