#include "drawing/muri_a_linee.h"

#include <array>
#include <cstddef>

#include "base/rounding.h"

namespace trameli {

namespace {

/// The ends of a wall as corners of its cell: 0 the left or upper edge, 1 the right or lower one.
struct Spigoli {
    int X1, Y1, X2, Y2;
};

// By the number of the side.
constexpr std::array<Spigoli, 4> Lati{{
    {0, 0, 1, 0},
    {1, 0, 1, 1},
    {0, 1, 1, 1},
    {0, 0, 0, 1},
}};

constexpr std::array Ordine{Lato::Alto, Lato::Basso, Lato::Sinistra, Lato::Destra};

}  // namespace

Segmento SegmentoMuro(Cella cella, Lato lato, const Geometria& geometria) {
    const Spigoli& spigoli = Lati[static_cast<std::size_t>(lato)];
    const auto x = [&](int spigolo) {
        return Saturated((cella.Colonna - 1 + spigolo) * geometria.DimensioneCella +
                         geometria.MargineSinistro);
    };
    const auto y = [&](int spigolo) {
        return Saturated((cella.Riga - 1 + spigolo) * geometria.DimensioneCella +
                         geometria.MargineSuperiore);
    };
    return {{x(spigoli.X1), y(spigoli.Y1)}, {x(spigoli.X2), y(spigoli.Y2)}};
}

void PerOgniMuro(const Tramelo& tramelo, const Geometria& geometria,
                 const std::function<void(const Segmento&)>& azione) {
    for (std::int16_t r = 1; r <= tramelo.Righe(); ++r) {
        for (std::int16_t c = 1; c <= tramelo.Colonne(); ++c) {
            for (const Lato lato : Ordine) {
                if (tramelo.Muri(r, c, lato)) {
                    azione(SegmentoMuro({r, c}, lato, geometria));
                }
            }
        }
    }
}

void DisegnaMuriALinee(Surface& superficie, const Tramelo& tramelo, const Geometria& geometria,
                       double spessoreMuri, Estremi estremi, Colour colore) {
    const auto disegna = estremi == Estremi::Quadri ? &Surface::DrawBox : &Surface::DrawLine;
    superficie.DrawWidth(Nearest(spessoreMuri));
    PerOgniMuro(tramelo, geometria, [&](const Segmento& muro) {
        (superficie.*disegna)(muro.Da.X, muro.Da.Y, muro.A.X, muro.A.Y, colore);
    });
}

}  // namespace trameli
