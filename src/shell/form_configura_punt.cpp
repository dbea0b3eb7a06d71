// The settings' pages of capitals, of ways of playing and of the pointer.
#include <array>

#include "base/rounding.h"
#include "shell/form_configura.h"

namespace trameli {

namespace {

struct Modo {
    Bounds Posto;
    const char* Testo;
};

/// The ways of playing, in the order of `ModoInput`.
constexpr std::array<Modo, 3> Modi{{
    {{480, 960, 3855, 495}, "Tastiera  - frecce"},
    {{480, 2280, 5175, 495}, "Scansione manuale - spazio e invio "},
    {{480, 3600, 5295, 495}, "Scansione automatica - spazio"},
}};

const Font Leggibile{"Arial", 12, false};
const Font Grassetto{"Arial", 12, true};

constexpr int QuartiAlSecondo = 4;

}  // namespace

void FormConfigura::DisponiCaratteri() {
    FrameCaratteri.Border(false);
    FrameCaratteri.AccessibleName("Caratteri");
    CheckMaiuscolo.Font(Leggibile);
    CheckMaiuscolo.Click = [this] { CheckMaiuscolo_Click(); };
}

void FormConfigura::DisponiPunt() {
    FramePunt.Border(false);
    FramePunt.AccessibleName("Modalità di input");
    for (const Modo& modo : Modi) {
        const int indice = Option4.Count();
        OptionButton& opzione = Option4.Add(FramePunt, modo.Posto, modo.Testo);
        opzione.Font(Leggibile);
        opzione.Click = [this, indice] { Option4_Click(indice); };
    }
    Check1.Font(Grassetto);
    Check1.Click = [this] { Check1_Click(); };
    CommandScansione.Font(Leggibile);
    CommandScansione.Click = [this] { CommandScansione_Click(); };
    HScroll3.TakesKeyboard(true);
    HScroll3.Value(Impostazioni().VelocitaScansione);
    HScroll3.AccessibleName("Velocità scansione");
    HScroll3.Change = [this] { HScroll3_Change(); };
    Label7.Font(Leggibile);
}

void FormConfigura::CheckMaiuscolo_Click() {
    servizi_.Stato.UsaMaiuscolo = CheckMaiuscolo.Value();
}

void FormConfigura::Option4_Click(int Index) {
    servizi_.Stato.ModoInput = Saturated(Index);
    ImpostaConfigurazioni();
}

void FormConfigura::Check1_Click() {
    servizi_.Stato.PuntatoreSistema = Check1.Value();
}

void FormConfigura::CommandScansione_Click() {
    ScegliColorePer(&Impostazioni::ColoreScansione);
}

void FormConfigura::HScroll3_Change() {
    servizi_.Stato.VelocitaScansione = Saturated(HScroll3.Value());
    MostraVelocita();
}

void FormConfigura::ImpostaScansione() {
    const Stato& stato = servizi_.Stato;
    CommandScansione.Visible(stato.ModoInput != Tastiera);
    CommandScansione.BackColor(Nearest(stato.ColoreScansione));
    const bool automatica = stato.ModoInput == ScansioneAutomatica;
    Label7.Visible(automatica);
    HScroll3.Visible(automatica);
    if (automatica) {
        HScroll3.Value(stato.VelocitaScansione);
        MostraVelocita();
    }
}

/// The time of a scanning step in seconds.
void FormConfigura::MostraVelocita() {
    const int quarti = servizi_.Stato.VelocitaScansione;
    constexpr std::array<const char*, QuartiAlSecondo> decimali{"00", "25", "50", "75"};
    Label7.Caption(servizi_.Lingue.TestoLingua("0030", "Velocità scansione: ") +
                   std::to_string(quarti / QuartiAlSecondo) + servizi_.SeparatoreDecimale +
                   decimali.at(static_cast<std::size_t>(quarti % QuartiAlSecondo)) +
                   servizi_.Lingue.TestoLingua("0031", " secondi"));
}

}  // namespace trameli
