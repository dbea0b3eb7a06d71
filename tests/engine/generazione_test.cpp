// Whole mazes, level by level, over many seeds.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <tuple>

#include "aiuti.h"
#include "base/griglie.h"
#include "engine/partenza_arrivo.h"
#include "engine/ricette.h"
#include "engine/tramelo.h"

namespace trameli {
namespace {

constexpr std::uint64_t Semi = 60;
constexpr Misure UnaMisura{
    .DimensioneCella = 600, .MargineSinistro = 700, .MargineSuperiore = 700, .SpessoreMuri = 4};

class Generazione : public testing::TestWithParam<int> {
protected:
    /// Makes a maze of the level with each seed in turn and has it looked at.
    template <class Esame>
    void PerOgniSeme(Esame esame) {
        const auto [righe, colonne] = DimensioniDi(Livello);
        for (std::uint64_t seme = 0; seme < Semi; ++seme) {
            SCOPED_TRACE(seme);
            CasualeConSeme casuale(seme);
            Tramelo tramelo(righe, colonne, casuale);
            Genera(tramelo, casuale);
            esame(tramelo);
        }
    }

    void Genera(Tramelo& tramelo, Casuale& casuale) {
        const Ricetta ricetta = RicettaDi(Livello);
        tramelo.CreaNuovaGriglia();
        if (ricetta == Ricetta::ScatolaVuota) {
            tramelo.NessunMuro();
        }
        tramelo.NonEliminareMuriEsterni();
        const bool aTempo = Livello >= 5 && Livello <= 7;
        Scelta = aTempo ? TrovaPartenzaArrivoATempo(tramelo, UnaMisura)
                        : TrovaPartenzaArrivo(tramelo, casuale, UnaMisura);
        if (ricetta != Ricetta::ScatolaVuota) {
            tramelo.Scava();
        }
        DopoLoScavo = MuriInterni(tramelo);
        Abbattuti = 0;
        if (ricetta == Ricetta::ScavataEAllargata) {
            tramelo.ContaMuriRimasti();
            Abbattuti = QuantiMuriDaAbbattere(Livello, tramelo.MuriRimasti());
            tramelo.AbbattiAltriMuri(Abbattuti);
        }
    }

