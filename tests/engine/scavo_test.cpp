// Carving and knocking down, draw by draw.
#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "aiuti.h"
#include "base/griglie.h"
#include "casuale_finto.h"
#include "engine/tramelo.h"
#include "modello.h"

namespace trameli {
namespace {

// Three rows of four cells:
//    1  2  3  4
//    5  6  7  8
//    9 10 11 12
class Scavo : public testing::Test {
protected:
    Scavo() {
        Maze.CreaNuovaGriglia();
        Maze.NonEliminareMuriEsterni();
    }

    void Copione(int r, int c, Lato lato) { Estrazioni.AggiungiMuro(Maze, r, c, lato); }

    /// One call that has to use up the script.
    void Seleziona() {
        Maze.SelezionaMuroDaAbbattere();
        EXPECT_EQ(Estrazioni.Rimasti(), 0U);
    }
    void Abbatti(std::int16_t quanti) {
        Maze.AbbattiAltriMuri(quanti);
        EXPECT_EQ(Estrazioni.Rimasti(), 0U);
    }

    void AttendiMuro(int r, int c, Lato lato, bool inPiedi, bool protetto) {
        const Cella vicina = Vicina(CellaA(r, c), lato);
        EXPECT_EQ(Maze.Muri(r, c, lato), inPiedi);
        EXPECT_EQ(Muro(Maze, vicina, Opposto(lato)), inPiedi);
        EXPECT_EQ(Maze.MuriProtetti(r, c, lato), protetto);
        EXPECT_EQ(Maze.MuriProtetti(vicina.Riga, vicina.Colonna, Opposto(lato)), protetto);
    }

    void AttendiEtichette(const std::array<int, 12>& attese) {
        for (int i = 0; i < 12; ++i) {
            EXPECT_EQ(Maze.Griglia(i / 4 + 1, i % 4 + 1), attese[static_cast<std::size_t>(i)]) << i;
        }
    }

