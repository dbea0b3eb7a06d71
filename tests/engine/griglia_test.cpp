// The grid before and without carving.
#include <gtest/gtest.h>

#include <stdexcept>

#include "aiuti.h"
#include "base/griglie.h"
#include "casuale_finto.h"
#include "engine/tramelo.h"

namespace trameli {
namespace {

TEST(Lati, NeighbourAndOtherFace) {
    const Cella cella{4, 7};
    EXPECT_EQ(Vicina(cella, Lato::Alto), (Cella{3, 7}));
    EXPECT_EQ(Vicina(cella, Lato::Destra), (Cella{4, 8}));
    EXPECT_EQ(Vicina(cella, Lato::Basso), (Cella{5, 7}));
    EXPECT_EQ(Vicina(cella, Lato::Sinistra), (Cella{4, 6}));
    for (const Lato lato : Lati) {
        EXPECT_EQ(Vicina(Vicina(cella, lato), Opposto(lato)), cella);
    }
}

// No draw is scripted: these operations may not draw at all.
class Griglia : public testing::TestWithParam<int> {
protected:
    /// Which faces have a flag: none, those of the outside walls, or all.
    enum Facce { Nessuna, Esterne, Tutte };

    /// Labels in reading order, or none at all; row 0 and column 0 are never touched.
    static void Attendi(const Tramelo& tramelo, bool etichette, Facce muri, Facce protetti) {
        int etichetta = 0;
        PerOgniFaccia(tramelo, [&](Cella cella, Lato lato) {
            const auto& [r, c] = cella;
            etichetta += lato == Lato::Alto ? 1 : 0;
            const bool fuori = PortaFuori(tramelo, cella, lato);
            EXPECT_EQ(tramelo.Griglia(r, c), etichette ? etichetta : 0);
            EXPECT_EQ(tramelo.Muri(r, c, lato), muri == Tutte || (muri == Esterne && fuori));
            EXPECT_EQ(tramelo.MuriProtetti(r, c, lato), protetti == Esterne && fuori);
            EXPECT_EQ(tramelo.Esterno(cella, lato), fuori);
        });
        EXPECT_EQ(tramelo.RegioniRimaste(), etichette ? tramelo.NumeroCelle() : 0);
        AttendiBordoIntatto(tramelo);
    }

    int R = DimensioniDi(GetParam()).Righe;
    int C = DimensioniDi(GetParam()).Colonne;
    CasualeFinto Estrazioni;
    Tramelo Maze{R, C, Estrazioni};
};

TEST_P(Griglia, EachOperationTouchesItsFlagsAlone) {
    EXPECT_EQ(Maze.Righe(), R);
    EXPECT_EQ(Maze.Colonne(), C);
    EXPECT_EQ(Maze.NumeroCelle(), R * C);
    EXPECT_EQ(Maze.MuriRimasti(), 0);
    Attendi(Maze, false, Nessuna, Nessuna);
    Maze.CreaNuovaGriglia();
    Attendi(Maze, true, Tutte, Nessuna);
    Maze.NonEliminareMuriEsterni();
    Attendi(Maze, true, Tutte, Esterne);
    Maze.NessunMuro();
    Attendi(Maze, true, Nessuna, Esterne);
    Maze.NonEliminareMuriEsterni();
    Attendi(Maze, true, Esterne, Esterne);
}

TEST_P(Griglia, AnOpeningClearsOneFlagAndNoProtection) {
    Maze.CreaNuovaGriglia();
    Maze.NonEliminareMuriEsterni();
    Maze.Apri(CellaA(R, C), Lato::Destra);
    PerOgniFaccia(Maze, [&](Cella cella, Lato lato) {
        EXPECT_EQ(Muro(Maze, cella, lato), cella != CellaA(R, C) || lato != Lato::Destra);
    });
    EXPECT_TRUE(Maze.MuriProtetti(R, C, Lato::Destra));
    EXPECT_TRUE(Maze.Esterno(CellaA(R, C), Lato::Destra));
}

TEST_P(Griglia, ANewGridForgetsTheOldMaze) {
    CasualeConSeme casuale(11);
    Tramelo usato(R, C, casuale);
    for (int giro = 0; giro < 2; ++giro) {
        usato.CreaNuovaGriglia();
        Attendi(usato, true, Tutte, Nessuna);
        usato.NonEliminareMuriEsterni();
        usato.Apri(CellaA(1, 1), Lato::Alto);
        usato.Scava();
        EXPECT_EQ(CelleRaggiunte(usato), R * C);
        EXPECT_EQ(usato.Griglia(R, C), 1);
    }
}

INSTANTIATE_TEST_SUITE_P(Livelli, Griglia, testing::Range(0, 16));

TEST(ContaMuriRimasti, IsHalfTheFlagsOfTheOtherSidesOnAFullGrid) {
    struct {
        int Righe, Colonne, Attesi;
    } const casi[] = {{6, 9, 81}, {8, 11, 132}, {1, 1, 1}, {3, 5, 22}, {181, 181, 32767}};
    for (const auto& [righe, colonne, attesi] : casi) {
        CasualeFinto casuale;
        Tramelo tramelo(righe, colonne, casuale);
        tramelo.CreaNuovaGriglia();
        for (int volta = 0; volta < 2; ++volta) {
            tramelo.ContaMuriRimasti();
            EXPECT_EQ(tramelo.MuriRimasti(), attesi) << righe << " x " << colonne;
        }
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
    for (int c = 1; c <= 9; ++c) {
        tramelo.Apri(CellaA(1, c), Lato::Alto);
    }
    EXPECT_EQ(conta(), 81);
    tramelo.Apri(CellaA(1, 9), Lato::Destra);  // 161 flags
    EXPECT_EQ(conta(), 80);
    tramelo.Apri(CellaA(6, 4), Lato::Basso);  // 160
    EXPECT_EQ(conta(), 80);
    tramelo.Apri(CellaA(3, 1), Lato::Sinistra);  // 159
    EXPECT_EQ(conta(), 79);
    tramelo.NessunMuro();
    EXPECT_EQ(conta(), 0);
    tramelo.NonEliminareMuriEsterni();  // 6 left, 6 right, 9 below
    EXPECT_EQ(conta(), 10);
}

TEST(Tramelo, SizesOutsideTheLimitsAreRefused) {
    CasualeFinto casuale;
    EXPECT_THROW(Tramelo(0, 5, casuale), std::invalid_argument);
    EXPECT_THROW(Tramelo(5, 0, casuale), std::invalid_argument);
    EXPECT_THROW(Tramelo(-3, -4, casuale), std::invalid_argument);
    EXPECT_THROW(Tramelo(182, 181, casuale), std::invalid_argument);
    EXPECT_THROW(Tramelo(65536, 65537, casuale), std::invalid_argument);
    EXPECT_EQ(Tramelo(1, 32767, casuale).NumeroCelle(), 32767);
    EXPECT_EQ(Tramelo(32767, 1, casuale).NumeroCelle(), 32767);
}

TEST(Tramelo, ASingleCellIsCarvedAlready) {
    CasualeFinto casuale;
    Tramelo tramelo(1, 1, casuale);
    tramelo.CreaNuovaGriglia();
    tramelo.NonEliminareMuriEsterni();
    tramelo.Scava();
    tramelo.AbbattiAltriMuri(3);
    EXPECT_EQ(MuriEsterni(tramelo), 4);
    EXPECT_EQ(tramelo.RegioniRimaste(), 1);
}

}  // namespace
}  // namespace trameli
