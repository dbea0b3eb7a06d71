// Carving and knocking down, draw by draw.
#include <gtest/gtest.h>

#include "casuale_finto.h"
#include "modello.h"

namespace trameli {
namespace {

void AttendiUguale(const Tramelo& tramelo, const Modello& modello) {
    PerOgniFaccia(tramelo, [&](Cella cella, Lato lato) {
        const auto& [r, c] = cella;
        const Modello::Faccia faccia{r, c, lato};
        ASSERT_EQ(tramelo.Griglia(r, c), modello.Griglia.at({r, c}));
        ASSERT_EQ(tramelo.Muri(r, c, lato), modello.Muri.contains(faccia));
        ASSERT_EQ(tramelo.MuriProtetti(r, c, lato), modello.MuriProtetti.contains(faccia));
    });
    ASSERT_EQ(tramelo.RegioniRimaste(), modello.RegioniRimaste);
}

TEST(Scavo, EveryStepIsThatOfThePlainForm) {
    for (const auto& [righe, colonne] : {std::pair{3, 4}, {15, 20}}) {
        for (std::uint64_t seme = 0; seme < 2; ++seme) {
            SCOPED_TRACE(testing::Message() << righe << " rows, seed " << seme);
            CasualeConSeme casuale(seme);
            CasualeConSeme casualeModello(seme);
            Tramelo tramelo(righe, colonne, casuale);
            tramelo.CreaNuovaGriglia();
            tramelo.NonEliminareMuriEsterni();
            Modello modello(tramelo, casualeModello);
            while (tramelo.RegioniRimaste() > 1) {
                tramelo.SelezionaMuroDaAbbattere();
                modello.SelezionaMuroDaAbbattere();
                ASSERT_NO_FATAL_FAILURE(AttendiUguale(tramelo, modello));
            }
            tramelo.AbbattiAltriMuri(5);
            modello.AbbattiAltriMuri(5);
            ASSERT_NO_FATAL_FAILURE(AttendiUguale(tramelo, modello));
            ASSERT_EQ(casuale.Estrai(), casualeModello.Estrai()) << "a draw too many or too few";
        }
    }
}

/// A row of three cells, and the walls that are drawn.
class FilaDiTre : public testing::Test {
protected:
    FilaDiTre() {
        Maze.CreaNuovaGriglia();
        Maze.NonEliminareMuriEsterni();
    }

    void Copione(int c, Lato lato) { Estrazioni.AggiungiMuro(Maze, 1, c, lato); }

    CasualeFinto Estrazioni;
    Tramelo Maze{1, 3, Estrazioni};
};

TEST_F(FilaDiTre, AnOpenedOutsideWallStaysOutOfReachOfTheCarve) {
    Maze.Apri({1, 1}, Lato::Alto);
    Copione(1, Lato::Alto);
    Copione(1, Lato::Destra);
    Maze.SelezionaMuroDaAbbattere();
    EXPECT_EQ(Estrazioni.Rimasti(), 0U);
    EXPECT_FALSE(Maze.Muri(1, 2, Lato::Sinistra));
}

TEST_F(FilaDiTre, NothingIsDrawnWhenNothingIsLeftToDo) {
    Copione(1, Lato::Destra);
    Copione(2, Lato::Destra);
    Maze.Scava();
    Maze.SelezionaMuroDaAbbattere();
    Maze.Scava();
    Maze.AbbattiAltriMuri(0);
    Maze.AbbattiAltriMuri(-1);
    Maze.AbbattiAltriMuri(1);
    EXPECT_EQ(Estrazioni.Rimasti(), 0U);
}

TEST_F(FilaDiTre, KnockingDownEndsWithTheLastInnerWall) {
    Copione(1, Lato::Destra);
    Copione(1, Lato::Sinistra);
    Copione(3, Lato::Sinistra);
    Maze.AbbattiAltriMuri(32767);
    EXPECT_EQ(Estrazioni.Rimasti(), 0U);
    EXPECT_EQ(MuriInterni(Maze), 0);
    EXPECT_TRUE(Maze.Muri(1, 1, Lato::Sinistra));
}

TEST_F(FilaDiTre, AWallThatStandsOnOneSideOnlyCountsToo) {
    Maze.Apri({1, 2}, Lato::Sinistra);
    Maze.Apri({1, 2}, Lato::Destra);
    Copione(2, Lato::Sinistra);
    Copione(1, Lato::Destra);
    Copione(3, Lato::Sinistra);
    Maze.AbbattiAltriMuri(5);
    EXPECT_EQ(Estrazioni.Rimasti(), 0U);
    EXPECT_FALSE(Maze.Muri(1, 3, Lato::Sinistra));
}

}  // namespace
}  // namespace trameli