    CasualeFinto Estrazioni;
    Tramelo Maze{3, 4, Estrazioni};
};

TEST_F(Scavo, DrawsRowThenColumnThenSide) {
    // 0.3 is row 1, 0.7 is column 3, 0.6 is side 2; any other order is another wall.
    for (const float u : {0.3F, 0.7F, 0.6F}) {
        Estrazioni.Aggiungi(u);
    }
    Seleziona();
    AttendiMuro(1, 3, Lato::Basso, false, true);
    EXPECT_EQ(MuriInterni(Maze), 16);
}

TEST_F(Scavo, AnOpenedOutsideWallStaysOutOfReach) {
    Maze.Apri(CellaA(1, 1), Lato::Alto);
    Copione(1, 1, Lato::Alto);
    Copione(1, 1, Lato::Basso);
    Seleziona();
    AttendiMuro(1, 1, Lato::Basso, false, true);
}

TEST_F(Scavo, AWallWithinARegionStaysAndTheCallDrawsOn) {
    Copione(1, 1, Lato::Destra);
    Seleziona();
    Copione(1, 1, Lato::Basso);
    Seleziona();
    Copione(2, 1, Lato::Destra);
    Seleziona();
    AttendiEtichette({1, 1, 3, 4, 1, 1, 7, 8, 9, 10, 11, 12});
    Copione(1, 2, Lato::Basso);  // both cells have label 1: examined, left standing
    Copione(2, 2, Lato::Alto);   // the same from below: drawn past
    Copione(2, 4, Lato::Basso);
    Seleziona();
    AttendiMuro(1, 2, Lato::Basso, true, true);
    AttendiMuro(2, 4, Lato::Basso, false, true);
    AttendiEtichette({1, 1, 3, 4, 1, 1, 7, 8, 9, 10, 11, 8});
    EXPECT_EQ(Maze.RegioniRimaste(), 8);
}

TEST_F(Scavo, AMergeRewritesAllOfTheGreaterRegionAndNothingElse) {
    const auto unisci = [this](int r, int c, Lato lato) {
        Copione(r, c, lato);
        Seleziona();
    };
    unisci(1, 4, Lato::Basso);  // 4: its cells lie around those of others
    unisci(2, 4, Lato::Basso);
    unisci(3, 4, Lato::Sinistra);
    unisci(3, 3, Lato::Sinistra);
    AttendiEtichette({1, 2, 3, 4, 5, 6, 7, 4, 9, 4, 4, 4});
    unisci(3, 1, Lato::Alto);      // 5
    unisci(3, 2, Lato::Sinistra);  // the last cell of 4 comes after the last of 5
    AttendiEtichette({1, 2, 3, 4, 4, 6, 7, 4, 4, 4, 4, 4});
    unisci(2, 1, Lato::Alto);
    AttendiEtichette({1, 2, 3, 1, 1, 6, 7, 1, 1, 1, 1, 1});
    unisci(1, 3, Lato::Basso);
    unisci(1, 3, Lato::Sinistra);
    unisci(2, 2, Lato::Destra);
    AttendiEtichette({1, 2, 2, 1, 1, 2, 2, 1, 1, 1, 1, 1});
    unisci(1, 4, Lato::Sinistra);
    AttendiEtichette({1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1});
    EXPECT_EQ(Maze.RegioniRimaste(), 1);
    EXPECT_EQ(MuriInterni(Maze), 6);
    // Nothing is left to join: no draw, no endless search.
    Seleziona();
    Maze.Scava();
    EXPECT_EQ(MuriInterni(Maze), 6);
}

TEST_F(Scavo, FurtherWallsFallWhateverLiesBehindThem) {
    Copione(1, 1, Lato::Destra);
    Seleziona();
    Copione(1, 2, Lato::Sinistra);  // down already
    Copione(1, 2, Lato::Alto);      // outside
    Copione(2, 4, Lato::Destra);
    Copione(3, 3, Lato::Basso);
    Copione(3, 1, Lato::Sinistra);
    Copione(2, 2, Lato::Sinistra);
    Copione(2, 1, Lato::Destra);  // the same wall
    Copione(2, 3, Lato::Basso);
    Abbatti(2);
    AttendiMuro(2, 2, Lato::Sinistra, false, false);
    AttendiMuro(2, 3, Lato::Basso, false, false);
    EXPECT_EQ(MuriInterni(Maze), 14);
    EXPECT_EQ(MuriEsterni(Maze), 14);
    // Only the carve joins regions.
    AttendiEtichette({1, 1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    EXPECT_EQ(Maze.RegioniRimaste(), 11);
}

TEST_F(Scavo, NoneAskedForDrawsNothing) {
    Abbatti(0);
    Abbatti(-1);
    Abbatti(std::numeric_limits<std::int16_t>::min());
    EXPECT_EQ(MuriInterni(Maze), 17);
}

TEST(AbbattiAltriMuri, EndsWithTheLastInnerWall) {
    CasualeFinto casuale;
    Tramelo tramelo(1, 3, casuale);
    tramelo.CreaNuovaGriglia();
    tramelo.NonEliminareMuriEsterni();
    casuale.AggiungiMuro(tramelo, 1, 1, Lato::Destra);
    casuale.AggiungiMuro(tramelo, 1, 1, Lato::Sinistra);
    casuale.AggiungiMuro(tramelo, 1, 3, Lato::Sinistra);
    tramelo.AbbattiAltriMuri(32767);
    EXPECT_EQ(casuale.Rimasti(), 0U);
    EXPECT_EQ(MuriInterni(tramelo), 0);
    EXPECT_EQ(MuriEsterni(tramelo), 8);
    tramelo.AbbattiAltriMuri(1);
}

TEST(AbbattiAltriMuri, AWallThatStandsOnOneSideOnlyCountsToo) {
    CasualeFinto casuale;
    Tramelo tramelo(1, 3, casuale);
    tramelo.CreaNuovaGriglia();
    tramelo.Apri(CellaA(1, 2), Lato::Sinistra);
    tramelo.Apri(CellaA(1, 2), Lato::Destra);
    casuale.AggiungiMuro(tramelo, 1, 2, Lato::Sinistra);
    casuale.AggiungiMuro(tramelo, 1, 1, Lato::Destra);
    casuale.AggiungiMuro(tramelo, 1, 3, Lato::Sinistra);
    tramelo.AbbattiAltriMuri(5);
    EXPECT_EQ(casuale.Rimasti(), 0U);
    EXPECT_FALSE(tramelo.Muri(1, 1, Lato::Destra));
    EXPECT_FALSE(tramelo.Muri(1, 3, Lato::Sinistra));
}

class AnyLevel : public testing::TestWithParam<int> {
protected:
    DimensioniGriglia Dimensioni = DimensioniDi(GetParam());
    int R = Dimensioni.Righe;
    int C = Dimensioni.Colonne;
};

TEST_P(AnyLevel, AskedForTooMuchEndsInAnEmptyBox) {
    CasualeConSeme casuale(5);
    Tramelo tramelo(R, C, casuale);
    tramelo.CreaNuovaGriglia();
    tramelo.NonEliminareMuriEsterni();
    tramelo.AbbattiAltriMuri(static_cast<std::int16_t>(MuriInterniPieni(tramelo) + 1));
    EXPECT_EQ(MuriInterni(tramelo), 0);
    EXPECT_EQ(MuriEsterni(tramelo), 2 * (R + C));
}

void AttendiUguale(const Tramelo& tramelo, const Modello& modello) {
    ASSERT_EQ(tramelo.RegioniRimaste(), modello.RegioniRimaste);
    for (std::size_t r = 0; r <= static_cast<std::size_t>(modello.R); ++r) {
        for (std::size_t c = 0; c <= static_cast<std::size_t>(modello.C); ++c) {
            const int riga = static_cast<int>(r);
            const int colonna = static_cast<int>(c);
            ASSERT_EQ(tramelo.Griglia(riga, colonna), modello.Griglia[r][c]);
            for (const Lato lato : Lati) {
                const auto s = static_cast<std::size_t>(lato);
                ASSERT_EQ(tramelo.Muri(riga, colonna, lato), modello.Muri[r][c][s]);
                ASSERT_EQ(tramelo.MuriProtetti(riga, colonna, lato), modello.MuriProtetti[r][c][s]);
            }
        }
    }
}

TEST_P(AnyLevel, EveryStepIsThatOfThePlainForm) {
    for (std::uint64_t seme = 0; seme < 5; ++seme) {
        CasualeConSeme casuale(seme);
        CasualeConSeme casualeModello(seme);
        Tramelo tramelo(R, C, casuale);
        tramelo.CreaNuovaGriglia();
        tramelo.NonEliminareMuriEsterni();
        Modello modello(R, C, casualeModello);
        AttendiUguale(tramelo, modello);
        while (modello.RegioniRimaste > 1) {
            tramelo.SelezionaMuroDaAbbattere();
            modello.SelezionaMuroDaAbbattere();
            ASSERT_NO_FATAL_FAILURE(AttendiUguale(tramelo, modello)) << seme;
        }
        tramelo.AbbattiAltriMuri(5);
        modello.AbbattiAltriMuri(5);
        ASSERT_NO_FATAL_FAILURE(AttendiUguale(tramelo, modello)) << seme;
        ASSERT_EQ(casuale.Estrai(), casualeModello.Estrai()) << "a draw too many or too few";
    }
}

INSTANTIATE_TEST_SUITE_P(Livelli, AnyLevel, testing::Range(0, 16));

}  // namespace
}  // namespace trameli
