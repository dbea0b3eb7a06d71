// The users of the game: the list in the menu, and which settings reach which file when.
#include <gtest/gtest.h>

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
    void ClicLivello(int livello) { ClickOn(Trova<OptionButton>(Menu(), "Option1", livello)); }
    void ClicBottone(int i) { ClickOn(Trova<CommandButton>(Menu(), "Command1", i)); }

    /// The names in the list, the chosen one in brackets.
    Nomi Elenco() {
        Nomi nomi;
        for (int i = 0; i < Lista().ListCount(); ++i) {
            nomi.push_back(i == Lista().ListIndex() ? "[" + Lista().List(i) + "]"
                                                    : Lista().List(i));
        }
        return nomi;
    }

    /// Goes up or down the list with the cursor keys.
    void Scorri(int voci) {
        Lista().SetFocus();
        for (int i = 0; i < std::abs(voci); ++i) {
            Tap(Menu(), voci > 0 ? Qt::Key_Down : Qt::Key_Up);
        }
    }

    Disco disco_;
    Partita partita_{disco_};
    const Stato& stato_ = partita_.Gioco.Stato();
};

TEST_F(Utenti, ListIsEmptyAndHiddenOnAFreshMachine) {
    partita_.ApriMenu();
    EXPECT_EQ(Elenco(), Nomi{});
    EXPECT_FALSE(WidgetOf(Lista()).isVisible());
    EXPECT_EQ(stato_.NomeGiocatore, "");
    EXPECT_EQ(disco_.Tutti().size(), 3U);  // two folders and the readme
}

TEST_F(Utenti, OneUserIsChosenButNotShown) {
    disco_.Scrivi("_predefinito");
    partita_.ApriMenu();
    EXPECT_EQ(Elenco(), Nomi{"[_predefinito]"});
    EXPECT_FALSE(WidgetOf(Lista()).isVisible());
    EXPECT_EQ(stato_.NomeGiocatore, "_predefinito");
}

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
    EXPECT_TRUE(WidgetOf(Lista()).isVisible());
    EXPECT_EQ(stato_.NomeUtente, "_PREDEFINITO");
}

TEST_F(Utenti, SavedUnderTheNameThatIsOnTheDisk) {
    fs::create_directories(disco_.Utenti());
    const fs::path file = disco_.Utenti() / "_PREDEFINITO.INI";
    Write(file, FileUtente().Con(RigaLivello, 9).Bytes());
    partita_.ApriMenu(false);
    EXPECT_EQ(stato_.Livello, 9);
    partita_.Tempo.Advance(0.3);
    ClicLivello(2);
    ClicBottone(1);
    EXPECT_EQ(BytesOf(file), FileUtente().Con(RigaLivello, 2).Bytes());
    EXPECT_EQ(disco_.Tutti().size(), 3U);  // no second file; the folders were there, so no readme
}

TEST_F(Utenti, FirstSaveMakesTheFileInSmallLetters) {
    partita_.ApriMenu();
    ClicBottone(1);
    EXPECT_EQ(BytesOf(disco_.Utenti() / "_predefinito.ini"), FileUtente().Bytes());
}

TEST_F(Utenti, CapitalsInTheMenuStillNameTheSameFiles) {
    const FileUtente grande = FileUtente().Con(RigaMaiuscolo, "True");
    disco_.Scrivi("_predefinito", grande);
    disco_.Scrivi("Ænne é", grande.Con(RigaLivello, 10));
    partita_.ApriMenu();
    EXPECT_EQ(Elenco(), (Nomi{"[_PREDEFINITO]", "ÆNNE É"}));
    EXPECT_EQ(Trova<Frame>(Menu(), "Frame1").Caption(), "IMPOSTA IL LIVELLO");
    Scorri(1);
    EXPECT_EQ(stato_.NomeUtente, "ÆNNE É");
    EXPECT_EQ(stato_.NomeGiocatore, "ÆNNE É");
    EXPECT_EQ(stato_.Livello, 10);
    ClicLivello(11);
    ClicBottone(1);
    EXPECT_EQ(disco_.Leggi("Ænne é"), grande.Con(RigaLivello, 11).Bytes());
    EXPECT_EQ(disco_.Tutti().size(), 4U);
}

