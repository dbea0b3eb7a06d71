#include "game/partita.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <algorithm>

#include "platform/command_button.h"
#include "platform/image.h"
#include "platform/menu.h"
#include "platform/option_button.h"
#include "platform/picture_box.h"
#include "platform/qt/form_window.h"
#include "platform/status_bar.h"

namespace trameli {

namespace {

template <typename Lista>
void CliccaVoce(Lista& lista, QAction* voce) {
    QTest::mouseClick(lista.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      lista.mapTo(lista.window(), lista.actionGeometry(voce).center()));
    Pump();
}

}  // namespace

int Visibili(const Form& form, const char* nome, int quante) {
    int visibili = 0;
    for (int i = 0; i < quante; ++i) {
        const bool visibile = WidgetOf(Trova<Image>(form, nome, i)).isVisible();
        EXPECT_TRUE(!visibile || visibili == i) << nome << " " << i;
        visibili += visibile ? 1 : 0;
    }
    return visibili;
}

Partita::Partita(const Disco& disco, PixelSize schermo, std::uint64_t seme)
    : Partita(disco, schermo, std::make_unique<CasualeConSeme>(seme)) {}

Partita::Partita(const Disco& disco, const Installazione& installazione)
    : Partita(disco, {1366, 768}, std::make_unique<CasualeConSeme>(1), installazione) {}

Partita::Partita(const Disco& disco, PixelSize schermo, std::unique_ptr<Casuale> casuale,
                 const Installazione& installazione)
    : Schermo(schermo.Width, schermo.Height),
      File(disco.Radice(), installazione.Programma),
      Gioco({Tempo, Schermo, File, Messaggi, Istanze, Suoni, Documenti,
             installazione.Stampanti ? *installazione.Stampanti : Stampanti, installazione.Locale},
            std::move(casuale)) {}

bool Partita::Avvia() {
    const bool avviato = Gioco.Main();
    Pump();
    return avviato;
}

Form& Partita::ApriMenu(bool pronto) {
    if (!Avvia()) {
        throw std::runtime_error("the program does not start");
    }
    ClickOn(Trova<CommandButton>(Finestra("FormAvvio"), "Command1"));
    if (pronto) {
        Tempo.Advance(0.3);
    }
    return Finestra("FormMenu");
}

void Partita::AvviaLivello(int livello) {
    Form& menu = Aperta("FormMenu") ? Finestra("FormMenu") : ApriMenu();
    Tempo.Advance(0.3);
    ClickOn(Trova<OptionButton>(menu, "Option1", livello));
    ClickOn(Trova<CommandButton>(menu, "Command1", 0));
}

Form& Partita::ApriLivello(int livello) {
    AvviaLivello(livello);
    return Finestra(livello < 5 ? "frmTrm0" : livello < 8 ? "frmTrm1" : "frmTrm3");
}

Form& Partita::Finestra(const std::string& nome) {
    Form* form = Gioco.Forms().Find(nome);
    if (!form) {
        throw std::runtime_error("no window " + nome);
    }
    return *form;
}

bool Partita::Aperta(const std::string& nome) {
    const Form* form = Gioco.Forms().Find(nome);
    return form && WindowOf(*form).isVisible();
}

std::vector<std::string> Partita::Aperte() {
    std::vector<std::string> nomi;
    for (const char* nome : {"FormAvvio", "FormMenu", "FormConfigura", "FormInfo", "frmTrm0",
                             "frmTrm1", "frmTrm3", "FormFinale"}) {
        if (Aperta(nome)) {
            nomi.emplace_back(nome);
        }
    }
    return nomi;
}

void Partita::Scegli(Form& form, const std::string& voce, std::optional<int> indice) {
    QMenuBar& barra = *dynamic_cast<FormWindow&>(WindowOf(form)).menuBar();
    const QString testo = QString::fromStdString(Trova<MenuItem>(form, voce, indice).Caption());
    for (QAction* titolo : barra.actions()) {
        if (titolo->text() == testo) {
            CliccaVoce(barra, titolo);
            return;
        }
        for (QAction* sotto : titolo->menu() ? titolo->menu()->actions() : QList<QAction*>()) {
            if (sotto->text() == testo) {
                CliccaVoce(barra, titolo);
                CliccaVoce(*titolo->menu(), sotto);
                return;
            }
        }
    }
    throw std::runtime_error("no entry " + voce);
}

bool Partita::Stampa(Form& form, const std::function<void(Form&)>& gesti) {
    bool vista = false;
    QTimer occhio;
    occhio.callOnTimeout([&] {
        if (Aperta("frmStampa")) {
            occhio.stop();
            vista = true;
            gesti(Finestra("frmStampa"));
            Pump();
            if (Form* const finestra = Gioco.Forms().Find("frmStampa")) {
                Gioco.Forms().Unload(*finestra);
            }
        }
    });
    occhio.start(0);
    Tap(form, Qt::Key_S, Qt::ControlModifier);
    return vista;
}

void Partita::ViaERitorno(Form& form) {
    for (const QEvent::Type tipo : {QEvent::WindowDeactivate, QEvent::WindowActivate}) {
        QEvent evento(tipo);
        QApplication::sendEvent(&WindowOf(form), &evento);
    }
    Pump();
}

void Partita::Chiudi(Form& form) {
    WindowOf(form).close();
    Pump();
}

Tavolo::Tavolo(Form& form, int livello, const FileUtente& file) : Form_(form), file_(file) {
    const double twips = form.Forms().Screen().TwipsPerPixelX();
    const double barre = 2 * Trova<StatusBar>(form, "StatusBar1").Height();
    // What lies under the maze: the button and twice the bar, the band and the same, or twice the
    // button.
    const double sotto = form.Name() == "frmTrm0"   ? 660 + barre
                         : form.Name() == "frmTrm1" ? 1455 + barre
                                                    : 2 * 780.0;
    const auto [righe, colonne] = MisuraDi(livello);
    // In timed mazes there is nothing to the left or right of the grid.
    const int aiLati = form.Name() == "frmTrm1" ? 1 : 2;
    Pianta_ = Pianta::Su(form.Width(), form.Height() - sotto, righe, colonne, aiLati, twips);
}

Vista Tavolo::Guarda() const {
    return {Shot(Trova<PictureBox>(Form_, "pictureTramelo")), Pianta_};
}

MuriVisti Tavolo::Muri() const {
    return {Guarda(), Colore(RigaPareti)};
}

Posto Tavolo::Partenza() const {
    return Aperture(Guarda()).front();
}

Posto Tavolo::Arrivo() const {
    return Aperture(Guarda()).back();
}

std::vector<int> Tavolo::Soluzione() const {
    const Vista vista = Guarda();
    const std::vector<Posto> aperture = Aperture(vista);
    const Posto& partenza = aperture.front();
    const Posto& arrivo = aperture.back();
    std::vector<int> passi = MuriVisti(vista, Colore(RigaPareti)).Strada(partenza, arrivo);
    passi.insert(passi.begin(), Contrario(partenza.Lato));
    passi.push_back(arrivo.Lato);
    return passi;
}

std::vector<Posto> Tavolo::Aperture(const Vista& vista) const {
    std::vector<Posto> aperture = MuriVisti(vista, Colore(RigaPareti)).Aperture();
    const auto simbolo = std::find_if(aperture.begin(), aperture.end(), [&](const Posto& posto) {
        return vista.Muro(posto) == Colore(RigaSimbolo);
    });
    if (aperture.size() != 2 || simbolo == aperture.end()) {
        throw std::runtime_error("no two openings with the symbol in one of them");
    }
    std::iter_swap(aperture.begin(), simbolo);
    return aperture;
}

void Tavolo::Passo(int verso, const std::array<int, 4>& tasti) const {
    Tap(Form_, tasti.at(static_cast<std::size_t>(verso)),
        tasti == Tastierino ? Qt::KeypadModifier : Qt::NoModifier);
}

void Tavolo::Cammina(const std::vector<int>& passi, const std::array<int, 4>& tasti) const {
    for (const int verso : passi) {
        Passo(verso, tasti);
    }
}

std::string Tavolo::Pannello(int numero) const {
    return Trova<StatusBar>(Form_, "StatusBar1").Panel(numero);
}

int Tavolo::NumeroPannello(int numero) const {
    const std::string testo = Pannello(numero);
    return std::stoi(testo.substr(testo.find_first_of("0123456789")));
}

bool Tavolo::Risolto() const {
    return WidgetOf(Trova<CommandButton>(Form_, "BottoneAvanti")).isVisible();
}

QRgb Tavolo::Colore(Riga riga) const {
    return Pixel(std::stoi(file_.Righe.at(riga)));
}

}  // namespace trameli
