// The grid before and without carving.
#include <gtest/gtest.h>

#include <set>
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
    EXPECT_EQ(Opposto(Lato::Alto), Lato::Basso);
    EXPECT_EQ(Opposto(Lato::Destra), Lato::Sinistra);
    EXPECT_EQ(Opposto(Lato::Basso), Lato::Alto);
    EXPECT_EQ(Opposto(Lato::Sinistra), Lato::Destra);
}

// No draw is scripted: these operations may not draw at all.
class Griglia : public testing::TestWithParam<int> {
protected:
    DimensioniGriglia Dimensioni = DimensioniDi(GetParam());
    CasualeFinto Estrazioni;
    Tramelo Maze{Dimensioni.Righe, Dimensioni.Colonne, Estrazioni};
    int R = Dimensioni.Righe;
    int C = Dimensioni.Colonne;
};

TEST_P(Griglia, AllocatedIsEmpty) {
    EXPECT_EQ(Maze.Righe(), R);
    EXPECT_EQ(Maze.Colonne(), C);
    EXPECT_EQ(Maze.NumeroCelle(), R * C);
    EXPECT_EQ(Maze.RegioniRimaste(), 0);
    EXPECT_EQ(Maze.MuriRimasti(), 0);
    PerOgniFaccia(Maze, [&](Cella cella, Lato lato) {
        EXPECT_EQ(Maze.Griglia(cella.Riga, cella.Colonna), 0);
        EXPECT_FALSE(Muro(Maze, cella, lato));
        EXPECT_FALSE(Maze.MuriProtetti(cella.Riga, cella.Colonna, lato));
    });
    AttendiBordoIntatto(Maze);
}

TEST_P(Griglia, NewHasAllWallsAndLabelsInReadingOrder) {
    Maze.CreaNuovaGriglia();
    EXPECT_EQ(Maze.Griglia(1, 1), 1);
    EXPECT_EQ(Maze.Griglia(1, C), C);
    EXPECT_EQ(Maze.Griglia(2, 1), C + 1);
    EXPECT_EQ(Maze.Griglia(R, C), Maze.NumeroCelle());
    EXPECT_EQ(Maze.RegioniRimaste(), Maze.NumeroCelle());
    std::set<int> etichette;
    PerOgniFaccia(Maze, [&](Cella cella, Lato lato) {
        etichette.insert(Maze.Griglia(cella.Riga, cella.Colonna));
        EXPECT_TRUE(Muro(Maze, cella, lato));
        EXPECT_FALSE(Maze.MuriProtetti(cella.Riga, cella.Colonna, lato));
    });
    EXPECT_EQ(etichette.size(), static_cast<std::size_t>(R * C));
    AttendiBordoIntatto(Maze);
}

TEST_P(Griglia, OutsideWallsAreKnownByPosition) {
    int esterni = 0;
    PerOgniFaccia(Maze, [&](Cella cella, Lato lato) {
        EXPECT_EQ(Maze.Esterno(cella, lato), PortaFuori(Maze, cella, lato));
        esterni += Maze.Esterno(cella, lato) ? 1 : 0;
    });
    EXPECT_EQ(esterni, 2 * (R + C));
}

TEST_P(Griglia, OutsideWallsAreProtectedAndOnlyThey) {
    Maze.CreaNuovaGriglia();
    Maze.NonEliminareMuriEsterni();
    PerOgniFaccia(Maze, [&](Cella cella, Lato lato) {
        EXPECT_EQ(Maze.MuriProtetti(cella.Riga, cella.Colonna, lato),
                  PortaFuori(Maze, cella, lato));
        EXPECT_TRUE(Muro(Maze, cella, lato));
    });
    EXPECT_TRUE(Maze.MuriProtetti(1, 1, Lato::Alto));
    EXPECT_TRUE(Maze.MuriProtetti(1, 1, Lato::Sinistra));
    EXPECT_FALSE(Maze.MuriProtetti(1, 1, Lato::Destra));
    EXPECT_TRUE(Maze.MuriProtetti(R, C, Lato::Basso));
    EXPECT_TRUE(Maze.MuriProtetti(R, C, Lato::Destra));
    EXPECT_FALSE(Maze.MuriProtetti(R, C, Lato::Alto));
    AttendiBordoIntatto(Maze);
}

