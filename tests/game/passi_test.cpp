// Walking: real keys in mazes that are read off the picture.
#include <gtest/gtest.h>

#include "game/partita.h"
#include "platform/command_button.h"

namespace trameli {
namespace {

using Nomi = std::vector<std::string>;

/// A maze of some level, and the player before it.
class AlTavolo : public testing::Test {
protected:
    Tavolo Apri(int livello, const FileUtente& file = {}) {
        disco_.Scrivi("_predefinito", file);
        Form& form = partita_.ApriLivello(livello);
        return Tavolo(form, MisureLivelli.at(static_cast<std::size_t>(livello)), file);
    }

    static CommandButton& Avanti(const Tavolo& tavolo) {
        return Trova<CommandButton>(tavolo.Form_, "BottoneAvanti");
    }

    Disco disco_;
    Partita partita_{disco_, {800, 600}, 7};
};

class OgniForm : public AlTavolo, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Livelli, OgniForm, testing::Values(2, 10),
                         [](const auto& voce) { return "Level" + std::to_string(voce.param); });

TEST_P(OgniForm, OnlyTheWayInIsAFirstStep) {
    const Tavolo tavolo = Apri(GetParam());
    const QImage prima = tavolo.Guarda().Immagine();
    const int dentro = Contrario(tavolo.Partenza().Lato);
    int urti = 0;
    for (int verso = 0; verso < 4; ++verso) {
        if (verso != dentro) {
            tavolo.Passo(verso);
            EXPECT_EQ(tavolo.Urti(), ++urti);
            EXPECT_EQ(tavolo.Pannello(3), "Boing " + std::to_string(urti));
        }
    }
    EXPECT_EQ(tavolo.Passi(), 0);
    EXPECT_EQ(tavolo.Guarda().Immagine(), prima);
    tavolo.Passo(dentro);
    EXPECT_EQ(tavolo.Passi(), 1);
    EXPECT_EQ(tavolo.Urti(), 3);
}

TEST_P(OgniForm, WallsAndTheStartOpeningStopThePlayer) {
    const Tavolo tavolo = Apri(GetParam());
    const Posto partenza = tavolo.Partenza();
    const MuriVisti muri = tavolo.Muri();
    const auto passi = tavolo.Soluzione();
    Posto qui = partenza;
    int urti = 0;
    for (std::size_t i = 0; i + 1 < passi.size(); ++i) {
        tavolo.Passo(passi[i]);
        qui = i > 0 ? qui.Dopo({passi[i]}) : qui;
        const QImage prima = tavolo.Guarda().Immagine();
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
    EXPECT_GT(urti, 0);
    EXPECT_FALSE(tavolo.Risolto());  // in the finish cell, but not out of it
    tavolo.Passo(passi.back());
    EXPECT_TRUE(tavolo.Risolto());
}

TEST_P(OgniForm, ReleasesStepWhateverElseIsHeldAndOtherKeysDoNot) {
    const Tavolo tavolo = Apri(GetParam());
    const int dentro = Contrario(tavolo.Partenza().Lato);
    const int freccia = Frecce.at(static_cast<std::size_t>(dentro));
    for (const int altro : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_A,
                            Qt::Key_F1, Qt::Key_Home, Qt::Key_PageDown}) {
        Tap(tavolo.Form_, altro);
    }
    // Digits of the main keyboard are none of the numeric pad.
    for (const int cifra : Tastierino) {
        Tap(tavolo.Form_, cifra);
    }
    EXPECT_EQ(tavolo.Passi() + tavolo.Urti(), 0);
    Release(tavolo.Form_, freccia);  // whose press went elsewhere
    EXPECT_EQ(tavolo.Passi() + tavolo.Urti(), 0);
    Press(tavolo.Form_, freccia);
    EXPECT_EQ(tavolo.Passi(), 0);
    Release(tavolo.Form_, freccia);
    EXPECT_EQ(tavolo.Passi(), 1);
    Tap(tavolo.Form_, Frecce.at(static_cast<std::size_t>(Contrario(dentro))), Qt::ShiftModifier);
    EXPECT_EQ(tavolo.Urti(), 1);
}

TEST_P(OgniForm, SolvedMazeWaitsForTheButton) {
    const Tavolo tavolo = Apri(GetParam());
    tavolo.Risolvi();
    const int passi = tavolo.Passi();
    const QImage prima = tavolo.Guarda().Immagine();
    for (int verso = 0; verso < 4; ++verso) {
        WidgetOf(Avanti(tavolo)).clearFocus();
        tavolo.Passo(verso);
        EXPECT_TRUE(WidgetOf(Avanti(tavolo)).hasFocus());
    }
    WidgetOf(Avanti(tavolo)).clearFocus();
    Tap(tavolo.Form_, Qt::Key_X);
    EXPECT_TRUE(WidgetOf(Avanti(tavolo)).hasFocus());
    EXPECT_EQ(tavolo.Passi(), passi);
    EXPECT_EQ(tavolo.Urti(), 0);
    EXPECT_EQ(tavolo.Guarda().Immagine(), prima);

    // A restart leaves the button, and with it the keys asleep.
    Tap(tavolo.Form_, Qt::Key_R, Qt::ControlModifier);
    EXPECT_TRUE(tavolo.Risolto());
    tavolo.Passo(Contrario(tavolo.Partenza().Lato));
    EXPECT_EQ(tavolo.Passi(), passi);
}

TEST_P(OgniForm, NewMazeCostsNothing) {
    const Tavolo tavolo = Apri(GetParam());
    tavolo.Risolvi();
    Tap(tavolo.Form_, Qt::Key_N, Qt::ControlModifier);  // instead of the button
    EXPECT_FALSE(tavolo.Risolto());
    EXPECT_EQ(tavolo.Coppe(), 1);
    tavolo.Passo(tavolo.Partenza().Lato);
    tavolo.Passo(Contrario(tavolo.Partenza().Lato));
    EXPECT_EQ(tavolo.Passi(), 1);
    EXPECT_EQ(tavolo.Urti(), 1);
    const MuriVisti prima = tavolo.Muri();
    Partita::Scegli(tavolo.Form_, "mnuNuovo");
    EXPECT_EQ(tavolo.Passi(), 0);
    EXPECT_EQ(tavolo.Pannello(3), "boing 0");
    EXPECT_EQ(tavolo.Coppe(), 1);
    EXPECT_FALSE(tavolo.Muri() == prima);
    tavolo.Risolvi();
    EXPECT_EQ(tavolo.Coppe(), 2);
}

TEST_P(OgniForm, RestartKeepsWallsAndCounters) {
    const Tavolo tavolo = Apri(GetParam());
    const QImage prima = tavolo.Guarda().Immagine();
    const auto passi = tavolo.Soluzione();
    tavolo.Passo(tavolo.Partenza().Lato);
    tavolo.Cammina({passi.begin(), passi.end() - 1});
    Partita::Scegli(tavolo.Form_, "mnuRicomincia");
    EXPECT_EQ(tavolo.Guarda().Immagine(), prima);
    EXPECT_EQ(tavolo.Passi(), static_cast<int>(passi.size()) - 1);
    EXPECT_EQ(tavolo.Urti(), 1);
    EXPECT_EQ(tavolo.Pannello(3), "Boing 1");
    // From the start again, with the first step half a cell long.
    tavolo.Risolvi();
    EXPECT_TRUE(tavolo.Risolto());
    EXPECT_EQ(tavolo.Passi(), 2 * static_cast<int>(passi.size()) - 1);
}

TEST_P(OgniForm, LeavingDoesNotCountTheMaze) {
    {
        const Tavolo tavolo = Apri(GetParam());
        tavolo.Risolvi();
        EXPECT_EQ(tavolo.Coppe(), 1);
        Partita::Scegli(tavolo.Form_, "mnuEsci");
    }
    EXPECT_EQ(partita_.Aperte(), Nomi{"FormMenu"});
    const Tavolo tavolo = Apri(GetParam());
    EXPECT_EQ(tavolo.Coppe(), 0);
    EXPECT_EQ(tavolo.Pannello(1), "_predefinito");
    tavolo.Risolvi();
    EXPECT_EQ(tavolo.Coppe(), 1);
}

TEST_P(OgniForm, ArrowsDoNothingForThoseWhoScan) {
    for (const int modo : {1, 2}) {
        const Tavolo tavolo = Apri(GetParam(), FileUtente().Con(RigaModoInput, modo));
        for (int verso = 0; verso < 4; ++verso) {
            Tap(tavolo.Form_, Frecce.at(static_cast<std::size_t>(verso)));
            Tap(tavolo.Form_, Tastierino.at(static_cast<std::size_t>(verso)), Qt::KeypadModifier);
        }
        EXPECT_EQ(tavolo.Passi(), 0) << modo;
        EXPECT_EQ(tavolo.Urti(), 0) << modo;
        Partita::Scegli(tavolo.Form_, "mnuEsci");
    }
}

TEST_F(AlTavolo, ComingBackToTheWindowChangesNothingInTheMaze) {
    const Tavolo tavolo = Apri(4);
    tavolo.Passo(Contrario(tavolo.Partenza().Lato));
    const QImage prima = tavolo.Guarda().Immagine();
    for (int i = 0; i < 3; ++i) {
        Partita::ViaERitorno(tavolo.Form_);
    }
    EXPECT_EQ(tavolo.Guarda().Immagine(), prima);
    EXPECT_EQ(tavolo.Passi(), 1);
}

}  // namespace
}  // namespace trameli
