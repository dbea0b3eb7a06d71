// The users of the game: the list in the menu, and which settings reach which file when.
#include <gtest/gtest.h>

#include <algorithm>

#include "game/partita.h"
#include "platform/combo_box.h"
#include "platform/command_button.h"
#include "platform/frame.h"
#include "platform/option_button.h"

namespace trameli {
namespace {

namespace fs = std::filesystem;
using Nomi = std::vector<std::string>;

class Utenti : public testing::Test {
protected:
    Form& Menu() { return partita_.Finestra("FormMenu"); }
    ComboBox& Lista() { return Trova<ComboBox>(Menu(), "Combo1"); }
    std::string Cornice() { return Trova<Frame>(Menu(), "Frame1").Caption(); }
    void ClicLivello(int livello) { ClickOn(Trova<OptionButton>(Menu(), "Option1", livello)); }
    void ClicBottone(int i) { ClickOn(Trova<CommandButton>(Menu(), "Command1", i)); }

    /// The names in the list, the chosen one in brackets.
    Nomi Elenco() {
        Nomi nomi;
        for (int i = 0; i < Lista().ListCount(); ++i) {
            const std::string nome = Lista().List(i);
            nomi.push_back(i == Lista().ListIndex() ? "[" + nome + "]" : nome);
        }
        return nomi;
    }

    /// Goes down the list, or up, with a cursor key.
    void Scorri(int tasto) {
        Lista().SetFocus();
        Tap(Menu(), tasto);
    }

