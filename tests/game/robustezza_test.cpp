// Players who press everything at any time, and disks that fail.
#include <gtest/gtest.h>

#include <optional>

#include "game/partita.h"
#include "platform/combo_box.h"
#include "platform/command_button.h"
#include "platform/option_button.h"

namespace trameli {
namespace {

namespace fs = std::filesystem;
using Nomi = std::vector<std::string>;

/// The first form shows itself for half a second before its maze. In the middle of it:
class MezzoSecondo : public testing::Test {
protected:
    /// Opens the first form's level with `azione` in the middle of the wait; false if the form is
    /// gone afterwards.
    bool Apri(const std::function<void(Form&)>& azione) {
        bool inAttesa = false;
        partita_.ApriMenu();
        partita_.Tempo.In(0.25, [&] {
            inAttesa = partita_.Tempo.WaitsUnderWay() == 1;
            azione(partita_.Finestra("frmTrm0"));
        });
        Form& menu = partita_.Finestra("FormMenu");
        ClickOn(Trova<OptionButton>(menu, "Option1", 4));
        ClickOn(Trova<CommandButton>(menu, "Command1", 0));
        EXPECT_TRUE(inAttesa);
        EXPECT_EQ(partita_.Tempo.WaitsUnderWay(), 0);
        return partita_.Aperta("frmTrm0");
    }
    Tavolo IlTavolo() { return Tavolo(partita_.Finestra("frmTrm0"), {6, 9}); }

    /// The maze that the same draws give when nobody disturbs.
    static MuriVisti Indisturbato() {
        const Disco disco;
        Partita partita(disco);
        return Tavolo(partita.ApriLivello(4), {6, 9}).Muri();
    }

