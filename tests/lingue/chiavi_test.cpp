// The languages that the game brings along hold what its windows and its code ask for, and nothing
// else.
#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <fstream>
#include <map>
#include <regex>
#include <set>

#include "lingue/testi_forniti.h"
#include "platform/menu.h"
#include "platform/qt/form_window.h"

namespace trameli {
namespace {

namespace fs = std::filesystem;

using Chiavi = std::set<std::string>;

/// The keys of a language file with their sections. Its lines are sections, entries or empty.
Chiavi ChiaviDi(const fs::path& file) {
    static const std::regex sezione(R"(\[(\w+)\])");
    static const std::regex voce(R"re(([\w().]+)="[^"]*[^" ][^"]*")re");
    Chiavi chiavi;
    std::string qui;
    std::ifstream testo(file);
    for (std::string riga; std::getline(testo, riga);) {
        std::smatch parti;
        if (std::regex_match(riga, parti, sezione)) {
            qui = parti[1];
        } else if (std::regex_match(riga, parti, voce)) {
            EXPECT_TRUE(chiavi.insert(qui + " " + parti[1].str()).second) << riga;
        } else {
            EXPECT_EQ(riga, "") << file;
        }
    }
    return chiavi;
}

bool HaLettere(const PropertyValue& valore) {
    const auto* testo = std::get_if<std::string>(&valore);
    return testo && std::regex_search(*testo, std::regex("[A-Za-z]"));
}

std::string NomeDi(const Control& controllo) {
    return controllo.Name() +
           (controllo.Index() ? "(" + std::to_string(*controllo.Index()) + ")" : "");
}

/// What the windows ask for, where they are made with a text. Numbers and dashes are the same
/// everywhere.
void AggiungiControlli(Chiavi& chiavi) {
    const TemporaryFolder senzaLingue;
    const Disco disco;
    Partita partita(disco, Installazione{senzaLingue.Path(), ""});
    for (const auto& [nome, livello] : Finestre) {
        partita.Gioco.Stato().Livello = livello;
        const Form& form = partita.Gioco.Forms().Load(nome);
        if (HaLettere(form.Caption())) {
            chiavi.insert(form.Name() + " " + form.Name() + ".Caption");
        }
        for (const Control* controllo : form.Controls()) {
            if (controllo->Name() == "mnuLanguage") {
                continue;  // it names a file
            }
            const std::string chiave = form.Name() + " " + NomeDi(*controllo);
            std::vector<std::string> proprieta{"Caption", "ToolTipText", "AccessibleName"};
            PropertyValue valore;
            if (controllo->Get("Tabs", valore) == PropertyCode::Done) {
                for (int i = 0; i < std::get<double>(valore); ++i) {
                    proprieta.push_back("TabCaption(" + std::to_string(i) + ")");
                }
            }
            for (const std::string& quale : proprieta) {
                if (controllo->Get(quale, valore) == PropertyCode::Done && HaLettere(valore)) {
                    chiavi.insert(chiave + "." + quale);
                }
            }
        }
    }
}

/// The numbers that stand in the code: nothing else there is a text of four digits.
void AggiungiNumeri(Chiavi& chiavi) {
    static const std::regex numero(R"re("(\d{4})")re");
    for (const auto& voce : fs::recursive_directory_iterator(GAME_SOURCES)) {
        const std::string testo = voce.is_regular_file() ? BytesOf(voce.path()) : std::string();
        for (std::sregex_iterator qui(testo.begin(), testo.end(), numero), fine; qui != fine;
             ++qui) {
            chiavi.insert("Strings " + (*qui)[1].str());
        }
    }
}

TEST(Lingue, HoldWhatIsAskedForAndNothingElse) {
    Chiavi chieste{"Language Locale"};
    AggiungiControlli(chieste);
    AggiungiNumeri(chieste);
    ASSERT_GT(chieste.size(), 90U);
    for (const std::string& lingua : LingueFornite()) {
        const Chiavi date = ChiaviDi(ProgrammaFornito() / "lngtrameli" / (lingua + ".lng"));
        for (const std::string& chiave : chieste) {
            EXPECT_TRUE(date.contains(chiave)) << lingua << " lacks " << chiave;
        }
        for (const std::string& chiave : date) {
            EXPECT_TRUE(chieste.contains(chiave)) << lingua << " need not have " << chiave;
        }
    }
}

/// Entries and controls that answer to the same letter stand in each other's way.
void SenzaLettereDoppie(const QStringList& testi, const std::string& dove) {
    std::map<QString, QString> lettere;
    for (const QString& testo : testi) {
        const QString lettera = QKeySequence::mnemonic(testo).toString();
        if (!lettera.isEmpty()) {
            const auto [altro, sola] = lettere.try_emplace(lettera, testo);
            EXPECT_TRUE(sola) << dove << ": " << testo.toStdString() << " and "
                              << altro->second.toStdString();
        }
    }
}

/// The texts of a menu or of the bar. What stands below an entry is looked at as well.
QStringList TestiDi(const QWidget& menu, const std::string& dove) {
    QStringList testi;
    for (const QAction* voce : menu.actions()) {
        testi << voce->text();
        if (voce->menu()) {
            SenzaLettereDoppie(TestiDi(*voce->menu(), dove), dove + voce->text().toStdString());
        }
    }
    return testi;
}

TEST(Lingue, GiveNoLetterTwice) {
    for (const std::string& lingua : LingueFornite()) {
        if (lingua == "italiano") {
            continue;  // its letters are given
        }
        const Disco disco;
        ScegliLingua(disco, lingua);
        Partita partita(disco);
        for (const auto& [nome, livello] : Finestre) {
            partita.Gioco.Stato().Livello = livello;
            Form& form = partita.Gioco.Forms().Load(nome);
            if (form.Name() == "frmStampa") {  // speaks when it has something to print
                Lingue(partita.Gioco.Stato(), partita.File, partita.Messaggi, "").TraduciForm(form);
            }
            const std::string dove = lingua + " " + nome + " ";
            QStringList testi = TestiDi(*dynamic_cast<FormWindow&>(WindowOf(form)).menuBar(), dove);
            for (const Control* controllo : form.Controls()) {
                PropertyValue valore;
                if (!dynamic_cast<const MenuItem*>(controllo) &&
                    controllo->Get("Caption", valore) == PropertyCode::Done) {
                    testi << QString::fromStdString(std::get<std::string>(valore));
                }
            }
            SenzaLettereDoppie(testi, dove);
        }
    }
}

}  // namespace
}  // namespace trameli