    Disco disco_;
    Partita partita_{disco_};
    const Stato& stato_ = partita_.Gioco.Stato();
};

TEST_F(Utenti, OddNamesAreListedAsTheyAre) {
    fs::create_directories(disco_.Utenti() / "Cartella.ini");
    for (const char* nome : {"Zoë.ini", "_PREDEFINITO.INI", "a.b.ini", "con spazi .ini", ".ini",
                             "appunti.txt", "Anna.ini~", "Anna.ini.new"}) {
        Write(disco_.Utenti() / nome, FileUtente().Bytes());
    }
    partita_.ApriMenu();
    Nomi elenco = Elenco();
    std::sort(elenco.begin(), elenco.end());
    EXPECT_EQ(elenco, (Nomi{"", "Cartella", "Zoë", "[_PREDEFINITO]", "a.b", "con spazi "}));
}

TEST_F(Utenti, CapitalsComeWithTheUserWhoWantsThemStayAndNameTheSameFiles) {
    const FileUtente grande = FileUtente().Con(RigaMaiuscolo, "True").Con(RigaLivello, 10);
    disco_.Scrivi("Ænne é", grande);
    disco_.Scrivi("_predefinito");
    partita_.ApriMenu();
    Scorri(Qt::Key_Down);
    EXPECT_EQ(Elenco(), (Nomi{"_PREDEFINITO", "[ÆNNE É]"}));
    Scorri(Qt::Key_Up);
    EXPECT_EQ(Elenco(), (Nomi{"[_PREDEFINITO]", "ÆNNE É"}));
    EXPECT_EQ(Cornice(), "IMPOSTA IL LIVELLO");
    EXPECT_FALSE(stato_.UsaMaiuscolo);
    Scorri(Qt::Key_Down);
    EXPECT_EQ(stato_.NomeGiocatore, "ÆNNE É");
    ClicLivello(11);
    Partita::Chiudi(Menu());  // which saves as the exit does
    EXPECT_TRUE(partita_.Gioco.Forms().Ended());
    EXPECT_EQ(disco_.Leggi("Ænne é"), grande.Con(RigaLivello, 11).Bytes());
    EXPECT_EQ(disco_.Tutti().size(), 4U);
}

TEST_F(Utenti, ChangeOfUserSavesTheOldOneFirst) {
    const FileUtente anna =
        FileUtente().Con(RigaLivello, 9).Con(RigaAvanti, 16777215).Con(RigaVelocita, 60);
    disco_.Scrivi("Anna", anna);
    disco_.Scrivi("_predefinito");
    partita_.ApriMenu();
    ClicLivello(14);
    EXPECT_EQ(disco_.Leggi("_predefinito"), FileUtente().Bytes());  // a level alone saves nothing
    Scorri(Qt::Key_Down);
    EXPECT_EQ(disco_.Leggi("_predefinito"), FileUtente().Con(RigaLivello, 14).Bytes());
    EXPECT_TRUE(Trova<OptionButton>(Menu(), "Option1", 9).Value());
    EXPECT_EQ(stato_.RigheGriglia, 4);
    ClicLivello(0);
    ClicBottone(1);
    EXPECT_EQ(disco_.Leggi("Anna"), anna.Con(RigaLivello, 0).Bytes());

    // The next run begins with the first user, whoever played last.
    Partita dopo(disco_);
    dopo.ApriMenu();
    EXPECT_EQ(dopo.Gioco.Stato().NomeUtente, "_predefinito");
    EXPECT_EQ(dopo.Gioco.Stato().Livello, 14);
}

TEST_F(Utenti, LinksAreFollowedToSettingsAndIntoTheirFolderAlone) {
    const FileUtente vere = FileUtente().Con(RigaLivello, 9);
    const struct {
        const char* Dove;
        std::string Prima;  // empty: no such file
        std::string Dopo;   // empty: as before
    } casi[] = {
        {"../../../settings.txt", vere.Bytes(), vere.Con(RigaVelocita, 5).Bytes()},
        {"../../../diary.txt", "Dear diary", ""},
        {"../../../numbers.csv", "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16", ""},
        {"../../../long.txt", vere.Bytes() + "and more", ""},
        {"../../../none.txt", "", ""},
        {"new", "", FileUtente().Con(RigaVelocita, 5).Bytes()},
    };
    for (const auto& [dove, prima, dopo] : casi) {
        SCOPED_TRACE(dove);
        const Disco disco;
        disco.Scrivi("_predefinito");
        const fs::path file = disco.Utenti() / dove;
        if (!prima.empty()) {
            Write(file, prima);
        }
        fs::create_symlink(dove, disco.FileDi("Anna"));
        Partita partita(disco);
        ComboBox& lista = Trova<ComboBox>(partita.ApriMenu(), "Combo1");
        lista.ListIndex(1 - lista.ListIndex());
        EXPECT_EQ(partita.Gioco.Stato().Livello, prima == vere.Bytes() ? 9 : 3);
        partita.Gioco.Stato().VelocitaScansione = 5;
        Partita::Chiudi(partita.Finestra("FormMenu"));
        EXPECT_EQ(fs::exists(file) ? BytesOf(file) : "", dopo.empty() ? prima : dopo);
        EXPECT_EQ(partita.Messaggi.Messages.size(), dopo.empty() ? 1U : 0U);
        EXPECT_TRUE(fs::is_symlink(disco.FileDi("Anna")));
    }
}

/// What is in the first user's file at each step from the splash to the exit.
TEST_F(Utenti, FileChangesAtTheSavingStepsOnly) {
    const auto file = [this] { return disco_.Leggi("_predefinito"); };
    partita_.ApriMenu();
    ClicLivello(8);
    EXPECT_EQ(file(), "");  // no file, nothing listed, nothing saved
    ClicBottone(0);
    const FileUtente livello8 = FileUtente().Con(RigaLivello, 8);
    EXPECT_EQ(file(), livello8.Bytes());

    Form& gioco = partita_.Finestra("frmTrm3");
    Tap(gioco, Qt::Key_L, Qt::ControlModifier);
    Partita::Scegli(gioco, "mnuEsci");
    // The menu's timer chooses the user, which saves: only then the thickness is there.
    partita_.Tempo.Advance(0.299);
    EXPECT_EQ(file(), livello8.Bytes());
    partita_.Tempo.Advance(0.001);
    const FileUtente sottile = livello8.Con(RigaSpessore, 2);
    EXPECT_EQ(file(), sottile.Bytes());

    ClicLivello(15);
    Form& menu = Menu();
    ClicBottone(1);
    EXPECT_TRUE(partita_.Gioco.Forms().Ended());
    EXPECT_EQ(file(), sottile.Con(RigaLivello, 15).Bytes());
    Write(disco_.FileDi("_predefinito"), "touched");
    partita_.Tempo.Advance(10);
    Tap(menu, Qt::Key_Space);
    EXPECT_EQ(file(), "touched");
}

TEST_F(Utenti, ASaveMakesTheFolderAgainThatWasRemoved) {
    partita_.ApriLivello(9);
    fs::remove_all(disco_.Radice());
    Partita::Chiudi(partita_.Finestra("frmTrm3"));
    EXPECT_EQ(disco_.Leggi("_predefinito"), FileUtente().Con(RigaLivello, 9).Bytes());
    EXPECT_TRUE(fs::exists(disco_.Leggimi()));
    EXPECT_TRUE(partita_.Messaggi.Messages.empty());
}

}  // namespace
}  // namespace trameli