TEST_F(Utenti, CapitalsComeWithTheUserWhoWantsThemAndStay) {
    disco_.Scrivi("Anna", FileUtente().Con(RigaMaiuscolo, "True"));
    disco_.Scrivi("_predefinito");
    partita_.ApriMenu();
    EXPECT_EQ(Elenco(), (Nomi{"[_predefinito]", "Anna"}));
    EXPECT_EQ(Trova<Frame>(Menu(), "Frame1").Caption(), "Imposta il livello");
    Scorri(1);
    EXPECT_EQ(Elenco(), (Nomi{"_PREDEFINITO", "[ANNA]"}));
    Scorri(-1);
    EXPECT_EQ(Elenco(), (Nomi{"[_PREDEFINITO]", "ANNA"}));
    EXPECT_EQ(Trova<Frame>(Menu(), "Frame1").Caption(), "IMPOSTA IL LIVELLO");
    EXPECT_FALSE(stato_.UsaMaiuscolo);
    EXPECT_EQ(stato_.NomeUtente, "_PREDEFINITO");
}

TEST_F(Utenti, ChangeOfUserSavesTheOldOneFirst) {
    const FileUtente primo;
    const FileUtente anna =
        FileUtente().Con(RigaLivello, 9).Con(RigaAvanti, 16777215).Con(RigaVelocita, 60);
    disco_.Scrivi("Anna", anna);
    disco_.Scrivi("_predefinito", primo);
    partita_.ApriMenu();
    ClicLivello(14);
    EXPECT_EQ(disco_.Leggi("_predefinito"), primo.Bytes());  // a level alone saves nothing
    Scorri(1);
    EXPECT_EQ(disco_.Leggi("_predefinito"), primo.Con(RigaLivello, 14).Bytes());
    EXPECT_EQ(disco_.Leggi("Anna"), anna.Bytes());
    EXPECT_EQ(stato_.Livello, 9);
    EXPECT_TRUE(Trova<OptionButton>(Menu(), "Option1", 9).Value());
    EXPECT_EQ(stato_.RigheGriglia, 4);
    ClicLivello(0);
    ClicBottone(1);
    EXPECT_EQ(disco_.Leggi("_predefinito"), primo.Con(RigaLivello, 14).Bytes());
    EXPECT_EQ(disco_.Leggi("Anna"), anna.Con(RigaLivello, 0).Bytes());
}

TEST_F(Utenti, NextRunBeginsWithTheFirstUserWhoeverPlayedLast) {
    disco_.Scrivi("Anna", FileUtente().Con(RigaLivello, 9));
    disco_.Scrivi("_predefinito", FileUtente().Con(RigaLivello, 1));
    partita_.ApriMenu();
    Scorri(1);
    ClicBottone(1);
    Partita dopo(disco_);
    dopo.ApriMenu();
    EXPECT_EQ(dopo.Gioco.Stato().NomeUtente, "_predefinito");
    EXPECT_EQ(dopo.Gioco.Stato().Livello, 1);
}

TEST_F(Utenti, TimedLevelsStayAsTheFirstUserFoundThem) {
    // Who is chosen in the list neither shuts nor opens them, and keeps his level.
    disco_.Scrivi("Anna", FileUtente().Con(RigaModoInput, 1).Con(RigaLivello, 6));
    disco_.Scrivi("_predefinito");
    partita_.ApriMenu();
    Scorri(1);
    EXPECT_EQ(stato_.Livello, 6);
    EXPECT_TRUE(Trova<OptionButton>(Menu(), "Option1", 6).Enabled());
}

TEST_F(Utenti, TimedLevelsShutByScanningStayShutForOthers) {
    disco_.Scrivi("Anna", FileUtente().Con(RigaLivello, 6));
    disco_.Scrivi("_predefinito", FileUtente().Con(RigaModoInput, 2));
    partita_.ApriMenu();
    Scorri(1);
    EXPECT_EQ(stato_.Livello, 6);
    EXPECT_FALSE(Trova<OptionButton>(Menu(), "Option1", 6).Enabled());
}

