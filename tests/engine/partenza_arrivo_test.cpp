#include "engine/partenza_arrivo.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>

#include "aiuti.h"
#include "casuale_finto.h"

namespace trameli {
namespace {

// An odd cell and a margin of its own on each side, so that no two terms can stand for each other:
// half a cell is 300, a sixth 100, half a wall 2. The grid is 6 by 9.
constexpr Misure Dispari{
    .DimensioneCella = 601, .MargineSinistro = 705, .MargineSuperiore = 333, .SpessoreMuri = 5};

struct Caso {
    int K;
    Cella Partenza;
    Lato LatoPartenza;
    Cella Arrivo;
    Lato LatoArrivo;
    Cella Iniziale;
    Punto Primo;
    Posizione Immagine;
};

constexpr std::array<Caso, 8> Casi{{
    {0, {1, 1}, Lato::Alto, {6, 9}, Lato::Basso, {0, 1}, {1005, 333}, {3941, 5615}},
    {1, {6, 9}, Lato::Basso, {1, 1}, Lato::Alto, {7, 9}, {5813, 3939}, {-170, 807}},
    {2, {1, 9}, Lato::Alto, {6, 1}, Lato::Basso, {0, 9}, {5813, 333}, {3941, 807}},
    {3, {6, 1}, Lato::Basso, {1, 9}, Lato::Alto, {7, 1}, {1005, 3939}, {-170, 5615}},
    {4, {1, 1}, Lato::Sinistra, {6, 9}, Lato::Destra, {1, 0}, {705, 633}, {3440, 6216}},
    {5, {6, 9}, Lato::Destra, {1, 1}, Lato::Sinistra, {6, 10}, {6114, 3638}, {435, 104}},
    {6, {6, 1}, Lato::Sinistra, {1, 9}, Lato::Destra, {6, 0}, {705, 3638}, {435, 6216}},
    {7, {1, 9}, Lato::Destra, {6, 1}, Lato::Sinistra, {1, 10}, {6114, 633}, {3440, 104}},
}};

void AttendiCaso(const PartenzaArrivo& scelta, const Caso& caso) {
    EXPECT_EQ(scelta.CellaPartenza, caso.Partenza);
    EXPECT_EQ(scelta.LatoPartenza, caso.LatoPartenza);
    EXPECT_EQ(scelta.CellaArrivo, caso.Arrivo);
    EXPECT_EQ(scelta.LatoArrivo, caso.LatoArrivo);
    EXPECT_EQ(scelta.CellaIniziale, caso.Iniziale);
    EXPECT_EQ(scelta.PuntoIniziale.X, caso.Primo.X);
    EXPECT_EQ(scelta.PuntoIniziale.Y, caso.Primo.Y);
    EXPECT_EQ(scelta.PosizioneArrivo.Alto, caso.Immagine.Alto);
    EXPECT_EQ(scelta.PosizioneArrivo.Sinistra, caso.Immagine.Sinistra);
}

class Configurazioni : public testing::TestWithParam<Caso> {};

TEST_P(Configurazioni, IsChosenByOneDrawAndOpensTwoWalls) {
    const Caso& caso = GetParam();
    // The first and the last draw that mean this configuration.
    for (const float u :
         {static_cast<float>(caso.K) / 8, static_cast<float>(caso.K + 1) / 8 - 0x1p-24F}) {
        CasualeFinto casuale({u, 0.99F, 0.0F});
        Tramelo tramelo(6, 9, casuale);
        tramelo.CreaNuovaGriglia();
        tramelo.NonEliminareMuriEsterni();
        AttendiCaso(TrovaPartenzaArrivo(tramelo, casuale, Dispari), caso);
        EXPECT_EQ(casuale.Estratti(), 1U);
        PerOgniFaccia(tramelo, [&](Cella cella, Lato lato) {
            const bool aperto = (cella == caso.Partenza && lato == caso.LatoPartenza) ||
                                (cella == caso.Arrivo && lato == caso.LatoArrivo);
            EXPECT_EQ(Muro(tramelo, cella, lato), !aperto);
            EXPECT_EQ(tramelo.MuriProtetti(cella.Riga, cella.Colonna, lato),
                      PortaFuori(tramelo, cella, lato));
        });
    }
}

INSTANTIATE_TEST_SUITE_P(Tabella, Configurazioni, testing::ValuesIn(Casi));

TEST(Configurazione, OthersAreRefused) {
    EXPECT_EQ(NumeroConfigurazioni, 8);
    EXPECT_THROW(Configurazione(8, 6, 9, Dispari), std::out_of_range);
    EXPECT_THROW(Configurazione(-1, 6, 9, Dispari), std::out_of_range);
}

struct CasoSpessore {
    double Spessore;
    std::int16_t
        Alto;  // of configuration 0 with cells of 600 on the 3 by 4 grid, margins 51 and 40
    std::int16_t Sinistra;
    std::int16_t SinistraATempo;
    std::int16_t Lato;
};

class Spessori : public testing::TestWithParam<CasoSpessore> {};

// Halves go to the even neighbour, and the rest of a halved thickness is cut off.
TEST_P(Spessori, AreRoundedBeforeTheyAreHalved) {
    const CasoSpessore& caso = GetParam();
    const Misure misure{.DimensioneCella = 600,
                        .MargineSinistro = 51,
                        .MargineSuperiore = 40,
                        .SpessoreMuri = caso.Spessore};
    const PartenzaArrivo scelta = Configurazione(0, 3, 4, misure);
    EXPECT_EQ(scelta.PosizioneArrivo.Alto, caso.Alto);
    EXPECT_EQ(scelta.PosizioneArrivo.Sinistra, caso.Sinistra);
    EXPECT_EQ(LatoArrivoImmagine(misure), caso.Lato);

    CasualeFinto casuale;
    Tramelo tramelo(8, 11, casuale);
    tramelo.CreaNuovaGriglia();
    EXPECT_EQ(TrovaPartenzaArrivoATempo(tramelo, misure).PosizioneArrivo.Sinistra,
              caso.SinistraATempo);
}

INSTANTIATE_TEST_SUITE_P(Misure, Spessori,
                         testing::Values(CasoSpessore{0, 1840, 1951, 6051, 400},
                                         CasoSpessore{1, 1840, 1951, 6052, 398},
                                         CasoSpessore{2.5, 1841, 1952, 6054, 398},
                                         CasoSpessore{3, 1841, 1952, 6054, 398},
                                         CasoSpessore{3.5, 1842, 1953, 6054, 396},
                                         CasoSpessore{4.5, 1842, 1953, 6056, 396},
                                         CasoSpessore{5.5, 1843, 1954, 6056, 396},
                                         CasoSpessore{6.4, 1843, 1954, 6057, 396},
                                         CasoSpessore{12, 1846, 1957, 6063, 392}));

TEST(LatoArrivoImmagine, SmallAndImpossibleCells) {
    const auto lato = [](std::int16_t cella, double spessore) {
        return LatoArrivoImmagine({cella, 0, 0, spessore});
    };
    EXPECT_EQ(lato(601, 5), 396);
    EXPECT_EQ(lato(100, 1.5), 64);
    EXPECT_EQ(lato(10, 8), 0);
    EXPECT_EQ(lato(5, 8), -2);
    EXPECT_EQ(lato(32767, 0), 21844);
    EXPECT_EQ(lato(32767, -1e6), 32767);
}

TEST(Configurazione, SmallCells) {
    const Misure misure{
        .DimensioneCella = 5, .MargineSinistro = 0, .MargineSuperiore = 0, .SpessoreMuri = 1};
    EXPECT_EQ(Configurazione(0, 3, 4, misure).PuntoIniziale, (Punto{2, 0}));
    EXPECT_EQ(Configurazione(0, 3, 4, misure).PosizioneArrivo, (Posizione{15, 15}));
    EXPECT_EQ(Configurazione(7, 3, 4, misure).PosizioneArrivo, (Posizione{10, -5}));
}

TEST(Configurazione, StopsAtTheLimitsOf16Bits) {
    const Misure grandi{.DimensioneCella = 32767,
                        .MargineSinistro = -32768,
                        .MargineSuperiore = -32768,
                        .SpessoreMuri = 4};
    EXPECT_EQ(Configurazione(1, 15, 20, grandi).PuntoIniziale, (Punto{32767, 32767}));
    EXPECT_EQ(Configurazione(1, 15, 20, grandi).PosizioneArrivo.Alto, -32768);
    EXPECT_EQ(Configurazione(5, 15, 20, grandi).PosizioneArrivo.Sinistra, -32768);
    const Misure spesse{
        .DimensioneCella = 600, .MargineSinistro = 0, .MargineSuperiore = 0, .SpessoreMuri = 1e12};
    EXPECT_EQ(Configurazione(0, 6, 9, spesse).PosizioneArrivo, (Posizione{32767, 32767}));
}

TEST(TrovaPartenzaArrivoATempo, AlwaysLeadsDownWithoutADraw) {
    CasualeFinto casuale;
    Tramelo tramelo(8, 11, casuale);
    tramelo.CreaNuovaGriglia();
    tramelo.NonEliminareMuriEsterni();
    const PartenzaArrivo scelta = TrovaPartenzaArrivoATempo(tramelo, Dispari);
    AttendiCaso(scelta,
                {0, {1, 1}, Lato::Alto, {8, 11}, Lato::Basso, {0, 1}, {1005, 333}, {5143, 6720}});
    EXPECT_FALSE(tramelo.Muri(1, 1, Lato::Alto));
    EXPECT_FALSE(tramelo.Muri(8, 11, Lato::Basso));
    EXPECT_EQ(MuriEsterni(tramelo), 36);
    EXPECT_EQ(MuriInterni(tramelo), MuriInterniPieni(tramelo));
    EXPECT_TRUE(tramelo.MuriProtetti(1, 1, Lato::Alto));
}

TEST(IndiceImmagineArrivo, IsOneDrawOverAllPictures) {
    CasualeFinto casuale({0.0F, 0.0499F, 0.05F, 0x1.fffffep-1F, 0.9F});
    EXPECT_EQ(IndiceImmagineArrivo(casuale, 20), 0);
    EXPECT_EQ(IndiceImmagineArrivo(casuale, 20), 0);
    EXPECT_EQ(IndiceImmagineArrivo(casuale, 20), 1);
    EXPECT_EQ(IndiceImmagineArrivo(casuale, 20), 19);
    EXPECT_EQ(IndiceImmagineArrivo(casuale, 1), 0);
    EXPECT_EQ(casuale.Rimasti(), 0U);
}

}  // namespace
}  // namespace trameli
