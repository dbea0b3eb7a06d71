// Runs the tables of this folder: what a player does, and what is seen then. README.md tells how
// they are written.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QTabBar>
#include <QTest>
#include <deque>
#include <fstream>
#include <map>
#include <sstream>

#include "game/partita.h"
#include "platform/command_button.h"
#include "platform/line.h"

namespace trameli {
namespace {

namespace fs = std::filesystem;

struct Riga_ {
    int Numero;
    std::string Azione;
    std::vector<std::string> Viste;
};

/// One run of the program.
struct Tavola {
    std::string File;
    std::string Titolo;
    std::vector<Riga_> Righe;
};

/// How it is called in lists of tests, which would otherwise show its bytes.
void PrintTo(const Tavola& tavola, std::ostream* lista) {
    *lista << tavola.Titolo;
}

std::string Rifilato(const std::string& testo) {
    const std::size_t inizio = testo.find_first_not_of(' ');
    return inizio == std::string::npos
               ? ""
               : testo.substr(inizio, testo.find_last_not_of(' ') - inizio + 1);
}

std::vector<std::string> Diviso(const std::string& testo, char separatore) {
    std::vector<std::string> parti;
    std::istringstream flusso(testo);
    for (std::string parte; std::getline(flusso, parte, separatore);) {
        parti.push_back(Rifilato(parte));
    }
    return parti;
}

/// The first word, or what stands in quotes in its place, and what stands behind it.
std::pair<std::string, std::string> PrimaParola(const std::string& testo) {
    if (testo.starts_with('"')) {
        const std::size_t fine = testo.find('"', 1);
        return {testo.substr(1, fine - 1), Rifilato(testo.substr(fine + 1))};
    }
    const std::size_t fine = std::min(testo.find(' '), testo.size());
    return {testo.substr(0, fine), Rifilato(testo.substr(fine))};
}

std::vector<Tavola> LeggiTavole() {
    std::vector<Tavola> tavole;
    for (const fs::directory_entry& voce : fs::directory_iterator(TRAMELI_TABLES)) {
        if (voce.path().extension() != ".tavola") {
            continue;
        }
        std::ifstream flusso(voce.path());
        int numero = 0;
        for (std::string riga; std::getline(flusso, riga);) {
            ++numero;
            if (riga.starts_with("== ")) {
                tavole.push_back({voce.path().string(), riga.substr(3), {}});
            } else if (!riga.empty() && !riga.starts_with('#')) {
                const std::size_t punti = std::min(riga.find(" : "), riga.size());
                tavole.back().Righe.push_back(
                    {numero, Rifilato(riga.substr(0, punti)),
                     Diviso(riga.substr(std::min(punti + 3, riga.size())), ';')});
            }
        }
    }
    return tavole;
}

const std::map<std::string, Riga> Impostazione{{"Livello", RigaLivello},
                                               {"Maiuscolo", RigaMaiuscolo},
                                               {"Retrocedi", RigaRetrocedi},
                                               {"Linee", RigaLinee},
                                               {"Pareti", RigaPareti},
                                               {"Avanti", RigaAvanti},
                                               {"Sfondo", RigaSfondo},
                                               {"Simbolo", RigaSimbolo},
                                               {"Ritorno", RigaRitorno},
                                               {"Scansione", RigaScansione},
                                               {"Spessore", RigaSpessore},
                                               {"Suoni", RigaSuoni},
                                               {"Movimento", RigaSuonoMovimento},
                                               {"Puntatore", RigaPuntatore},
                                               {"ModoInput", RigaModoInput},
                                               {"Velocita", RigaVelocita}};

FileUtente ConImpostazioni(const std::string& testo) {
    FileUtente file;
    for (const std::string& parte : Diviso(testo, ' ')) {
        const auto uguale = parte.find('=');
        const std::string valore = parte.substr(uguale + 1);
        const bool parola = valore == "True" || valore == "False";
        file = file.Con(Impostazione.at(parte.substr(0, uguale)),
                        parola ? valore : " " + valore + " ");
    }
    return file;
}

std::string Mostrato(const PropertyValue& valore) {
    if (const bool* const vero = std::get_if<bool>(&valore)) {
        return *vero ? "True" : "False";
    }
    if (const double* const numero = std::get_if<double>(&valore)) {
        return QString::number(*numero, 'g', 12).toStdString();
    }
    return QString::fromStdString(std::get<std::string>(valore)).replace("\r\n", "|").toStdString();
}

const std::map<std::string, int> Tasti{
    {"Tab", Qt::Key_Tab},      {"Backtab", Qt::Key_Backtab}, {"Space", Qt::Key_Space},
    {"Enter", Qt::Key_Enter},  {"Left", Qt::Key_Left},       {"Right", Qt::Key_Right},
    {"Up", Qt::Key_Up},        {"Down", Qt::Key_Down},       {"Backspace", Qt::Key_Backspace},
    {"Escape", Qt::Key_Escape}};

class Esecuzione {
public:
    /// `seguito` is what comes after it, for what does not return before that is done.
    void Fai(const std::string& azione, const std::function<void()>& seguito) {
        const auto [verbo, oggetto] = PrimaParola(azione);
        if (verbo == "print") {
            partita_->Stampa(Davanti(), [&](Form&) { seguito(); });
            return;
        }
        const auto gesto = gesti_.find(verbo);
        if (gesto == gesti_.end()) {
            throw std::runtime_error("nobody can " + verbo);
        }
        gesto->second(oggetto);
        Pump();
    }