TEST_P(Griglia, EmptyBoxKeepsOnlyTheOutsideWalls) {
    Maze.CreaNuovaGriglia();
    Maze.NessunMuro();
    PerOgniFaccia(Maze, [&](Cella cella, Lato lato) {
        EXPECT_FALSE(Muro(Maze, cella, lato));
        EXPECT_FALSE(Maze.MuriProtetti(cella.Riga, cella.Colonna, lato));
    });
    EXPECT_EQ(Maze.Griglia(R, C), R * C);
    Maze.NonEliminareMuriEsterni();
    EXPECT_EQ(MuriInterni(Maze), 0);
    EXPECT_EQ(MuriEsterni(Maze), 2 * (R + C));
    EXPECT_EQ(CelleRaggiunte(Maze), R * C);
    EXPECT_EQ(Maze.RegioniRimaste(), R * C);
    AttendiBordoIntatto(Maze);
}

TEST_P(Griglia, EmptyingLeavesProtectionAlone) {
    Maze.CreaNuovaGriglia();
    Maze.NonEliminareMuriEsterni();
    Maze.NessunMuro();
    PerOgniFaccia(Maze, [&](Cella cella, Lato lato) {
        EXPECT_FALSE(Muro(Maze, cella, lato));
        EXPECT_EQ(Maze.MuriProtetti(cella.Riga, cella.Colonna, lato),
                  PortaFuori(Maze, cella, lato));
    });
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
    usato.CreaNuovaGriglia();
    usato.NonEliminareMuriEsterni();
    usato.Apri(CellaA(1, 1), Lato::Alto);
    usato.Scava();
    usato.CreaNuovaGriglia();
    Maze.CreaNuovaGriglia();
    EXPECT_EQ(usato.RegioniRimaste(), R * C);
    PerOgniFaccia(usato, [&](Cella cella, Lato lato) {
        EXPECT_EQ(usato.Griglia(cella.Riga, cella.Colonna),
                  Maze.Griglia(cella.Riga, cella.Colonna));
        EXPECT_TRUE(Muro(usato, cella, lato));
        EXPECT_FALSE(usato.MuriProtetti(cella.Riga, cella.Colonna, lato));
    });
    usato.NonEliminareMuriEsterni();
    usato.Scava();
    EXPECT_EQ(CelleRaggiunte(usato), R * C);
    EXPECT_EQ(usato.Griglia(R, C), 1);
}

INSTANTIATE_TEST_SUITE_P(Livelli, Griglia, testing::Range(0, 16));

struct CasoConta {
    int Righe;
    int Colonne;
    std::int16_t Attesi;
};

class Conta : public testing::TestWithParam<CasoConta> {};

TEST_P(Conta, FullGrid) {
    const auto [righe, colonne, attesi] = GetParam();
    CasualeFinto casuale;
    Tramelo tramelo(righe, colonne, casuale);
    tramelo.CreaNuovaGriglia();
    tramelo.ContaMuriRimasti();
    EXPECT_EQ(tramelo.MuriRimasti(), attesi);
    tramelo.ContaMuriRimasti();
    EXPECT_EQ(tramelo.MuriRimasti(), attesi);
}

INSTANTIATE_TEST_SUITE_P(ContaMuriRimasti, Conta,
                         testing::Values(CasoConta{6, 9, 81}, CasoConta{8, 11, 132},
                                         CasoConta{1, 1, 1}, CasoConta{3, 5, 22},
                                         CasoConta{181, 181, 32767}));

TEST(ContaMuriRimasti, LeavesOutTheUpperSidesAndCutsOffAHalf) {
    CasualeFinto casuale;
    Tramelo tramelo(6, 9, casuale);
    tramelo.CreaNuovaGriglia();
    for (int c = 1; c <= 9; ++c) {
        tramelo.Apri(CellaA(1, c), Lato::Alto);
    }
    tramelo.ContaMuriRimasti();
    EXPECT_EQ(tramelo.MuriRimasti(), 81);
    tramelo.Apri(CellaA(1, 9), Lato::Destra);  // 161 flags
    tramelo.ContaMuriRimasti();
    EXPECT_EQ(tramelo.MuriRimasti(), 80);
    tramelo.Apri(CellaA(6, 4), Lato::Basso);  // 160
    tramelo.ContaMuriRimasti();
    EXPECT_EQ(tramelo.MuriRimasti(), 80);
    tramelo.Apri(CellaA(3, 1), Lato::Sinistra);  // 159
    tramelo.ContaMuriRimasti();
    EXPECT_EQ(tramelo.MuriRimasti(), 79);
    tramelo.NessunMuro();
    tramelo.ContaMuriRimasti();
    EXPECT_EQ(tramelo.MuriRimasti(), 0);
    tramelo.NonEliminareMuriEsterni();  // 6 left, 6 right, 9 below
    tramelo.ContaMuriRimasti();
    EXPECT_EQ(tramelo.MuriRimasti(), 10);
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
