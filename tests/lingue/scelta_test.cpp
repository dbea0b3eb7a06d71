// Which language the program speaks, and how another one is chosen.
#include <gtest/gtest.h>

#include "lingue/testi_forniti.h"
#include "platform/command_button.h"
#include "platform/frame.h"
#include "platform/menu.h"
#include "platform/option_button.h"

namespace trameli {
namespace {

namespace fs = std::filesystem;

using Nomi = std::vector<std::string>;

std::string Scelta(const std::string& lingua) {
    return "[Language]\r\nCurrentLanguage=" + lingua + "\r\n";
}

/// A machine with language files of its own.
class LingueAMano : public testing::Test {
protected:
    LingueAMano() {
        fs::create_directories(Lingue());
        Lingua("uno",
               "[Language]\nLocale=\"en\"\n[FormMenu]\nFrame1.Caption=\"One\"\n"
               "mnuLanguages.Caption=\"Tongue\"\nCommand1(1).ToolTipText=\"Leave\"\n"
               "[FormAvvio]\nCommand1.Caption=\"Go\"\n");
        Lingua("due",
               "[FormMenu]\nFrame1.Caption=\"Zwei\"\n"
               "Frame1.Tag=\"@L\"\nOption1(3).Caption=\"vier\"\n");
    }

    fs::path Lingue() const { return programma_.Path() / "lngtrameli"; }
    void Lingua(const std::string& nome, const std::string& testo) const {
        Write(Lingue() / (nome + ".lng"), testo);
    }
    Partita& Apri() {
        partita_.emplace(disco_, Installazione{programma_.Path(), ""});
        partita_->ApriMenu();
        return *partita_;
    }
    Form& Menu() { return partita_->Finestra("FormMenu"); }
    std::string Cornice() { return Trova<Frame>(Menu(), "Frame1").Caption(); }
    /// The languages in the menu, the one with the mark in brackets.
    Nomi Voci() {
        Nomi voci;
        for (const Control* controllo : Menu().Controls()) {
            const auto* const voce = dynamic_cast<const MenuItem*>(controllo);
            if (voce && voce->Name() == "mnuLanguage") {
                voci.push_back(voce->Checked() ? "[" + voce->Caption() + "]" : voce->Caption());
                EXPECT_TRUE(voce->Visible());
            }
        }
        return voci;
    }
    /// The menu is made anew.
    void GiocaETorna() { Partita::Scegli(partita_->ApriLivello(8), "mnuEsci"); }
    void Scegli(int indice) { partita_->Scegli(Menu(), "mnuLanguage", indice); }
    std::string Salvata() const { return BytesOf(disco_.DelProgramma(FileScelta)); }

    static constexpr const char* FileScelta = "lngtrameli/LangSetting.ini";

