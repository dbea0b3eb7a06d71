#include "engine/partenza_arrivo.h"

#include <gtest/gtest.h>

#include "aiuti.h"
#include "casuale_finto.h"

namespace trameli {
namespace {

// An odd cell and a margin of its own on each side, so that no two terms can stand for each other:
// half a cell is 300, a sixth 100, half a wall 2. The grid is 6 by 9.
constexpr Geometria Dispari{
    .DimensioneCella = 601, .MargineSinistro = 705, .MargineSuperiore = 333};
constexpr double Spessore = 5;

// Start cell and side, finish cell and side, first cell, first point, finish picture.
constexpr PartenzaArrivo Casi[] = {
    {{1, 1}, Lato::Alto, {6, 9}, Lato::Basso, {0, 1}, {1005, 333}, {3941, 5615}},
    {{6, 9}, Lato::Basso, {1, 1}, Lato::Alto, {7, 9}, {5813, 3939}, {-170, 807}},
    {{1, 9}, Lato::Alto, {6, 1}, Lato::Basso, {0, 9}, {5813, 333}, {3941, 807}},
    {{6, 1}, Lato::Basso, {1, 9}, Lato::Alto, {7, 1}, {1005, 3939}, {-170, 5615}},
    {{1, 1}, Lato::Sinistra, {6, 9}, Lato::Destra, {1, 0}, {705, 633}, {3440, 6216}},
    {{6, 9}, Lato::Destra, {1, 1}, Lato::Sinistra, {6, 10}, {6114, 3638}, {435, 104}},
    {{6, 1}, Lato::Sinistra, {1, 9}, Lato::Destra, {6, 0}, {705, 3638}, {435, 6216}},
    {{1, 9}, Lato::Destra, {6, 1}, Lato::Sinistra, {1, 10}, {6114, 633}, {3440, 104}},
};

void AttendiUguale(const PartenzaArrivo& scelta, const PartenzaArrivo& attesa) {
    EXPECT_EQ(scelta.CellaPartenza, attesa.CellaPartenza);
    EXPECT_EQ(scelta.LatoPartenza, attesa.LatoPartenza);
    EXPECT_EQ(scelta.CellaArrivo, attesa.CellaArrivo);
    EXPECT_EQ(scelta.LatoArrivo, attesa.LatoArrivo);
    EXPECT_EQ(scelta.CellaIniziale, attesa.CellaIniziale);
    EXPECT_EQ(scelta.PuntoIniziale, attesa.PuntoIniziale);
    EXPECT_EQ(scelta.PosizioneArrivo, attesa.PosizioneArrivo);
}

/// All walls stand but the two openings, and all outside walls are protected.
void AttendiAperture(const Tramelo& tramelo, const PartenzaArrivo& scelta) {
    PerOgniFaccia(tramelo, [&](Cella cella, Lato lato) {
        const bool aperto = (cella == scelta.CellaPartenza && lato == scelta.LatoPartenza) ||
                            (cella == scelta.CellaArrivo && lato == scelta.LatoArrivo);
        EXPECT_EQ(tramelo.Muri(cella.Riga, cella.Colonna, lato), !aperto);
        EXPECT_EQ(tramelo.MuriProtetti(cella.Riga, cella.Colonna, lato),
                  PortaFuori(tramelo, cella, lato));
    });
}

TEST(TrovaPartenzaArrivo, ChoosesByOneDrawAndOpensTwoWalls) {
    for (int k = 0; k < NumeroConfigurazioni; ++k) {
        SCOPED_TRACE(k);
        // The first and the last draw that mean this configuration.
        for (const float u :
             {static_cast<float>(k) / 8, static_cast<float>(k + 1) / 8 - 0x1p-24F}) {
            CasualeFinto casuale({u, 0.0F});
            Tramelo tramelo(6, 9, casuale);
            tramelo.CreaNuovaGriglia();
            tramelo.NonEliminareMuriEsterni();
            AttendiUguale(TrovaPartenzaArrivo(tramelo, casuale, Dispari, Spessore), Casi[k]);
            EXPECT_EQ(casuale.Rimasti(), 1U);
            AttendiAperture(tramelo, Casi[k]);
        }
    }
}

TEST(TrovaPartenzaArrivoATempo, AlwaysLeadsDownWithoutADraw) {
    CasualeFinto casuale;
    Tramelo tramelo(8, 11, casuale);
    tramelo.CreaNuovaGriglia();
    tramelo.NonEliminareMuriEsterni();
    const PartenzaArrivo attesa{{1, 1}, Lato::Alto,  {8, 11},     Lato::Basso,
                                {0, 1}, {1005, 333}, {5143, 6720}};
    AttendiUguale(TrovaPartenzaArrivoATempo(tramelo, Dispari, Spessore), attesa);
    AttendiAperture(tramelo, attesa);
}

// Halves go to the even neighbour, and the rest of a halved thickness is cut off.
TEST(SpessoreMuri, IsRoundedBeforeItIsHalved) {
    struct {
        double Spessore;
        Posizione Immagine;
        int SinistraATempo;
        int LatoImmagine;
    } const casi[] = {
        {0, {1840, 1951}, 6051, 400},  {2.5, {1841, 1952}, 6054, 398},
        {3, {1841, 1952}, 6054, 398},  {3.5, {1842, 1953}, 6054, 396},
        {12, {1846, 1957}, 6063, 392},
    };
    for (const auto& [spessore, immagine, sinistraATempo, latoImmagine] : casi) {
        SCOPED_TRACE(spessore);
        constexpr Geometria geometria{600, 51, 40};
        EXPECT_EQ(Configurazione(0, 3, 4, geometria, spessore).PosizioneArrivo, immagine);
        EXPECT_EQ(LatoArrivoImmagine(600, spessore), latoImmagine);
        CasualeFinto casuale;
        Tramelo tramelo(3, 4, casuale);
        EXPECT_EQ(TrovaPartenzaArrivoATempo(tramelo, geometria, spessore).PosizioneArrivo.Sinistra,
                  sinistraATempo);
    }
}

}  // namespace
}  // namespace trameli
