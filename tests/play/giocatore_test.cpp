// What no picture of a game shows; the rules of the moves are tested with real keys.
#include "play/giocatore.h"

#include <gtest/gtest.h>

namespace trameli {
namespace {

TEST(Giocatore, FloorsTheHalfOfAFirstStepAndStopsAtSixteenBits) {
    CasualeConSeme casuale(1);
    const Tramelo senzaMuri(3, 4, casuale);
    Giocatore giocatore;
    giocatore.Colloca(Configurazione(0, 3, 4, {751, 100, 200, 7}), 751);
    giocatore.PrimoPasso(Lato::Basso, senzaMuri);
    EXPECT_EQ(giocatore.PuntoCorrente(), (Punto{475, 575}));
    giocatore.Passo(Lato::Destra, senzaMuri);
    EXPECT_EQ(giocatore.PuntoCorrente(), (Punto{1226, 575}));

    giocatore.Colloca(Configurazione(0, 3, 4, {30000, 0, 0, 7}), 30000);
    giocatore.PrimoPasso(Lato::Basso, senzaMuri);
    giocatore.Passo(Lato::Basso, senzaMuri);
    giocatore.Passo(Lato::Basso, senzaMuri);
    EXPECT_EQ(giocatore.PuntoCorrente(), (Punto{15000, 32767}));
}

}  // namespace
}  // namespace trameli
