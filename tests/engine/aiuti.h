// What several of these tests ask of a maze, put together from its public face alone.
#pragma once

#include <array>
#include <cstdint>

#include "engine/tramelo.h"

namespace trameli {

inline constexpr std::array<Lato, 4> Lati{Lato::Alto, Lato::Destra, Lato::Basso, Lato::Sinistra};

/// Calls `visita` with every cell and side, outside walls included.
template <class Visita>
void PerOgniFaccia(const Tramelo& tramelo, Visita visita) {
    for (std::int16_t r = 1; r <= tramelo.Righe(); ++r) {
        for (std::int16_t c = 1; c <= tramelo.Colonne(); ++c) {
            for (const Lato lato : Lati) {
                visita(Cella{r, c}, lato);
            }
        }
    }
}

/// Whether a side leads out of the grid, found by going there.
inline bool PortaFuori(const Tramelo& tramelo, Cella cella, Lato lato) {
    const auto [r, c] = Vicina(cella, lato);
    return r < 1 || r > tramelo.Righe() || c < 1 || c > tramelo.Colonne();
}

/// Inner walls that stand, in both of their cells.
inline int MuriInterni(const Tramelo& tramelo) {
    int facce = 0;
    PerOgniFaccia(tramelo, [&](Cella cella, Lato lato) {
        const bool inPiedi = tramelo.Muri(cella.Riga, cella.Colonna, lato);
        facce += inPiedi && !PortaFuori(tramelo, cella, lato) ? 1 : 0;
    });
    return facce / 2;
}

}  // namespace trameli