    /// What is there instead of `vista`, in the same words.
    std::string Vedi(const std::string& vista) {
        const auto [cosa, atteso] = PrimaParola(vista);
        const auto punto = cosa.rfind('.');
        if (cosa == "window") {
            return "window " + Davanti().Name();
        }
        if (cosa == "printed") {
            return "printed " + std::to_string(partita_->Stampanti.Documents.size());
        }
        if (cosa == "document") {
            return "document " + partita_->Documenti.Opened.back();
        }
        if (cosa == "file" || cosa == "nofile") {
            const auto [nome, impostazioni] = PrimaParola(atteso);
            const std::string bytes = cosa == "file" ? ConImpostazioni(impostazioni).Bytes() : "";
            return disco_.Leggi(nome) == bytes ? vista : disco_.Leggi(nome);
        }
        return cosa + " " + Valore(Controllo(cosa.substr(0, punto)), cosa.substr(punto + 1));
    }

private:
    /// The window in front. Forms that are loaded for their pictures only are never seen.
    Form& Davanti() {
        std::vector<Form*> form = partita_->Gioco.Forms().Loaded();
        std::erase_if(form, [](const Form* uno) { return !WindowOf(*uno).isVisible(); });
        return *form.at(form.size() - 1);
    }

    /// A control of the window in front: "Name" or "Name(2)".
    Control& Controllo(const std::string& nome) {
        const auto parentesi = nome.find('(');
        return parentesi == std::string::npos
                   ? Trova<Control>(Davanti(), nome)
                   : Trova<Control>(Davanti(), nome.substr(0, parentesi),
                                    std::stoi(nome.substr(parentesi + 1)));
    }

    /// In the place of the first language.
    void ScriviLingua(const std::string& testo) {
        const fs::path cartella = disco_.Radice() / "programma" / "lngtrameli";
        fs::create_directories(cartella);
        const auto uguale = std::min(testo.find('='), testo.size());
        Write(cartella / "italiano.lng", "[Strings]\r\n" + testo.substr(0, uguale) + "=\"" +
                                             testo.substr(std::min(uguale + 1, testo.size())) +
                                             "\"\r\n");
    }

    void Apri(const std::string& nome) {
        if (!partita_) {
            partita_.emplace(disco_, schermo_);
            if (nome == "FormAvvio") {
                partita_->Avvia();
                return;
            }
            partita_->ApriMenu(false);
        }
        if (nome == "early") {
            return;
        }
        partita_->Tempo.Advance(0.3);  // the menu's set-up
        if (nome == "FormConfigura" || nome == "FormInfo") {
            Partita::Scegli(Davanti(), nome == "FormInfo" ? "mnuAbout" : "mnuConfigura");
        } else if (nome != "FormMenu") {
            ClickOn(Trova<CommandButton>(Davanti(), "Command1", 0));
        }
    }

    void Linguetta(int quale) {
        QWidget& finestra = WindowOf(Davanti());
        const auto* linguette = finestra.findChild<QTabBar*>();
        QTest::mouseClick(finestra.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          linguette->mapTo(&finestra, linguette->tabRect(quale).center()));
    }

    std::string Valore(Control& controllo, const std::string& proprieta) {
        if (const auto* const visibile = dynamic_cast<const VisualControl*>(&controllo)) {
            const QWidget& widget = WidgetOf(*visibile);
            const auto detto = [](bool vero) { return std::string(vero ? "True" : "False"); };
            if (proprieta == "Seen") {
                return detto(widget.isVisible());
            }
            if (proprieta == "Focus") {
                return detto(widget.hasFocus() || widget.isAncestorOf(QApplication::focusWidget()));
            }
            if (proprieta == "Pointer") {
                return widget.cursor().shape() == Qt::BitmapCursor ? "game" : "system";
            }
            const QImage vista = Shot(Davanti());
            const QPoint mezzo = widget.mapTo(&WindowOf(Davanti()), widget.rect().center());
            const QRgb colore = vista.pixel(mezzo);
            const auto uguale = [&](int y) { return vista.pixel(mezzo.x(), y) == colore; };
            if (proprieta == "Pixel") {
                return std::to_string(qRed(colore) + 256 * qGreen(colore) + 65536 * qBlue(colore));
            }
            if (proprieta == "Thick") {
                int sopra = mezzo.y();
                int sotto = mezzo.y();
                while (uguale(sopra - 1))
                    --sopra;
                while (uguale(sotto + 1))
                    ++sotto;
                return std::to_string(sotto - sopra + 1);
            }
            if (proprieta.starts_with("Shows(")) {
                const QRgb cercato = Pixel(std::stoi(proprieta.substr(6)));
                const QImage parte = Shot(*visibile);
                bool trovato = false;
                for (int i = 0; i < parte.width() * parte.height() && !trovato; ++i) {
                    trovato = parte.pixel(i % parte.width(), i / parte.width()) == cercato;
                }
                return detto(trovato);
            }
        }
        PropertyValue valore;
        const PropertyCode codice = controllo.Get(proprieta, valore);
        return codice == PropertyCode::Done ? Mostrato(valore)
                                            : "code " + std::to_string(static_cast<int>(codice));
    }