    TemporaryFolder programma_;
    Disco disco_;
    std::optional<Partita> partita_;
};

TEST_F(LingueAMano, AreChosenInTheMenuForNowAndTheNextStart) {
    Partita& partita = Apri();
    EXPECT_EQ(Voci(), (Nomi{"due", "uno"}));  // nobody chose, and there is no Italian
    EXPECT_EQ(Cornice(), "Imposta il livello");
    EXPECT_EQ(partita.Messaggi.Spoken, "it");
    EXPECT_FALSE(fs::exists(disco_.DelProgramma(FileScelta)));

    Scegli(1);
    EXPECT_EQ(Voci(), (Nomi{"due", "[uno]"}));
    EXPECT_EQ(Cornice(), "One");
    EXPECT_EQ(Trova<MenuItem>(Menu(), "mnuLanguages").Caption(), "Tongue");
    EXPECT_EQ(WidgetOf(Trova<CommandButton>(Menu(), "Command1", 1)).toolTip(), "Leave");
    EXPECT_EQ(partita.Messaggi.Spoken, "en");
    EXPECT_EQ(Salvata(), Scelta("uno"));

    Scegli(0);
    EXPECT_EQ(Voci(), (Nomi{"[due]", "uno"}));
    EXPECT_EQ(Cornice(), "Zwei");
    EXPECT_EQ(Trova<Frame>(Menu(), "Frame1").Tag(), "@L");
    EXPECT_EQ(Trova<OptionButton>(Menu(), "Option1", 3).Caption(), "vier");
    EXPECT_EQ(Trova<OptionButton>(Menu(), "Option1", 4).Caption(), "5");
    // What a language does not have stays as it is.
    EXPECT_EQ(Trova<MenuItem>(Menu(), "mnuLanguages").Caption(), "Tongue");
    // It is read again whenever it is chosen.
    Lingua("due", "[FormMenu]\nFrame1.Caption=\"Drei\"\n");
    Scegli(0);
    EXPECT_EQ(Cornice(), "Drei");
    Scegli(1);
    EXPECT_EQ(Salvata(), Scelta("uno"));

    partita_.emplace(disco_, Installazione{programma_.Path(), "de_DE"});
    ASSERT_TRUE(partita_->Avvia());
    EXPECT_EQ(Trova<CommandButton>(partita_->Finestra("FormAvvio"), "Command1").Caption(), "Go");
    ClickOn(Trova<CommandButton>(partita_->Finestra("FormAvvio"), "Command1"));
    EXPECT_EQ(Voci(), (Nomi{"due", "[uno]"}));
    EXPECT_EQ(Cornice(), "One");
}

TEST_F(LingueAMano, OfTheUserStandBesideThoseOfTheProgram) {
    disco_.ScriviNelProgramma("lngtrameli/mia & tua.lng",
                              "[FormMenu]\nFrame1.Caption=\"perch\xE9\"\n");
    disco_.ScriviNelProgramma("lngtrameli/uno.lng", "[FormMenu]\nFrame1.Caption=\"Mine\"\n");
    // The rest of the choice's file is kept; small and capital letters count in a name.
    disco_.ScriviNelProgramma(FileScelta, "; mine\n[Language]\nCurrentLanguage=Uno\nOther=1\n");
    fs::create_directories(Lingue() / "cartella.lng");
    Lingua("", "");
    Apri();
    EXPECT_EQ(Voci(), (Nomi{"due", "mia & tua", "uno"}));
    EXPECT_EQ(Cornice(), "Mine");
    Scegli(1);
    EXPECT_EQ(Cornice(), "perch\xC3\xA9");
    EXPECT_EQ(Salvata(), "; mine\n[Language]\nCurrentLanguage=mia & tua\nOther=1\n");
}

TEST_F(LingueAMano, AreMissedInAMessage) {
    fs::remove_all(Lingue());
    fs::create_directories(Lingue() / "cartella.lng");
    const Partita& partita = Apri();
    ASSERT_EQ(partita.Messaggi.Messages.size(), 1U);
    EXPECT_EQ(partita.Messaggi.Messages[0].Text, "Non è presente alcun file di linguaggio!");
    EXPECT_EQ(partita.Messaggi.Messages[0].Icon, Icon::None);
    EXPECT_EQ(Cornice(), "Imposta il livello");
    EXPECT_EQ(Voci(), Nomi{"Italiano"});
}

TEST_F(LingueAMano, StayForTheRunWhereTheChoiceCannotBeKept) {
    Write(programma_.Path() / FileScelta, Scelta("uno"));
    fs::create_directories(disco_.Radice());
    Write(disco_.DelProgramma("").parent_path(), "");  // no folder can take its place
    Partita& partita = Apri();
    EXPECT_EQ(Cornice(), "One");
    Scegli(0);
    EXPECT_EQ(partita.Messaggi.Messages.size(), 1U);
    GiocaETorna();
    EXPECT_EQ(Cornice(), "Zwei");
}

/// The first start on some desktop.
struct PrimoAvvio {
    const char* Desktop;
    const char* Lingua;
    const char* Sigla;
    const char* Occupato;  ///< how the message to a second one begins
};

TEST(PrimoAvvio, SpeaksTheLanguageOfTheDesktop) {
    for (const PrimoAvvio& caso : std::initializer_list<PrimoAvvio>{
             {"de_DE.UTF-8", "deutsch", "de", "Trameli ist schon geöffnet."},
             {"pt_BR", "português", "pt", nullptr},
             {"FR_ca@euro", "français", "fr", nullptr},
             {"C.UTF-8", "italiano", "it", "Trameli è già aperto."},
             {"", "italiano", "it", nullptr}}) {
        SCOPED_TRACE(caso.Desktop);
        const Disco disco;
        Partita partita(disco, Installazione{ProgrammaFornito(), caso.Desktop});
        ASSERT_TRUE(partita.Avvia());
        EXPECT_EQ(partita.Gioco.Stato().LinguaCorrente, caso.Lingua);
        EXPECT_EQ(partita.Messaggi.Spoken, caso.Sigla);
        if (!caso.Occupato) {
            continue;
        }
        // The folder's readme is written before any window opens.
        const std::string leggimi = TestoFornito(caso.Lingua, "0005");
        EXPECT_NE(leggimi, "");
        EXPECT_NE(BytesOf(disco.Leggimi()).find(leggimi), std::string::npos);

        Partita altra(disco, Installazione{ProgrammaFornito(), caso.Desktop});
        altra.Istanze.Another = true;
        EXPECT_FALSE(altra.Avvia());
        EXPECT_TRUE(altra.Messaggi.Messages.at(0).Text.starts_with(caso.Occupato));
    }
}

}  // namespace
}  // namespace trameli
