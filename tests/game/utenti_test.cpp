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
    OptionButton& Opzione(int livello) { return Trova<OptionButton>(Menu(), "Option1", livello); }
    std::string Cornice() { return Trova<Frame>(Menu(), "Frame1").Caption(); }
    void ClicLivello(int livello) { ClickOn(Opzione(livello)); }
    void ClicBottone(int i) { ClickOn(Trova<CommandButton>(Menu(), "Command1", i)); }

    /// The names in the list, the chosen one in brackets.
    static Nomi Elenco(const ComboBox& lista) {
        Nomi nomi;
        for (int i = 0; i < lista.ListCount(); ++i) {
            const std::string nome = lista.List(i);
            nomi.push_back(i == lista.ListIndex() ? "[" + nome + "]" : nome);
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

TEST_F(Utenti, ListIsShownFromTwoUsersOn) {
    struct {
        std::string Nuovo;  // a user more, or none yet
        Nomi Elenco;
        bool Visibile;
    } const casi[] = {
        {"", {}, false},
        {"_predefinito", {"[_predefinito]"}, false},
        {"Anna", {"[_predefinito]", "Anna"}, true},
    };
    for (const auto& [nuovo, elenco, visibile] : casi) {
        if (!nuovo.empty()) {
            disco_.Scrivi(nuovo);
        }
        Partita partita(disco_);
        const auto& lista = Trova<ComboBox>(partita.ApriMenu(), "Combo1");
        EXPECT_EQ(Elenco(lista), elenco);
        EXPECT_EQ(WidgetOf(lista).isVisible(), visibile);
        EXPECT_EQ(partita.Gioco.Stato().NomeGiocatore, elenco.empty() ? "" : "_predefinito");
    }
}

TEST_F(Utenti, OddNamesAreListedAsTheyAre) {
    fs::create_directories(disco_.Utenti() / "Cartella.ini");
    for (const char* nome : {"Zoë.ini", "_PREDEFINITO.INI", "a.b.ini", "con spazi .ini", ".ini",
                             "appunti.txt", "Anna.ini~", "Anna.ini.new"}) {
        Write(disco_.Utenti() / nome, FileUtente().Bytes());
    }
    partita_.ApriMenu();
    Nomi elenco = Elenco(Lista());
    std::sort(elenco.begin(), elenco.end());
    EXPECT_EQ(elenco, (Nomi{"", "Cartella", "Zoë", "[_PREDEFINITO]", "a.b", "con spazi "}));
}

TEST_F(Utenti, SavedUnderTheNameThatIsOnTheDisk) {
    fs::create_directories(disco_.Utenti());
    const fs::path file = disco_.Utenti() / "_PREDEFINITO.INI";
    Write(file, FileUtente().Con(RigaLivello, 9).Bytes());
    partita_.ApriMenu();
    EXPECT_EQ(stato_.Livello, 9);
    ClicLivello(2);
    ClicBottone(1);
    EXPECT_EQ(BytesOf(file), FileUtente().Con(RigaLivello, 2).Bytes());
    EXPECT_EQ(disco_.Tutti().size(), 3U);  // no second file; the folders were there, so no readme
}

TEST_F(Utenti, CapitalsComeWithTheUserWhoWantsThemStayAndNameTheSameFiles) {
    const FileUtente grande = FileUtente().Con(RigaMaiuscolo, "True").Con(RigaLivello, 10);
    disco_.Scrivi("Ænne é", grande);
    disco_.Scrivi("_predefinito");
    partita_.ApriMenu();
    EXPECT_EQ(Cornice(), "Imposta il livello");
    Scorri(1);
    EXPECT_EQ(Elenco(Lista()), (Nomi{"_PREDEFINITO", "[ÆNNE É]"}));
    Scorri(-1);
    EXPECT_EQ(Elenco(Lista()), (Nomi{"[_PREDEFINITO]", "ÆNNE É"}));
    EXPECT_EQ(Cornice(), "IMPOSTA IL LIVELLO");
    EXPECT_FALSE(stato_.UsaMaiuscolo);
    EXPECT_EQ(stato_.NomeUtente, "_PREDEFINITO");
    Scorri(1);
    EXPECT_EQ(stato_.NomeGiocatore, "ÆNNE É");
    ClicLivello(11);
    ClicBottone(1);
    EXPECT_EQ(disco_.Leggi("Ænne é"), grande.Con(RigaLivello, 11).Bytes());
    EXPECT_EQ(disco_.Tutti().size(), 4U);

    disco_.Scrivi("_predefinito", grande);
    Partita dopo(disco_);
    EXPECT_EQ(Elenco(Trova<ComboBox>(dopo.ApriMenu(), "Combo1")),
              (Nomi{"[_PREDEFINITO]", "ÆNNE É"}));
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
    EXPECT_TRUE(Opzione(9).Value());
    EXPECT_EQ(stato_.RigheGriglia, 4);
    ClicLivello(0);
    ClicBottone(1);
    EXPECT_EQ(disco_.Leggi("_predefinito"), primo.Con(RigaLivello, 14).Bytes());
    EXPECT_EQ(disco_.Leggi("Anna"), anna.Con(RigaLivello, 0).Bytes());

    // The next run begins with the first user, whoever played last.
    Partita dopo(disco_);
    dopo.ApriMenu();
    EXPECT_EQ(dopo.Gioco.Stato().NomeUtente, "_predefinito");
    EXPECT_EQ(dopo.Gioco.Stato().Livello, 14);
}

TEST_F(Utenti, TimedLevelsStayAsTheFirstUserFoundThem) {
    // Who is chosen in the list neither shuts nor opens them, and keeps his level.
    for (const bool scandisce : {false, true}) {
        disco_.Scrivi("Anna", FileUtente().Con(RigaModoInput, scandisce).Con(RigaLivello, 6));
        disco_.Scrivi("_predefinito", FileUtente().Con(RigaModoInput, scandisce ? 0 : 2));
        Partita partita(disco_);
        Form& menu = partita.ApriMenu();
        Trova<ComboBox>(menu, "Combo1").ListIndex(1);
        EXPECT_EQ(partita.Gioco.Stato().Livello, 6);
        EXPECT_EQ(Trova<OptionButton>(menu, "Option1", 6).Enabled(), scandisce);
    }
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
    ClicBottone(1);
    EXPECT_TRUE(partita_.Gioco.Forms().Ended());
    EXPECT_EQ(disco_.Leggi("_predefinito"), FileUtente().Bytes());
    Write(disco_.FileDi("_predefinito"), "touched");
    partita_.Tempo.Advance(10);
    Tap(menu, Qt::Key_Space);
    EXPECT_EQ(disco_.Leggi("_predefinito"), "touched");
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

TEST_F(Utenti, WhatCannotBeSavedIsToldOncePerRunAndKept) {
    Form& gioco = partita_.ApriLivello(9);
    fs::remove(disco_.FileDi("_predefinito"));
    fs::create_directory(disco_.FileDi("_predefinito"));
    for (const int spessore : {2, 3}) {
        Form& form = spessore == 2 ? gioco : partita_.ApriLivello(9);
        Tap(form, Qt::Key_L, Qt::ControlModifier);
        Partita::Scegli(form, "mnuEsci");
        partita_.Tempo.Advance(0.3);
        // It is listed, and so chosen: what cannot be saved is not read back either.
        EXPECT_EQ(Elenco(Lista()), Nomi{"[_predefinito]"});
        EXPECT_EQ(stato_.SpessoreLinee, spessore);
        EXPECT_EQ(stato_.Livello, 9);
    }
    ASSERT_EQ(partita_.Messaggi.Messages.size(), 1U);
    EXPECT_EQ(partita_.Messaggi.Messages[0].Title, "Trameli");
    EXPECT_EQ(partita_.Messaggi.Messages[0].Text,
              "Impossibile salvare le impostazioni.\n" + disco_.FileDi("_predefinito").string());
    EXPECT_TRUE(fs::is_empty(disco_.FileDi("_predefinito")));
}

}  // namespace
}  // namespace trameli
