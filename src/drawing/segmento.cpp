#include "drawing/segmento.h"

#include <algorithm>
#include <cstdlib>

#include "base/rounding.h"

namespace trameli {

namespace {

/// -1, 0 or 1.
int Segno(int x) {
    return (x > 0) - (x < 0);
}

}  // namespace

Punto Sposta(Punto punto, Lato verso, int twips) {
    const auto [riga, colonna] = Vicina({0, 0}, verso);
    return {Saturated(punto.X + colonna * twips), Saturated(punto.Y + riga * twips)};
}

Segmento Allunga(const Segmento& segmento, int indietro, int avanti) {
    const auto& [da, a] = segmento;
    const int dx = Segno(a.X - da.X);
    const int dy = Segno(a.Y - da.Y);
    return {{Saturated(da.X - dx * indietro), Saturated(da.Y - dy * indietro)},
            {Saturated(a.X + dx * avanti), Saturated(a.Y + dy * avanti)}};
}

int MetaPenna(double pixel, double twipsPerPixel) {
    return Quotient(Nearest(twipsPerPixel * pixel), 2);
}

void Disegna(Surface& superficie, const Segmento& segmento, Estremi estremi, Colour colore,
             double twipsPerPixel) {
    const auto& [da, a] = segmento;
    if (estremi == Estremi::Tondi) {
        superficie.DrawLine(da.X, da.Y, a.X, a.Y, colore);
        return;
    }
    // The surface lets its square ends stand out by half a pen. Here they would reach over walls.
    const int lunghezza = std::max(std::abs(a.X - da.X), std::abs(a.Y - da.Y));
    const int meta =
        std::min(MetaPenna(superficie.DrawWidth(), twipsPerPixel), Quotient(lunghezza, 2));
    const auto [inizio, fine] = Allunga(segmento, -meta, -meta);
    superficie.DrawBox(inizio.X, inizio.Y, fine.X, fine.Y, colore);
}

}  // namespace trameli
