// Players who press everything at any time.
#include <gtest/gtest.h>

#include <functional>

#include "game/partita.h"
#include "platform/command_button.h"

namespace trameli {
namespace {

using Nomi = std::vector<std::string>;

/// The first form shows itself for half a second before its maze. In the middle of it:
class MezzoSecondo : public testing::Test {
protected:
    /// Opens the first form's level with `azione` in the middle of the wait; false if the form is
    /// gone afterwards.
    bool Apri(const std::function<void(Form&)>& azione) {
        if (!partita_.Aperta("FormMenu")) {
            partita_.ApriMenu();
        }
        partita_.Tempo.In(0.3 + 0.25, [&] { azione(partita_.Finestra("frmTrm0")); });
        partita_.AvviaLivello(4);
        return partita_.Aperta("frmTrm0");
    }
    Tavolo IlTavolo() { return Tavolo(partita_.Finestra("frmTrm0"), 4); }

    /// The maze that the same draws give when nobody disturbs.
    static MuriVisti Indisturbato() {
        const Disco disco;
        Partita partita(disco);
        return Tavolo(partita.ApriLivello(4), 4).Muri();
    }

    Disco disco_;
    Partita partita_{disco_};
};

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

TEST_F(MezzoSecondo, CanBeLeftForTheMenuForAnotherGameAndForGood) {
    EXPECT_FALSE(Apri([](Form& form) { Partita::Scegli(form, "mnuEsci"); }));
    partita_.Tempo.Advance(5);
    EXPECT_EQ(partita_.Aperte(), Nomi{"FormMenu"});
    // The menu, its timer and a second game of the same form, all inside the first one's wait.
    Apri([this](Form& form) {
        Partita::Scegli(form, "mnuEsci");
        partita_.Tempo.Advance(0.3);
        ClickOn(Trova<CommandButton>(partita_.Finestra("FormMenu"), "Command1", 0));
    });
    ASSERT_EQ(partita_.Aperte(), Nomi{"frmTrm0"});
    IlTavolo().Risolvi();
    EXPECT_TRUE(IlTavolo().Risolto());
    Partita::Scegli(partita_.Finestra("frmTrm0"), "mnuEsci");
    EXPECT_FALSE(Apri([](Form& form) { Partita::Chiudi(form); }));
    EXPECT_TRUE(partita_.Gioco.Forms().Ended());
}

TEST(TracciaPiena, WalksOnAndLosesNothingThatIsSeen) {
    const Disco disco;
    Partita partita(disco, {800, 600});
    const Tavolo tavolo(partita.ApriLivello(15), 15);
    const auto passi = tavolo.Soluzione();
    // One cell away from the start cell, and from there to and fro.
    const Posto secondo = tavolo.Partenza().Dopo({passi[1]}, passi[2]);
    tavolo.Cammina({passi[0], passi[1]});
    for (int i = 0; i < 1100; ++i) {
        tavolo.Passo(i % 2 == 0 ? passi[2] : Contrario(passi[2]));
    }
    // An even number of walks through the last passage, and an odd one.
    EXPECT_EQ(tavolo.Guarda().Muro(secondo), tavolo.Colore(RigaRitorno));
    tavolo.Passo(passi[2]);
    EXPECT_EQ(tavolo.Guarda().Muro(secondo), tavolo.Colore(RigaAvanti));
}

}  // namespace
}  // namespace trameli
