// What several of these tests ask of a maze, put together from its public face alone.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <vector>

#include "engine/tramelo.h"

namespace trameli {

inline constexpr std::array<Lato, 4> Lati{Lato::Alto, Lato::Destra, Lato::Basso, Lato::Sinistra};

inline Cella CellaA(int r, int c) {
    return {static_cast<std::int16_t>(r), static_cast<std::int16_t>(c)};
}

inline bool Dentro(const Tramelo& tramelo, Cella cella) {
    return cella.Riga >= 1 && cella.Riga <= tramelo.Righe() && cella.Colonna >= 1 &&
           cella.Colonna <= tramelo.Colonne();
}

inline bool Muro(const Tramelo& tramelo, Cella cella, Lato lato) {
    return tramelo.Muri(cella.Riga, cella.Colonna, lato);
}

/// Calls `visita` with every cell and side, outside walls included.
template <class Visita>
void PerOgniFaccia(const Tramelo& tramelo, Visita visita) {
    for (int r = 1; r <= tramelo.Righe(); ++r) {
        for (int c = 1; c <= tramelo.Colonne(); ++c) {
            for (const Lato lato : Lati) {
                visita(CellaA(r, c), lato);
            }
        }
    }
}

/// Whether a side leads out of the grid, found by going there.
inline bool PortaFuori(const Tramelo& tramelo, Cella cella, Lato lato) {
    return !Dentro(tramelo, Vicina(cella, lato));
}

inline int MuriInterni(const Tramelo& tramelo) {
    int facce = 0;
    PerOgniFaccia(tramelo, [&](Cella cella, Lato lato) {
        facce += !PortaFuori(tramelo, cella, lato) && Muro(tramelo, cella, lato) ? 1 : 0;
    });
    return facce / 2;
}

/// Inner walls of a full grid.
inline int MuriInterniPieni(const Tramelo& tramelo) {
    const int righe = tramelo.Righe();
    const int colonne = tramelo.Colonne();
    return righe * (colonne - 1) + colonne * (righe - 1);
}

inline int MuriEsterni(const Tramelo& tramelo) {
    int facce = 0;
    PerOgniFaccia(tramelo, [&](Cella cella, Lato lato) {
        facce += PortaFuori(tramelo, cella, lato) && Muro(tramelo, cella, lato) ? 1 : 0;
    });
    return facce;
}

/// Cells that can be reached from (1, 1) without leaving the grid.
inline int CelleRaggiunte(const Tramelo& tramelo) {
    std::vector<bool> viste(static_cast<std::size_t>(tramelo.NumeroCelle()));
    std::vector<Cella> daVisitare{CellaA(1, 1)};
    const auto segna = [&](Cella cella) {
        const auto i =
            static_cast<std::size_t>((cella.Riga - 1) * tramelo.Colonne() + cella.Colonna - 1);
        const bool nuova = !viste[i];
        viste[i] = true;
        return nuova;
    };
    segna(daVisitare.front());
    int raggiunte = 0;
    while (!daVisitare.empty()) {
        const Cella cella = daVisitare.back();
        daVisitare.pop_back();
        ++raggiunte;
        for (const Lato lato : Lati) {
            const Cella vicina = Vicina(cella, lato);
            if (Dentro(tramelo, vicina) && !Muro(tramelo, cella, lato) && segna(vicina)) {
                daVisitare.push_back(vicina);
            }
        }
    }
    return raggiunte;
}

/// Row 0 and column 0 are there, but nothing is ever written to them.
inline void AttendiBordoIntatto(const Tramelo& tramelo) {
    const auto attendi = [&](int r, int c) {
        EXPECT_EQ(tramelo.Griglia(r, c), 0);
        for (const Lato lato : Lati) {
            EXPECT_FALSE(tramelo.Muri(r, c, lato));
            EXPECT_FALSE(tramelo.MuriProtetti(r, c, lato));
        }
    };
    for (int r = 0; r <= tramelo.Righe(); ++r) {
        attendi(r, 0);
    }
    for (int c = 0; c <= tramelo.Colonne(); ++c) {
        attendi(0, c);
    }
}

}  // namespace trameli
