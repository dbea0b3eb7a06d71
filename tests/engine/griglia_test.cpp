// The grid before and without carving. No draw is scripted: these operations may not draw at all.
#include <gtest/gtest.h>

#include "aiuti.h"
#include "casuale_finto.h"
#include "engine/tramelo.h"

namespace trameli {
namespace {

/// Which faces have a flag: none, those of the outside walls, or all.
enum Facce { Nessuna, Esterne, Tutte };

/// Labels in reading order, or none at all.
void Attendi(const Tramelo& tramelo, bool etichette, Facce muri, Facce protetti) {
    int etichetta = 0;
    PerOgniFaccia(tramelo, [&](Cella cella, Lato lato) {
        const auto& [r, c] = cella;
        etichetta += lato == Lato::Alto ? 1 : 0;
        const bool fuori = PortaFuori(tramelo, cella, lato);
        EXPECT_EQ(tramelo.Griglia(r, c), etichette ? etichetta : 0);
        EXPECT_EQ(tramelo.Muri(r, c, lato), muri == Tutte || (muri == Esterne && fuori));
        EXPECT_EQ(tramelo.MuriProtetti(r, c, lato), protetti == Esterne && fuori);
    });
    EXPECT_EQ(tramelo.RegioniRimaste(), etichette ? tramelo.NumeroCelle() : 0);
}

TEST(Griglia, EachOperationTouchesItsFlagsAlone) {
    for (const auto& [righe, colonne] : {std::pair{1, 1}, {3, 4}, {15, 20}}) {
        SCOPED_TRACE(righe);
        CasualeFinto casuale;
        Tramelo tramelo(righe, colonne, casuale);
        Attendi(tramelo, false, Nessuna, Nessuna);
        tramelo.CreaNuovaGriglia();
        Attendi(tramelo, true, Tutte, Nessuna);
        tramelo.NonEliminareMuriEsterni();
        Attendi(tramelo, true, Tutte, Esterne);
        tramelo.NessunMuro();
        Attendi(tramelo, true, Nessuna, Esterne);
        tramelo.NonEliminareMuriEsterni();
        Attendi(tramelo, true, Esterne, Esterne);
    }
}

TEST(Griglia, ANewOneForgetsTheOldMaze) {
    CasualeConSeme casuale(11);
    Tramelo tramelo(15, 20, casuale);
    for (int giro = 0; giro < 2; ++giro) {
        tramelo.CreaNuovaGriglia();
        Attendi(tramelo, true, Tutte, Nessuna);
        tramelo.NonEliminareMuriEsterni();
        tramelo.Scava();
        PerOgniFaccia(tramelo, [&](Cella cella, Lato /*lato*/) {
            EXPECT_EQ(tramelo.Griglia(cella.Riga, cella.Colonna), 1);
        });
    }
}

TEST(ContaMuriRimasti, LeavesOutTheUpperSidesAndCutsOffAHalf) {
    CasualeFinto casuale;
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
    tramelo.Apri({6, 4}, Lato::Basso);  // 160
    EXPECT_EQ(conta(), 80);
    tramelo.Apri({3, 1}, Lato::Sinistra);  // 159
    EXPECT_EQ(conta(), 79);
}

}  // namespace
}  // namespace trameli
