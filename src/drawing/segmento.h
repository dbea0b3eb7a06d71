// Strokes on a surface.
#pragma once

#include "engine/partenza_arrivo.h"
#include "platform/surface.h"

namespace trameli {

/// A straight stroke from one point to another along a row or a column, twips.
struct Segmento {
    Punto Da;
    Punto A;
    bool operator==(const Segmento&) const = default;
};

/// The point so many twips further in that direction.
Punto Sposta(Punto punto, Lato verso, int twips);

/// The stroke with its first end moved backward and its second end moved forward by so many twips;
/// negative ones shorten it. A stroke of length zero has no direction and stays as it is.
Segmento Allunga(const Segmento& segmento, int indietro, int avanti);

/// Half the thickness of a pen in twips.
int MetaPenna(double pixel, double twipsPerPixel);

/// How a stroke ends.
enum class Estremi { Tondi, Quadri };

/// Draws the stroke with the pen that the surface has: with its round end beyond the two points, or
/// cut off square right at them. One of length zero is a point of the pen's width, round or square.
void Disegna(Surface& superficie, const Segmento& segmento, Estremi estremi, Colour colore,
             double twipsPerPixel);

}  // namespace trameli
