#include "shell/form_menu.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "base/rounding.h"
#include "platform/forms.h"
#include "platform/text.h"
#include "shell/fasce.h"
#include "shell/livelli.h"
#include "shell/puntatori.h"

namespace trameli {

namespace {

constexpr Form::DesignSize Dimensioni{10200, 6630};
constexpr int Ritardo = 300;  // milliseconds from the activation to the set-up
constexpr int Bordo = 5;

// The highlight.
constexpr Colour Rosso = 255;
constexpr Colour Arancione = 33023;
constexpr Colour Bianco = 16777215;
constexpr Colour GrigioChiaro = 14737632;

constexpr double PrimoLeft = 240;
constexpr double PassoLeft = 1200;
constexpr double LarghezzaOpzione = 1000;

struct Bottone {
    Bounds Posto;
    const char* Immagine;
    const char* Nome;  ///< for those who cannot see the picture
    int Ordine;        ///< of the Tab key
};

/// Start and exit.
constexpr std::array<Bottone, 2> Bottoni{{
    {{6360, 4080, 3315, 1095}, "menu/inizio.svg", "Inizia il gioco", NumeroLivelli},
    {{6360, 5280, 3315, 1095}, "menu/fine.svg", "Esci dal programma", NumeroLivelli + 2},
}};

const Font Grande{"Arial", 14.25, false};
const Font Piccolo{"Arial", 8.25, false};

constexpr std::size_t Estensione = 4;  // ".ini"

template <typename Controllo>
void Colora(Controllo& controllo, Colour colore) {
    // Setting a colour repaints even if it stays the same, and then the control flickers.
    if (controllo.BackColor() != colore) {
        controllo.BackColor(colore);
    }
}

}  // namespace

FormMenu::FormMenu(trameli::Forms& forms, Servizi& servizi)
    : Form(forms, "FormMenu", Dimensioni),
      mnuConfigura(*this, "mnuConfigura", "&Configurazioni"),
      mnuInformazioni(*this, "mnuInformazioni", "&Informazioni"),
      mnuDocumentazione(mnuInformazioni, "mnuDocumentazione", "documentazione"),
      mnuAbout(mnuInformazioni, "mnuAbout", "about"),
      mnuLanguages(*this, "mnuLanguages", "Lingua"),
      mnuLanguage("mnuLanguage"),
      Frame1(*this, "Frame1", {120, 120, 9855, 3855}, "Imposta il livello"),
      Shape1(Frame1, "Shape1", {120, 480, 9615, 855}, Bordo, Rgb(0, 192, 0)),
      Shape2(Frame1, "Shape2", {120, 1560, 9615, 855}, Bordo, Rgb(255, 128, 128)),
      Shape3(Frame1, "Shape3", {120, 2640, 9615, 855}, Bordo, Rgb(0, 0, 255)),
      Option1("Option1"),
      Combo1(*this, "Combo1", {240, 5280, 3495, 330}),
      Command1("Command1"),
      Timer1(*this, "Timer1", Ritardo),
      EssResizer1(*this),
      CorniceFrame(Frame1, "CorniceFrame"),
      CorniceForm(*this, "CorniceForm"),
      servizi_(servizi),
      giro_(*this, "TimerScansione", servizi.Stato) {
    BackColor(Rgb(255, 255, 192));

    mnuConfigura.Enabled(forms.Knows("FormConfigura"));
    mnuConfigura.Click = [this] { mnuConfigura_Click(); };
    mnuDocumentazione.Click = [this] { mnuDocumentazione_Click(); };
    mnuAbout.Enabled(forms.Knows("FormInfo"));
    mnuAbout.Click = [this] { mnuAbout_Click(); };
    // Without language files it stands for the texts that the windows are made with.
    mnuLanguage.Add(mnuLanguages, "Italiano").Click = [this] { mnuLanguage_Click(0); };

    Frame1.BackColor(Bianco);
    Frame1.Font(Grande);
    Frame1.MouseMove = [this] { Frame1_MouseMove(); };
    DisponiLivelli();

    // Tab goes as the eye does: levels, start, users, exit. From a level to the start it is one
    // stroke.
    Combo1.Font(Piccolo);
    Combo1.AccessibleName("Utente");
    Combo1.TabIndex(NumeroLivelli + 1);
    Combo1.Click = [this] { Combo1_Click(); };
    DisponiBottoni();

    Timer1.Tick = [this] { Timer1_Timer(); };
}

void FormMenu::MLSFillMenuLanguages() {
    const std::vector<std::string> lingue = servizi_.Lingue.Elenca();
    if (lingue.empty()) {
        servizi_.Dialogs.Message("Non è presente alcun file di linguaggio!", "Trameli", Icon::None,
                                 Buttons::Ok);
        return;
    }
    int indice = 0;
    for (const std::string& lingua : lingue) {
        MenuItem& voce = mnuLanguage.Load(indice);
        voce.Caption(lingua);
        voce.Visible(true);
        voce.Click = [this, indice] { mnuLanguage_Click(indice); };
        ++indice;
    }
    servizi_.Lingue.RiprendiScelta();
    SpuntaLingua();
}

/// Marks the current language. Names of files that differ in capitals name different languages.
void FormMenu::SpuntaLingua() {
    mnuLanguage.ForEach(
        [this](MenuItem& voce) { voce.Checked(voce.Caption() == servizi_.Stato.LinguaCorrente); });
}

void FormMenu::DisponiLivelli() {
    for (const Fascia& fascia : Fasce) {
        for (int livello = fascia.Primo; livello <= fascia.Ultimo; ++livello) {
            const double left = PrimoLeft + PassoLeft * (livello - fascia.Primo);
            OptionButton& opzione = Option1.Add(Frame1, Bounds{left, fascia.Top, LarghezzaOpzione, 375},
                                                std::to_string(livello + 1));
            opzione.Font(Grande);
            opzione.BackColor(Bianco);
            opzione.ForeColor(fascia.Testo);
            opzione.TabIndex(livello);
            opzione.Click = [this, livello] { Option1_Click(livello); };
            opzione.MouseMove = [this, livello] { Option1_MouseMove(livello); };
        }
    }
    Option1(0).MouseIcon(FrecciaGrande());
}

/// A bare number says too little to those who hear it.
void FormMenu::NominaLivelli() {
    Option1.ForEach([this](OptionButton& opzione) {
        opzione.AccessibleName(servizi_.Lingue.TestoLingua("0022") + opzione.Caption());
    });
}

void FormMenu::DisponiBottoni() {
    for (const Bottone& disegno : Bottoni) {
        const int indice = Command1.Count();
        CommandButton& bottone = Command1.Add(*this, disegno.Posto);
        bottone.Picture({disegno.Immagine});
        bottone.AccessibleName(disegno.Nome);
        bottone.TabIndex(disegno.Ordine);
        bottone.MouseIcon(FrecciaGrande());
        bottone.Click = [this, indice] { Command1_Click(indice); };
        bottone.MouseMove = [this, indice] { Command1_MouseMove(indice); };
    }
}

void FormMenu::Form_Load() {
    EssResizer1.Carica();
    MLSFillMenuLanguages();
    servizi_.Lingue.TraduciForm(*this);
    if (!Loaded()) {
        return;
    }
    NominaLivelli();
    Command1.ForEach([](CommandButton& bottone) { bottone.BackColor(GrigioChiaro); });
    servizi_.Stato.TrameloDisegnato = false;
}

void FormMenu::Form_Resize() {
    EssResizer1.Ridimensiona();
    giro_.Mostra();
}

void FormMenu::Form_Activate() {
    // The window comes to the front again after each message box.
    if (!preparato_) {
        Timer1.Enabled(true);
        // A key that comes before the timer must not choose the first level.
        Option1(servizi_.Stato.Livello).SetFocus();
    }
}

bool FormMenu::Form_KeyDown(int keyCode, int /*shift*/) {
    return giro_.KeyDown(keyCode);
}

void FormMenu::Form_KeyUp(int keyCode, int /*shift*/) {
    giro_.KeyUp(keyCode);
}

void FormMenu::Form_MouseMove() {
    Command1.ForEach([](CommandButton& bottone) { Colora(bottone, GrigioChiaro); });
}

/// To close the window is to leave the program.
void FormMenu::Form_QueryClose() {
    Command1_Click(Uscita);
}

void FormMenu::Frame1_MouseMove() {
    Form_MouseMove();
    EvidenziaLivello();
}

void FormMenu::Option1_Click(int Index) {
    servizi_.Stato.Livello = Saturated(Index);
    ImpostaGriglia(servizi_.Stato);
    EvidenziaLivello();
}

void FormMenu::Option1_MouseMove(int Index) {
    Colora(Option1(Index), Arancione);
}

void FormMenu::Command1_Click(int Index) {
    servizi_.ModuloPerIni.ScriviUtente();
    if (!Loaded()) {
        return;
    }
    if (Index == Inizio) {
        AvviaGioco();
    } else {
        Forms().End();
    }
}

void FormMenu::Command1_MouseMove(int Index) {
    if (Command1(Index).BackColor() != Rosso) {
        Form_MouseMove();
        Command1(Index).BackColor(Rosso);
    }
}

void FormMenu::Combo1_Click() {
    // The settings still belong to the old user.
    servizi_.ModuloPerIni.ScriviUtente();
    if (!Loaded()) {
        return;
    }
    Stato& stato = servizi_.Stato;
    stato.NomeUtente = Combo1.Text();
    stato.NomeGiocatore = stato.NomeUtente;
    stato.FileUtente = ModuloPerIni::CartellaUtenti + stato.NomeUtente + ".ini";
    servizi_.ModuloPerIni.LeggiUtente();
    ImpostaUtente();
    if (!scorre_) {
        SeguiUtente();
    }
}

void FormMenu::Timer1_Timer() {
    preparato_ = true;

    const Stato& stato = servizi_.Stato;
    if (stato.ModoInput != Tastiera) {
        EscludiLivelliATempo();
    }
    // An option that is chosen already fires no event, but the grid's size must be right anyway.
    Option1(stato.Livello).Value(true);
    Option1_Click(stato.Livello);
    ImpostaUtente();
    ElencaUtenti();
    ScegliUtente();
    if (!Loaded()) {
        return;
    }
    Timer1.Enabled(false);
    // Where the keyboard starts: one stroke away from the neighbouring levels and from the start.
    Option1(stato.Livello).SetFocus();
    AvviaScansione();
}

void FormMenu::mnuConfigura_Click() {
    Cedi("FormConfigura");
}

void FormMenu::mnuDocumentazione_Click() {
    servizi_.ModuloNavigate.ApriDocumento("P:\\trameli.pdf");
}

void FormMenu::mnuAbout_Click() {
    Cedi("FormInfo");
}

void FormMenu::mnuLanguage_Click(int Index) {
    Lingue& lingue = servizi_.Lingue;
    const std::string lingua = mnuLanguage(Index).Caption();
    lingue.Scegli(lingua);
    SpuntaLingua();
    for (Form* form : Forms().Loaded()) {
        lingue.TraduciForm(*form);
    }
    NominaLivelli();
    if (!lingue.SalvaScelta()) {
        servizi_.Dialogs.Message(
            lingue.TestoLingua("0034", "Impossibile salvare le impostazioni.") + "\n" +
                servizi_.FileSystem.OnThisMachine(Lingue::FileScelta),
            "Trameli", Icon::Critical, Buttons::Ok);
    }
}

void FormMenu::ImpostaUtente() {
    const Stato& stato = servizi_.Stato;
    if (stato.UsaMaiuscolo) {
        Frame1.Caption(Capitals(Frame1.Caption()));
        for (int i = 0; i < Combo1.ListCount(); ++i) {
            Combo1.List(i, Capitals(Combo1.List(i)));
        }
    }
    // The buttons never get their pointer back while the window is open, only the options do.
    if (stato.PuntatoreSistema) {
        Command1.ForEach([](CommandButton& bottone) { bottone.MouseIcon(std::nullopt); });
        Option1.ForEach([](OptionButton& opzione) { opzione.MouseIcon(std::nullopt); });
    } else {
        Option1.ForEach([](OptionButton& opzione) { opzione.MouseIcon(FrecciaGrande()); });
    }
    EvidenziaLivello();
    Option1(stato.Livello).Value(true);
}

/// A symbol that walks by itself leaves no time for scanning. The levels stay out of reach until
/// the window is made anew, whoever is chosen meanwhile.
void FormMenu::EscludiLivelliATempo() {
    Stato& stato = servizi_.Stato;
    if (stato.Livello >= LivelliATempo.Primo && stato.Livello <= LivelliATempo.Ultimo) {
        stato.Livello = Saturated(LivelliATempo.Primo - 1);
    }
    for (int livello = LivelliATempo.Primo; livello <= LivelliATempo.Ultimo; ++livello) {
        Option1(livello).Enabled(false);
    }
    Shape2.BorderColor(Bianco);
}

void FormMenu::ElencaUtenti() {
    const bool maiuscolo = servizi_.Stato.UsaMaiuscolo;
    Combo1.Clear();
    for (const std::string& nome : servizi_.FileSystem.List(ModuloPerIni::CartellaUtenti, ".ini")) {
        const std::string utente = nome.substr(0, nome.size() - std::min(nome.size(), Estensione));
        Combo1.AddItem(maiuscolo ? Capitals(utente) : utente);
    }
    Combo1.Visible(Combo1.ListCount() >= 2);
}

/// Chooses the current user in the list, which saves the settings and reads them back. Both the
/// name and the list can turn to capitals on the way.
void FormMenu::ScegliUtente() {
    const std::string utente = Capitals(servizi_.Stato.NomeUtente);
    for (int i = 0; Loaded() && i < Combo1.ListCount(); ++i) {
        if (Capitals(Combo1.List(i)) == utente) {
            Combo1.ListIndex(i);
        }
    }
}

void FormMenu::EvidenziaLivello() {
    const int scelto = servizi_.Stato.Livello;
    for (int livello = 0; livello < Option1.Count(); ++livello) {
        Colora(Option1(livello), livello == scelto ? Rosso : Bianco);
    }
}

void FormMenu::AvviaGioco() {
    // Whoever is faster than the timer finds nothing prepared.
    if (!preparato_ && servizi_.Stato.ModoInput != Tastiera) {
        EscludiLivelliATempo();
    }
    ImpostaGriglia(servizi_.Stato);
    Cedi(FormDelLivello(servizi_.Stato.Livello));
}

/// Hands over to another window.
void FormMenu::Cedi(const char* form) {
    Forms().HandOver(*this, form);
}

}  // namespace trameli
