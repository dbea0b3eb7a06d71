// Walking: real keys in mazes that are read off the picture.
#include <gtest/gtest.h>

#include "game/partita.h"
#include "platform/command_button.h"

namespace trameli {
namespace {

class Passi : public ConTavolo, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Livelli, Passi, testing::Values(2, 10),
                         [](const auto& voce) { return "Level" + std::to_string(voce.param); });

TEST_P(Passi, WallsAndTheStartOpeningStopThePlayer) {
    const Tavolo tavolo = Apri(GetParam());
    const Posto partenza = tavolo.Partenza();
    const MuriVisti muri = tavolo.Muri();
    const auto passi = tavolo.Soluzione();
    int urti = 0;
    // The only way from the opening is in.
    QImage prima = tavolo.Guarda().Immagine();
    for (int verso = 0; verso < 4; ++verso) {
        if (verso != passi[0]) {
            tavolo.Passo(verso);
            EXPECT_EQ(tavolo.Pannello(3), "Boing " + std::to_string(++urti));
        }
    }
    EXPECT_EQ(tavolo.Guarda().Immagine(), prima);
    EXPECT_EQ(tavolo.Passi(), 0);
    Posto qui = partenza;
    for (std::size_t i = 0; i + 1 < passi.size(); ++i) {
        tavolo.Passo(passi[i]);
        qui = i > 0 ? qui.Dopo({passi[i]}) : qui;
        prima = tavolo.Guarda().Immagine();
        for (int lato = 0; lato < 4; ++lato) {
            const Posto posto{qui.Riga, qui.Colonna, lato};
            if (muri.Ha(posto) || posto == partenza) {
                tavolo.Passo(lato);
                EXPECT_EQ(tavolo.Urti(), ++urti) << "step " << i << " side " << lato;
            }
        }
        EXPECT_EQ(tavolo.Guarda().Immagine(), prima);
        EXPECT_EQ(tavolo.Passi(), static_cast<int>(i) + 1);
    }
    EXPECT_FALSE(tavolo.Risolto());  // in the finish cell, but not out of it
    tavolo.Passo(passi.back());
    EXPECT_TRUE(tavolo.Risolto());
}

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

    // A restart leaves the button, and with it the keys asleep.
    Comando(tavolo, Qt::Key_R);
    EXPECT_TRUE(tavolo.Risolto());
    tavolo.Passo(Contrario(tavolo.Partenza().Lato));
    EXPECT_EQ(tavolo.Passi(), passi);
}

TEST_P(Passi, NewMazeCostsNothing) {
    const Tavolo tavolo = Apri(GetParam());
    tavolo.Risolvi();
    Comando(tavolo, Qt::Key_N);  // instead of the button
    EXPECT_FALSE(tavolo.Risolto());
    EXPECT_EQ(tavolo.Coppe(), 1);
    tavolo.Passo(tavolo.Partenza().Lato);
    tavolo.Passo(Contrario(tavolo.Partenza().Lato));
    EXPECT_EQ(tavolo.Passi() + tavolo.Urti(), 2);
    const MuriVisti prima = tavolo.Muri();
    Partita::Scegli(tavolo.Form_, "mnuNuovo");
    EXPECT_EQ(tavolo.Passi(), 0);
    EXPECT_EQ(tavolo.Pannello(3), "boing 0");
    EXPECT_FALSE(tavolo.Muri() == prima);
    tavolo.Risolvi();
    EXPECT_EQ(tavolo.Coppe(), 2);
}

TEST_P(Passi, RestartKeepsWallsAndCounters) {
    const Tavolo tavolo = Apri(GetParam());
    const QImage prima = tavolo.Guarda().Immagine();
    const auto passi = tavolo.Soluzione();
    tavolo.Passo(tavolo.Partenza().Lato);
    tavolo.Cammina({passi.begin(), passi.end() - 1});
    Partita::Scegli(tavolo.Form_, "mnuRicomincia");
    EXPECT_EQ(tavolo.Guarda().Immagine(), prima);
    EXPECT_EQ(tavolo.Passi(), static_cast<int>(passi.size()) - 1);
    EXPECT_EQ(tavolo.Pannello(3), "Boing 1");
    // From the start again, with the first step half a cell long and all ways new.
    tavolo.Cammina({passi.begin(), passi.end() - 1});
    EXPECT_EQ(MacchiaDi(tavolo.Guarda().Immagine(), tavolo.Colore(RigaRitorno)).Quanti, 0);
    tavolo.Passo(passi.back());
    EXPECT_TRUE(tavolo.Risolto());
    EXPECT_EQ(tavolo.Passi(), 2 * static_cast<int>(passi.size()) - 1);
}

}  // namespace
}  // namespace trameli