    Disco disco_;
    Partita partita_{disco_};
};

TEST_F(MezzoSecondo, NewMazeIsMadeAtOnceAndAgainAfterTheWait) {
    std::optional<MuriVisti> primo;
    ASSERT_TRUE(Apri([&](Form& form) {
        Tap(form, Qt::Key_N, Qt::ControlModifier);
        primo = IlTavolo().Muri();
    }));
    EXPECT_TRUE(primo == Indisturbato());
    EXPECT_FALSE(IlTavolo().Muri() == *primo);
    IlTavolo().Risolvi();
    EXPECT_TRUE(IlTavolo().Risolto());
}

TEST_F(MezzoSecondo, OtherEntriesKeysAndWindowsDoNotDisturbTheMaze) {
    ASSERT_TRUE(Apri([](Form& form) {
        // Twice for bars and back: bars would draw their picture before the maze.
        for (const int lettera :
             {Qt::Key_R, Qt::Key_L, Qt::Key_C, Qt::Key_M, Qt::Key_M, Qt::Key_S}) {
            Tap(form, lettera, Qt::ControlModifier);
        }
        for (const int freccia : Frecce) {
            Tap(form, freccia);
        }
        Tap(form, Qt::Key_Space);
        Partita::ViaERitorno(form);  // which makes no second maze
    }));
    const Tavolo tavolo = IlTavolo();
    EXPECT_TRUE(tavolo.Muri() == Indisturbato());
    EXPECT_EQ(tavolo.Passi() + tavolo.Urti(), 0);
    tavolo.Risolvi();
    EXPECT_TRUE(tavolo.Risolto());
}

TEST_F(MezzoSecondo, LeavingEndsInTheMenu) {
    EXPECT_FALSE(Apri([](Form& form) { Partita::Scegli(form, "mnuEsci"); }));
    EXPECT_EQ(partita_.Aperte(), Nomi{"FormMenu"});
    partita_.Tempo.Advance(5);
    EXPECT_EQ(partita_.Aperte(), Nomi{"FormMenu"});
}

TEST_F(MezzoSecondo, LeavingAndComingBackPlaysOneGame) {
    // The menu, its timer and a second game of the same form, all inside the first one's wait.
    Apri([this](Form& form) {
        Partita::Scegli(form, "mnuEsci");
        partita_.Tempo.Advance(0.3);
        ClickOn(Trova<CommandButton>(partita_.Finestra("FormMenu"), "Command1", 0));
    });
    ASSERT_EQ(partita_.Aperte(), Nomi{"frmTrm0"});
    IlTavolo().Risolvi();
    EXPECT_TRUE(IlTavolo().Risolto());
}

TEST_F(MezzoSecondo, ClosingTheWindowEndsTheGame) {
    EXPECT_FALSE(Apri([](Form& form) { Partita::Chiudi(form); }));
    EXPECT_TRUE(partita_.Gioco.Forms().Ended());
    EXPECT_EQ(partita_.Aperte(), Nomi{});
}

TEST_F(MezzoSecondo, EndOfTheProgramStopsTheWait) {
    Apri([this](Form&) { partita_.Gioco.Forms().End(); });
    EXPECT_FALSE(partita_.Gioco.Stato().TrameloDisegnato);
}

TEST(TracciaPiena, WalksOnAndLosesNothingThatIsSeen) {
    const Disco disco;
    Partita partita(disco, {800, 600});
    const Tavolo tavolo(partita.ApriLivello(15), {15, 20});
    const Posto partenza = tavolo.Partenza();
    const auto passi = tavolo.Soluzione();
    // One cell away from the start cell, and from there to and fro.
    tavolo.Cammina({passi[0], passi[1]});
    constexpr int Passi = 1100;
    for (int i = 0; i < Passi; ++i) {
        tavolo.Passo(i % 2 == 0 ? passi[2] : Contrario(passi[2]));
    }
    EXPECT_EQ(tavolo.Passi(), Passi + 2);
    const Posto primo{partenza.Riga, partenza.Colonna, passi[1]};
    const Posto secondo = primo.Dopo({passi[1]}, passi[2]);
    EXPECT_EQ(tavolo.Guarda().Muro(partenza), tavolo.Colore(RigaAvanti));
    EXPECT_EQ(tavolo.Guarda().Muro(primo), tavolo.Colore(RigaAvanti));
    // An even number of walks through the last passage.
    EXPECT_EQ(tavolo.Guarda().Muro(secondo), tavolo.Colore(RigaRitorno));
    tavolo.Passo(passi[2]);
    EXPECT_EQ(tavolo.Guarda().Muro(secondo), tavolo.Colore(RigaAvanti));
}

TEST(DiscoCheSparisce, LeavesTheGameAndItsSettingsAlone) {
    const Disco disco;
    const FileUtente atteso = FileUtente().Con(RigaLivello, 10).Con(RigaSpessore, 2);
    disco.Scrivi("_predefinito", atteso.Con(RigaSpessore, 1));
    Partita partita(disco, {800, 600});
    Form& form = partita.ApriLivello(10);
    fs::remove_all(disco.Radice());
    Tap(form, Qt::Key_L, Qt::ControlModifier);
    Partita::Scegli(form, "mnuEsci");
    partita.Tempo.Advance(0.3);
    EXPECT_EQ(Trova<ComboBox>(partita.Finestra("FormMenu"), "Combo1").ListCount(), 0);
    // Something else took the folder's place.
    Write(disco.Radice(), "");
    ClickOn(Trova<CommandButton>(partita.Finestra("FormMenu"), "Command1", 0));
    EXPECT_EQ(partita.Aperte(), Nomi{"frmTrm3"});
    EXPECT_EQ(partita.Messaggi.Messages.size(), 1U);
    Partita::Scegli(partita.Finestra("frmTrm3"), "mnuEsci");
    partita.Tempo.Advance(0.3);
    // And back again: the next save finds its place.
    fs::remove(disco.Radice());
    fs::create_directories(disco.Utenti());
    ClickOn(Trova<CommandButton>(partita.Finestra("FormMenu"), "Command1", 1));
    EXPECT_EQ(disco.Leggi("_predefinito"), atteso.Bytes());
    EXPECT_EQ(partita.Messaggi.Messages.size(), 1U);
}

/// The message box of a failed save stays open while the window under it goes.
TEST(MessaggioAperto, OutlivesItsWindow) {
    const Disco disco;
    fs::create_directories(disco.Radice());
    Write(disco.Impostazioni(), "");
    for (const int bottone : {0, 1}) {
        Partita partita(disco, {800, 600});
        Form& menu = partita.ApriMenu();
        partita.Messaggi.During = [&] {
            partita.Tempo.Advance(1);
            Partita::Chiudi(menu);
        };
        ClickOn(Trova<CommandButton>(menu, "Command1", bottone));
        EXPECT_EQ(partita.Messaggi.Messages.size(), 1U);
        EXPECT_TRUE(partita.Gioco.Forms().Ended());
        EXPECT_EQ(partita.Aperte(), Nomi{});
    }
}

}  // namespace
}  // namespace trameli