    using Gesto = std::function<void(const std::string&)>;
    const std::map<std::string, Gesto> gesti_{
        {"screen",
         [this](const std::string& misure) {
             schermo_ = {std::stoi(misure), std::stoi(misure.substr(misure.find('x') + 1))};
         }},
        {"user",
         [this](const std::string& utente) {
             const auto [nome, impostazioni] = PrimaParola(utente);
             disco_.Scrivi(nome, ConImpostazioni(impostazioni));
         }},
        {"lang", [this](const std::string& testo) { ScriviLingua(testo); }},
        {"put", [this](const std::string& nome) { disco_.ScriviNelProgramma(nome, ""); }},
        {"open", [this](const std::string& nome) { Apri(nome); }},
        {"click",
         [this](const std::string& nome) {
             ClickOn(dynamic_cast<const VisualControl&>(Controllo(nome)));
         }},
        {"move",
         [this](const std::string& meta) {
             const auto [nome, parti] = PrimaParola(meta);
             QWidget& widget = WidgetOf(dynamic_cast<const VisualControl&>(Controllo(nome)));
             const std::vector<std::string> percento = Diviso(parti.empty() ? "50 50" : parti, ' ');
             MoveOver(widget, {widget.width() * std::stoi(percento.at(0)) / 100,
                               widget.height() * std::stoi(percento.at(1)) / 100});
         }},
        {"tab", [this](const std::string& numero) { Linguetta(std::stoi(numero) - 1); }},
        {"key",
         [this](const std::string& tasto) {
             partita_->Tempo.Advance(0.6);  // sooner, it might be the bouncing of a switch
             Tap(Davanti(), Tasti.at(tasto));
         }},
        {"quick", [this](const std::string& tasto) { Tap(Davanti(), Tasti.at(tasto)); }},
        {"type",
         [this](const std::string& testo) {
             for (const QChar lettera : QString::fromStdString(testo)) {
                 QTest::sendKeyEvent(QTest::Click, WindowOf(Davanti()).windowHandle(),
                                     Qt::Key_unknown, QString(lettera), Qt::NoModifier);
             }
         }},
        {"paste",
         [this](const std::string& testo) {
             QApplication::clipboard()->setText(QString::fromStdString(testo));
             Tap(Davanti(), Qt::Key_V, Qt::ControlModifier);
         }},
        {"menu", [this](const std::string& voce) { Partita::Scegli(Davanti(), voce); }},
        {"close", [this](const std::string&) { Partita::Chiudi(Davanti()); }},
        {"away", [this](const std::string&) { Partita::ViaERitorno(Davanti()); }},
        {"colour",
         [this](const std::string& colore) {
             partita_->Messaggi.Chosen =
                 colore == "none" ? std::nullopt : std::optional(std::stoi(colore));
         }},
        {"look", [](const std::string&) {}},
    };

    Disco disco_;
    PixelSize schermo_{1366, 768};
    std::optional<Partita> partita_;
};

class Finestre : public testing::TestWithParam<Tavola> {};

TEST_P(Finestre, DoAsTheTableSays) {
    Esecuzione esecuzione;
    std::deque<Riga_> righe(GetParam().Righe.begin(), GetParam().Righe.end());
    const std::function<void()> esegui = [&] {
        while (!righe.empty()) {
            const Riga_ riga = righe.front();
            righe.pop_front();
            try {
                esecuzione.Fai(riga.Azione, esegui);
                for (const std::string& vista : riga.Viste) {
                    const std::string visto = Rifilato(esecuzione.Vedi(vista));
                    if (visto != vista) {
                        ADD_FAILURE_AT(GetParam().File.c_str(), riga.Numero)
                            << visto << "\n   not " << vista;
                    }
                }
            } catch (const std::exception& errore) {
                ADD_FAILURE_AT(GetParam().File.c_str(), riga.Numero)
                    << riga.Azione << ": " << errore.what();
                righe.clear();
            }
        }
    };
    esegui();
}

INSTANTIATE_TEST_SUITE_P(Tavole, Finestre, testing::ValuesIn(LeggiTavole()), [](const auto& voce) {
    std::string nome = fs::path(voce.param.File).stem().string() + "_" + voce.param.Titolo;
    std::replace_if(
        nome.begin(), nome.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
    return nome;
});

}  // namespace
}  // namespace trameli
