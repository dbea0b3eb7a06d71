// Walking: real keys in mazes that are read off the picture.
#include <gtest/gtest.h>

#include "game/partita.h"
#include "platform/command_button.h"

namespace trameli {
namespace {

class Passi : public ConTavolo, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Livelli, Passi, testing::Values(2, 10), NomeLivello);

TEST_P(Passi, ReleasesStepWhateverElseIsHeldAndOtherKeysDoNot) {
    const Tavolo tavolo = Apri(GetParam());
    const int dentro = Contrario(tavolo.Partenza().Lato);
    const int freccia = Frecce.at(static_cast<std::size_t>(dentro));
    // Digits of the main keyboard are none of the numeric pad.
    for (const int altro : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_A,
                            Qt::Key_Home, Qt::Key_2, Qt::Key_4, Qt::Key_6, Qt::Key_8}) {
        Tap(tavolo.Form_, altro);
    }
    Release(tavolo.Form_, freccia);  // whose press went elsewhere
    EXPECT_EQ(tavolo.Passi() + tavolo.Urti(), 0);
    Press(tavolo.Form_, freccia);
    EXPECT_EQ(tavolo.Passi(), 0);
    Release(tavolo.Form_, freccia);
    EXPECT_EQ(tavolo.Passi(), 1);
    Tap(tavolo.Form_, Frecce.at(static_cast<std::size_t>(Contrario(dentro))), Qt::ShiftModifier);
    EXPECT_EQ(tavolo.Urti(), 1);
}

TEST_P(Passi, NoWallLetsTheSymbolThrough) {
    const Tavolo tavolo = Apri(GetParam());
    const MuriVisti muri = tavolo.Muri();
    Posto qui = tavolo.Partenza();
    std::vector<int> passi = tavolo.Soluzione();
    passi.pop_back();
    int urti = 0;
    for (std::size_t i = 0; i < passi.size(); ++i) {
        tavolo.Passo(passi[i]);
        qui = i > 0 ? qui.Dopo({passi[i]}) : qui;
        for (int verso = 0; verso < 4; ++verso) {
            if (muri.Ha({qui.Riga, qui.Colonna, verso})) {
                tavolo.Passo(verso);
                ++urti;
            }
        }
        ASSERT_EQ(tavolo.Urti(), urti);
        ASSERT_EQ(tavolo.Passi(), static_cast<int>(i) + 1);
    }
}

TEST_P(Passi, SolvedMazeWaitsForTheButton) {
    const Tavolo tavolo = Apri(GetParam());
    tavolo.Risolvi();
    const int passi = tavolo.Passi();
    const QImage prima = tavolo.Guarda().Immagine();
    QWidget& avanti = WidgetOf(Trova<CommandButton>(tavolo.Form_, "BottoneAvanti"));
    for (const int tasto : {Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_X}) {
        avanti.clearFocus();
        Tap(tavolo.Form_, tasto);
        EXPECT_TRUE(avanti.hasFocus());
    }
    EXPECT_EQ(tavolo.Passi(), passi);
    EXPECT_EQ(tavolo.Urti(), 0);
    EXPECT_EQ(tavolo.Guarda().Immagine(), prima);
}

}  // namespace
}  // namespace trameli