    int Livello = GetParam();
    PartenzaArrivo Scelta{};
    int DopoLoScavo = 0;
    std::int16_t Abbattuti = 0;
};

TEST_P(Generazione, HasTwoOpeningsAndEqualFaces) {
    PerOgniSeme([this](const Tramelo& tramelo) {
        const int R = tramelo.Righe();
        const int C = tramelo.Colonne();
        EXPECT_EQ(MuriEsterni(tramelo), 2 * (R + C) - 2);
        EXPECT_FALSE(Muro(tramelo, Scelta.CellaPartenza, Scelta.LatoPartenza));
        EXPECT_FALSE(Muro(tramelo, Scelta.CellaArrivo, Scelta.LatoArrivo));
        PerOgniFaccia(tramelo, [&](Cella cella, Lato lato) {
            if (PortaFuori(tramelo, cella, lato)) {
                EXPECT_TRUE(tramelo.MuriProtetti(cella.Riga, cella.Colonna, lato));
            }
        });
        AttendiFacceUguali(tramelo);
        AttendiBordoIntatto(tramelo);
    });
}

TEST_P(Generazione, StartAndFinishAreOppositeCorners) {
    PerOgniSeme([this](const Tramelo& tramelo) {
        const int R = tramelo.Righe();
        const int C = tramelo.Colonne();
        EXPECT_TRUE(Scelta.CellaPartenza.Riga == 1 || Scelta.CellaPartenza.Riga == R);
        EXPECT_TRUE(Scelta.CellaPartenza.Colonna == 1 || Scelta.CellaPartenza.Colonna == C);
        EXPECT_EQ(Scelta.CellaPartenza.Riga + Scelta.CellaArrivo.Riga, R + 1);
        EXPECT_EQ(Scelta.CellaPartenza.Colonna + Scelta.CellaArrivo.Colonna, C + 1);
        EXPECT_EQ(Scelta.LatoArrivo, Opposto(Scelta.LatoPartenza));
        EXPECT_TRUE(PortaFuori(tramelo, Scelta.CellaPartenza, Scelta.LatoPartenza));
        EXPECT_EQ(Vicina(Scelta.CellaIniziale, Opposto(Scelta.LatoPartenza)), Scelta.CellaPartenza);
    });
}

TEST_P(Generazione, EveryCellCanBeReached) {
    PerOgniSeme(
        [](const Tramelo& tramelo) { EXPECT_EQ(CelleRaggiunte(tramelo), tramelo.NumeroCelle()); });
}

INSTANTIATE_TEST_SUITE_P(Livelli, Generazione, testing::Range(0, 16));

class Scatola : public Generazione {};

TEST_P(Scatola, HasNoInnerWallAndIsNotMerged) {
    PerOgniSeme([](const Tramelo& tramelo) {
        EXPECT_EQ(MuriInterni(tramelo), 0);
        EXPECT_EQ(tramelo.RegioniRimaste(), tramelo.NumeroCelle());
    });
}

INSTANTIATE_TEST_SUITE_P(Livelli, Scatola, testing::Values(0, 5));

class Allargata : public Generazione {};

TEST_P(Allargata, HasFewerWallsByTheRecipesNumber) {
    std::set<int> quanti;
    PerOgniSeme([&](const Tramelo& tramelo) {
        EXPECT_EQ(DopoLoScavo, Livello <= 4 ? 40 : 70);
        EXPECT_EQ(MuriInterni(tramelo), DopoLoScavo - Abbattuti);
        EXPECT_EQ(tramelo.RegioniRimaste(), 1);
        EXPECT_EQ(tramelo.Griglia(tramelo.Righe(), tramelo.Colonne()), 1);
        // The figure the recipes were made for: near the walls that stand, never far off.
        EXPECT_NEAR(tramelo.MuriRimasti(), Livello <= 4 ? 40 : 65, 8);
        quanti.insert(tramelo.MuriRimasti());
    });
    EXPECT_GT(quanti.size(), 3U) << "the figure varies from maze to maze";
}

INSTANTIATE_TEST_SUITE_P(Livelli, Allargata, testing::Values(1, 2, 3, 4, 6, 7));

class Perfetta : public Generazione {};

TEST_P(Perfetta, HasExactlyOneWayBetweenAnyTwoCells) {
    PerOgniSeme([](const Tramelo& tramelo) {
        // All cells joined by one passage fewer than there are cells: a tree.
        EXPECT_EQ(MuriInterniPieni(tramelo) - MuriInterni(tramelo), tramelo.NumeroCelle() - 1);
        EXPECT_EQ(CelleRaggiunte(tramelo), tramelo.NumeroCelle());
        EXPECT_EQ(tramelo.RegioniRimaste(), 1);
        PerOgniFaccia(tramelo, [&](Cella cella, Lato lato) {
            EXPECT_EQ(tramelo.Griglia(cella.Riga, cella.Colonna), 1);
            if (!Muro(tramelo, cella, lato)) {
                EXPECT_TRUE(tramelo.MuriProtetti(cella.Riga, cella.Colonna, lato));
            }
        });
    });
}

TEST_P(Perfetta, EveryInnerWallStandsInOneMazeAndIsGoneInAnother) {
    std::map<std::tuple<int, int, int>, std::set<bool>> visti;
    PerOgniSeme([&](const Tramelo& tramelo) {
        PerOgniFaccia(tramelo, [&](Cella cella, Lato lato) {
            if (!PortaFuori(tramelo, cella, lato)) {
                visti[{cella.Riga, cella.Colonna, static_cast<int>(lato)}].insert(
                    Muro(tramelo, cella, lato));
            }
        });
    });
    for (const auto& [muro, stati] : visti) {
        EXPECT_EQ(stati.size(), 2U)
            << std::get<0>(muro) << ", " << std::get<1>(muro) << ", " << std::get<2>(muro);
    }
}

INSTANTIATE_TEST_SUITE_P(Livelli, Perfetta, testing::Range(8, 16));

TEST(Generazione, TheSmallestMazeKeepsSixInnerWalls) {
    CasualeConSeme casuale(1);
    Tramelo tramelo(3, 4, casuale);
    tramelo.CreaNuovaGriglia();
    EXPECT_EQ(MuriInterni(tramelo), 17);
    tramelo.NonEliminareMuriEsterni();
    int unioni = 0;
    for (; tramelo.RegioniRimaste() > 1; ++unioni) {
        tramelo.SelezionaMuroDaAbbattere();
    }
    EXPECT_EQ(unioni, 11);
    EXPECT_EQ(MuriInterni(tramelo), 6);
}

}  // namespace
}  // namespace trameli