/// What is in the first user's file at each step from the splash to the exit and back.
TEST_F(Utenti, FileChangesAtTheSavingStepsOnly) {
    const auto file = [this] { return disco_.Leggi("_predefinito"); };
    Form& menu = partita_.ApriMenu();
    EXPECT_EQ(file(), "");  // no file, nothing listed, nothing saved
    ClicLivello(8);
    EXPECT_EQ(file(), "");
    ClickOn(Trova<CommandButton>(menu, "Command1", 0));
    const FileUtente livello8 = FileUtente().Con(RigaLivello, 8);
    EXPECT_EQ(file(), livello8.Bytes());

    Form& gioco = partita_.Finestra("frmTrm3");
    Tap(gioco, Qt::Key_L, Qt::ControlModifier);
    Tap(gioco, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(file(), livello8.Bytes());
    Partita::Scegli(gioco, "mnuEsci");
    EXPECT_EQ(file(), livello8.Bytes());
    // The menu's timer chooses the user, which saves: now the thickness is there.
    partita_.Tempo.Advance(0.299);
    EXPECT_EQ(file(), livello8.Bytes());
    partita_.Tempo.Advance(0.001);
    const FileUtente sottile = livello8.Con(RigaSpessore, 2);
    EXPECT_EQ(file(), sottile.Bytes());

    ClicLivello(15);
    EXPECT_EQ(file(), sottile.Bytes());
    ClicBottone(1);
    EXPECT_EQ(file(), sottile.Con(RigaLivello, 15).Bytes());
}

TEST_F(Utenti, ClosedByTheDesktopNothingIsSaved) {
    disco_.Scrivi("_predefinito");
    partita_.ApriMenu();
    ClicLivello(12);
    Partita::Chiudi(Menu());
    EXPECT_TRUE(partita_.Gioco.Forms().Ended());
    EXPECT_EQ(disco_.Leggi("_predefinito"), FileUtente().Bytes());
}

TEST_F(Utenti, ExitEndsAtOnce) {
    Form& menu = partita_.ApriMenu(false);  // the timer is still to come
    ClickOn(Trova<CommandButton>(menu, "Command1", 1));
    EXPECT_TRUE(partita_.Gioco.Forms().Ended());
    ASSERT_EQ(partita_.Gioco.Forms().Find("FormMenu"), &menu);  // not even unloaded
    const Nomi dopo = disco_.Tutti();
    Write(disco_.FileDi("_predefinito"), "touched");
    partita_.Tempo.Advance(10);
    Tap(menu, Qt::Key_Space);
    EXPECT_EQ(disco_.Leggi("_predefinito"), "touched");
    EXPECT_EQ(disco_.Tutti(), dopo);
}

TEST_F(Utenti, DamagedFileStaysUntilTheNextSave) {
    fs::create_directories(disco_.Utenti());
    Write(disco_.FileDi("_predefinito"), " 12 \r\nTrue\r\nrubbish");
    partita_.ApriMenu(false);
    EXPECT_EQ(stato_.Livello, 3);
    EXPECT_FALSE(stato_.UsaMaiuscolo);
    EXPECT_EQ(disco_.Leggi("_predefinito"), " 12 \r\nTrue\r\nrubbish");
    partita_.Tempo.Advance(0.3);
    EXPECT_EQ(disco_.Leggi("_predefinito"), FileUtente().Bytes());
}

TEST_F(Utenti, FolderThatCannotBeWrittenIsToldOncePerRun) {
    fs::create_directories(disco_.Radice());
    Write(disco_.Impostazioni(), "a file in the folder's place");
    partita_.ApriMenu();
    EXPECT_EQ(partita_.Messaggi.Messages.size(), 0U);
    Form& gioco = partita_.ApriLivello(9);  // the game goes on
    ASSERT_EQ(partita_.Messaggi.Messages.size(), 1U);
    EXPECT_EQ(partita_.Messaggi.Messages[0].Title, "Trameli");
    EXPECT_EQ(partita_.Messaggi.Messages[0].Text,
              "Impossibile salvare le impostazioni.\n" + disco_.FileDi("_predefinito").string());
    Tap(gioco, Qt::Key_L, Qt::ControlModifier);
    Partita::Scegli(gioco, "mnuEsci");
    partita_.ApriLivello(10);
    EXPECT_EQ(partita_.Messaggi.Messages.size(), 1U);
    EXPECT_EQ(stato_.SpessoreLinee, 2);  // the record lives on in memory
    EXPECT_EQ(BytesOf(disco_.Impostazioni()), "a file in the folder's place");
}

TEST_F(Utenti, FolderInTheFilesPlaceKeepsTheSettingsInMemory) {
    Form& gioco = partita_.ApriLivello(9);
    fs::remove(disco_.FileDi("_predefinito"));
    fs::create_directory(disco_.FileDi("_predefinito"));
    for (const int spessore : {2, 3}) {
        Form& form = spessore == 2 ? gioco : partita_.ApriLivello(9);
        Tap(form, Qt::Key_L, Qt::ControlModifier);
        Partita::Scegli(form, "mnuEsci");
        // It is listed, and so chosen: what cannot be saved is not read back either.
        partita_.Tempo.Advance(0.3);
        EXPECT_EQ(Elenco(), Nomi{"[_predefinito]"});
        EXPECT_EQ(stato_.SpessoreLinee, spessore);
        EXPECT_EQ(stato_.Livello, 9);
        EXPECT_EQ(partita_.Messaggi.Messages.size(), 1U);
    }
    EXPECT_TRUE(fs::is_empty(disco_.FileDi("_predefinito")));
}

}  // namespace
}  // namespace trameli
