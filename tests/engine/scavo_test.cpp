// Carving and knocking down.
#include <gtest/gtest.h>

#include <array>
#include <set>

#include "engine/tramelo.h"

namespace trameli {
namespace {

constexpr std::array<Lato, 4> Lati{Lato::Alto, Lato::Destra, Lato::Basso, Lato::Sinistra};

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
bool PortaFuori(const Tramelo& tramelo, Cella cella, Lato lato) {
    const auto [r, c] = Vicina(cella, lato);
    return r < 1 || r > tramelo.Righe() || c < 1 || c > tramelo.Colonne();
}

/// Inner walls that stand, in both of their cells.
int MuriInterni(const Tramelo& tramelo) {
    int facce = 0;
    PerOgniFaccia(tramelo, [&](Cella cella, Lato lato) {
        const bool inPiedi = tramelo.Muri(cella.Riga, cella.Colonna, lato);
        facce += inPiedi && !PortaFuori(tramelo, cella, lato) ? 1 : 0;
    });
    return facce / 2;
}

/// As many labels as regions, each that of its first cell in reading order; what is open has one
/// label and no flag on either side, and whatever was open once is protected. Outside walls stand.
void AttendiRegioni(const Tramelo& tramelo) {
    std::set<int> etichette;
    PerOgniFaccia(tramelo, [&](Cella cella, Lato lato) {
        const auto& [r, c] = cella;
        const int etichetta = tramelo.Griglia(r, c);
        etichette.insert(etichetta);
        ASSERT_LE(etichetta, (r - 1) * tramelo.Colonne() + c);
        const int prima = etichetta - 1;
        ASSERT_EQ(tramelo.Griglia(prima / tramelo.Colonne() + 1, prima % tramelo.Colonne() + 1),
                  etichetta);
        if (PortaFuori(tramelo, cella, lato)) {
            ASSERT_TRUE(tramelo.Muri(r, c, lato) && tramelo.MuriProtetti(r, c, lato));
            return;
        }
        const auto [r2, c2] = Vicina(cella, lato);
        const bool muro = tramelo.Muri(r, c, lato);
        ASSERT_EQ(tramelo.Muri(r2, c2, Opposto(lato)), muro);
        ASSERT_EQ(tramelo.MuriProtetti(r2, c2, Opposto(lato)), tramelo.MuriProtetti(r, c, lato));
        ASSERT_TRUE(muro ||
                    (tramelo.Griglia(r2, c2) == etichetta && tramelo.MuriProtetti(r, c, lato)));
    });
    ASSERT_EQ(static_cast<int>(etichette.size()), tramelo.RegioniRimaste());
}

TEST(Scavo, EachStepTakesOneWallAndOneRegionAway) {
    for (const auto& [righe, colonne] : {std::pair{3, 4}, {15, 20}}) {
        CasualeConSeme casuale(1);
        Tramelo tramelo(righe, colonne, casuale);
        tramelo.CreaNuovaGriglia();
        tramelo.NonEliminareMuriEsterni();
        int muri = MuriInterni(tramelo);
        while (tramelo.RegioniRimaste() > 1) {
            const int regioni = tramelo.RegioniRimaste();
            tramelo.SelezionaMuroDaAbbattere();
            ASSERT_EQ(tramelo.RegioniRimaste(), regioni - 1);
            ASSERT_EQ(MuriInterni(tramelo), --muri);
            ASSERT_NO_FATAL_FAILURE(AttendiRegioni(tramelo));
        }
        tramelo.AbbattiAltriMuri(5);
        ASSERT_EQ(MuriInterni(tramelo), muri - 5);
        // All that is left, however many are asked for.
        tramelo.AbbattiAltriMuri(32767);
        ASSERT_EQ(MuriInterni(tramelo), 0);
    }
}

TEST(ContaMuriRimasti, LeavesOutTheUpperSidesAndCutsOffAHalf) {
    CasualeConSeme casuale(1);
    Tramelo tramelo(6, 9, casuale);
    tramelo.CreaNuovaGriglia();
    const auto conta = [&] {
        tramelo.ContaMuriRimasti();
        return tramelo.MuriRimasti();
    };
    EXPECT_EQ(conta(), 81);
    tramelo.Apri({1, 9}, Lato::Alto);
    EXPECT_EQ(conta(), 81);
    tramelo.Apri({1, 9}, Lato::Destra);  // 161 flags
    EXPECT_EQ(conta(), 80);
    tramelo.Apri({6, 4}, Lato::Basso);
    tramelo.Apri({3, 1}, Lato::Sinistra);  // 159
    EXPECT_EQ(conta(), 79);
}

}  // namespace
}  // namespace trameli
