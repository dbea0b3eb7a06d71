// Where the keyboard is while a player has one key or two, and that it is never lost.
#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "game/interruttori.h"
#include "platform/command_button.h"

namespace trameli {
namespace {

class OgniTastiera : public ConInterruttori, public testing::WithParamInterface<Caso> {};

INSTANTIATE_TEST_SUITE_P(Casi, OgniTastiera, testing::ValuesIn(CasiDiScansione), NomeCaso);

TEST_P(OgniTastiera, TheKeyboardComesBackFromAClick) {
    const auto [livello, modo] = GetParam();
    const Tavolo tavolo = Apri(livello, modo);
    Tic();
    auto& labirinto = Trova<PictureBox>(tavolo.Form_, "pictureTramelo");
    ClickOn(labirinto);
    EXPECT_TRUE(WidgetOf(labirinto).hasFocus());
    // A key that comes before the timer brings it back itself, and counts.
    Conferma(tavolo.Form_);
    EXPECT_EQ(tavolo.Urti() + tavolo.Passi(), 1);
}

TEST_P(OgniTastiera, ASolvedMazeIsFollowedByTheNextWhateverHappensInBetween) {
    const auto [livello, modo] = GetParam();
    const Tavolo tavolo = Apri(livello, modo);
    const auto clic = [&] { ClickOn(Trova<PictureBox>(tavolo.Form_, "pictureTramelo")); };
    const std::vector<std::function<void()>> disturbi{
        clic,
        [&] {  // away from the button, and back to it
            clic();
            Trova<CommandButton>(tavolo.Form_, "BottoneAvanti").SetFocus();
        },
        [&] { Partita::Scegli(tavolo.Form_, "mnuRicomincia"); }};
    int offerta = 0;
    for (const auto& disturba : disturbi) {
        Risolvi(tavolo, offerta);
        ASSERT_TRUE(tavolo.Risolto());
        EXPECT_EQ(tavolo.Urti(), 0);
        disturba();
        Tic(2);
        ASSERT_TRUE(tavolo.Risolto());
        Spazio(tavolo.Form_);
        ASSERT_FALSE(tavolo.Risolto());
        // The timer runs again, and holds the keyboard.
        clic();
        Tic();
        EXPECT_TRUE(ImmagineTasti(tavolo.Form_).hasFocus());
        offerta = (offerta + (modo == Automatica ? 1 : 0)) % NumeroDirezioni;
    }
    Risolvi(tavolo, offerta);
    Partita::Scegli(tavolo.Form_, "mnuNuovo");
    Tic(2);
    ASSERT_FALSE(tavolo.Risolto());
    offerta = (offerta + (modo == Automatica ? 2 : 0)) % NumeroDirezioni;
    Risolvi(tavolo, offerta);
    EXPECT_TRUE(partita_.Aperta("FormFinale"));
}

TEST_P(OgniTastiera, AKeyThatBouncesOrComesBeforeAnybodyHasSeenAnythingDoesNothing) {
    const auto [livello, modo] = GetParam();
    const Tavolo tavolo = Apri(livello, modo);
    int offerta = 0;
    Risolvi(tavolo, offerta);
    for (const double poi : {0.0, 0.2, 0.2}) {
        partita_.Tempo.Advance(poi);
        Tap(tavolo.Form_, Qt::Key_Space);
        ASSERT_TRUE(tavolo.Risolto());  // the cup is seen
    }
    partita_.Tempo.Advance(DopoUnaNovita);
    Conferma(tavolo.Form_);
    ASSERT_FALSE(tavolo.Risolto());
    // Nor does the next maze begin with a hit.
    Tap(tavolo.Form_, modo == Manuale ? Qt::Key_Return : Qt::Key_Space);
    EXPECT_EQ(tavolo.Urti() + tavolo.Passi(), 0);
}

}  // namespace
}  // namespace trameli
