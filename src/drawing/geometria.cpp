#include "drawing/geometria.h"

#include <algorithm>

#include "base/rounding.h"

namespace trameli {

Geometria CalcolaGeometria(double larghezza, double altezza, int righe, int colonne,
                           Aperture aperture) {
    // The picture at a left opening begins one cell before the grid.
    const int aiLati = aperture == Aperture::OgniLato ? 2 : 1;
    const std::int16_t cella = Saturated(std::min(Quotient(Nearest(larghezza), colonne + aiLati),
                                                  Quotient(Nearest(altezza), righe + 2)));
    // The margins take the box as it is, not the rounded one.
    const auto margine = [cella](double lunghezza, int celle) {
        return Saturated(Floor((lunghezza - static_cast<double>(cella) * celle) / 2));
    };
    return {cella, margine(larghezza, colonne), margine(altezza, righe)};
}

}  // namespace trameli
