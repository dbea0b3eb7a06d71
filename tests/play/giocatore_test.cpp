// What no picture of a game shows; the rules of the moves are tested with real keys.
#include "play/giocatore.h"

#include <gtest/gtest.h>

#include "play/disegno_traccia.h"

namespace trameli {
namespace {

TEST(Giocatore, FloorsTheHalfOfAFirstStepAndStopsAtSixteenBits) {
    CasualeConSeme casuale(1);
    const Tramelo senzaMuri(3, 4, casuale);
    Giocatore giocatore;
    giocatore.Colloca(Configurazione(0, 3, 4, {751, 100, 200, 7}), 751);
    giocatore.PrimoPasso(Lato::Basso, senzaMuri);
    EXPECT_EQ(giocatore.PuntoCorrente(), (Punto{475, 575}));

    giocatore.Colloca(Configurazione(0, 3, 4, {30000, 0, 0, 7}), 30000);
    giocatore.PrimoPasso(Lato::Basso, senzaMuri);
    giocatore.Passo(Lato::Basso, senzaMuri);
    giocatore.Passo(Lato::Basso, senzaMuri);
    EXPECT_EQ(giocatore.PuntoCorrente(), (Punto{15000, 32767}));
}

TEST(AspettoTraccia, FillsCellsBackToTheFaceOfTheWall) {
    const auto indietro = [](const Spessori& spessori, std::int16_t cella, double twips) {
        return AspettoDi(spessori, cella, twips, true, 0, 0).Indietro;
    };
    EXPECT_EQ(indietro({16, 7, 43}, 751, 15), 323);  // 751 \ 2 - 105 \ 2
    // Rounded before it is halved: 42.5 goes to the even 42, and 375 - 21 is left.
    EXPECT_EQ(indietro({10, 5, 45}, 750, 8.5), 354);
}

}  // namespace
}  // namespace trameli
