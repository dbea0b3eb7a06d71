// The carving in its plainest form, to hold the packed and shortened one against.
#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>

#include "aiuti.h"

namespace trameli {

class Modello {
public:
    using Faccia = std::tuple<int, int, Lato>;  // row, column, side

    /// A full grid with its outside walls protected, as `tramelo` is.
    Modello(const Tramelo& tramelo, Casuale& casuale)
        : m_righe(tramelo.Righe()), m_colonne(tramelo.Colonne()), m_casuale(casuale) {
        PerOgniFaccia(tramelo, [&](Cella cella, Lato lato) {
            const auto& [r, c] = cella;
            Griglia[{r, c}] = m_colonne * (r - 1) + c;
            Muri.insert({r, c, lato});
            if (PortaFuori(tramelo, cella, lato)) {
                m_esterni.insert({r, c, lato});
            }
        });
        MuriProtetti = m_esterni;
        RegioniRimaste = m_righe * m_colonne;
    }

    void SelezionaMuroDaAbbattere() {
        for (;;) {
            const Faccia faccia = EstraiFaccia();
            if (MuriProtetti.contains(faccia)) {
                continue;
            }
            const Faccia altra = Altra(faccia);
            MuriProtetti.insert({faccia, altra});
            const int a = Griglia[{std::get<0>(faccia), std::get<1>(faccia)}];
            const int b = Griglia[{std::get<0>(altra), std::get<1>(altra)}];
            if (a == b) {
                continue;
            }
            Muri.erase(faccia);
            Muri.erase(altra);
            for (auto& [posto, etichetta] : Griglia) {
                etichetta = etichetta == std::max(a, b) ? std::min(a, b) : etichetta;
            }
            --RegioniRimaste;
            return;
        }
    }

    void AbbattiAltriMuri(int quanti) {
        while (quanti > 0) {
            const Faccia faccia = EstraiFaccia();
            if (!m_esterni.contains(faccia) && Muri.erase(faccia) > 0) {
                Muri.erase(Altra(faccia));
                --quanti;
            }
        }
    }

    int RegioniRimaste;
    std::map<std::pair<int, int>, int> Griglia;
    std::set<Faccia> Muri;
    std::set<Faccia> MuriProtetti;

private:
    Faccia EstraiFaccia() {
        const int r = m_casuale.FinoA(m_righe) + 1;
        const int c = m_casuale.FinoA(m_colonne) + 1;
        return {r, c, static_cast<Lato>(m_casuale.FinoA(4))};
    }
    static Faccia Altra(const Faccia& faccia) {
        const auto& [r, c, lato] = faccia;
        const Cella vicina =
            Vicina({static_cast<std::int16_t>(r), static_cast<std::int16_t>(c)}, lato);
        return {vicina.Riga, vicina.Colonna, Opposto(lato)};
    }

    int m_righe;
    int m_colonne;
    Casuale& m_casuale;
    std::set<Faccia> m_esterni;
};

}  // namespace trameli
