// The settings' page of colours, thicknesses and sounds, with its preview.
#include <array>

#include "base/combinazioni_spessori.h"
#include "base/rounding.h"
#include "platform/forms.h"
#include "platform/screen.h"
#include "shell/comm_dlgs.h"
#include "shell/form_configura.h"

namespace trameli {

namespace {

/// Where the option of a combination stands, and what it does, for those who cannot see the
/// preview.
struct Opzione {
    double Left;
    double Top;
    const char* Nome;
};

constexpr auto Opzioni = std::to_array<Opzione>({
    {600, 2160, "1: pareti e traccia sottili"},
    {1320, 2160, "2: pareti e traccia medie"},
    {2040, 2160, "3: pareti e traccia grosse"},
    {600, 2760, "4: pareti sottili, traccia grossa"},
    {1320, 2760, "5: pareti sottili, traccia media"},
    {600, 3360, "6: pareti grosse, traccia sottile"},
    {1320, 3360, "7: pareti medie, traccia sottile"},
});
static_assert(Opzioni.size() == NumeroSpessori);
constexpr double LarghezzaOpzione = 615;
constexpr double AltezzaOpzione = 375;

const Font Leggibile{"Arial", 12, false};
const Font Compatto{"Arial", 9.75, false};

}  // namespace

void FormConfigura::DisponiPuzzle() {
    FramePuzzle.Border(false);
    FramePuzzle.AccessibleName("Trameli");
    Line4.Visible(false);

    Command1.Click = [this] { Command1_Click(); };
    CommandSceltaColoreLinea.Click = [this] { CommandSceltaColoreLinea_Click(); };
    Command3.Click = [this] { Command3_Click(); };
    CommandSceltaColoreLineaSelezione.Click = [this] { CommandSceltaColoreLineaSelezione_Click(); };
    Command2.Click = [this] { Command2_Click(); };
    for (CommandButton* const bottone : {&Command1, &CommandSceltaColoreLinea, &Command3,
                                         &CommandSceltaColoreLineaSelezione, &Command2}) {
        bottone->Font(Compatto);
    }

    for (const Opzione& disegno : Opzioni) {
        const int indice = Option1.Count();
        OptionButton& opzione = Option1.Add(
            FramePuzzle, Bounds{disegno.Left, disegno.Top, LarghezzaOpzione, AltezzaOpzione},
            std::to_string(indice + 1));
        opzione.Font(Leggibile);
        opzione.AccessibleName(disegno.Nome);
        opzione.Click = [this, indice] { Option1_Click(indice); };
    }
    for (Label* const scritta : {&Label2, &Label5, &Label3, &Label1}) {
        scritta->Transparent(true);
        scritta->Font({"Arial", 9, false});
    }
    Label1.Font(Leggibile);

    CheckRetrocedi.Click = [this] { CheckRetrocedi_Click(); };
    CheckMuri.Click = [this] { CheckMuri_Click(); };
    CheckSuoni.Click = [this] { CheckSuoni_Click(); };
    CheckSuoni2.Click = [this] { CheckSuoni2_Click(); };
    for (CheckBox* const casella : {&CheckRetrocedi, &CheckMuri, &CheckSuoni, &CheckSuoni2}) {
        casella->Font(Leggibile);
    }
}

/// The preview is larger on larger screens, and so are its lines.
void FormConfigura::ImpostaAnteprima() {
    const int misura = Floor(Nearest(Line4.Y2() - Line4.Y1()) / Forms().Screen().TwipsPerPixelY());
    const Divisori divisori = DivisoriDi(servizi_.Stato.SpessoreLinee);
    LineaSelezione.BorderWidth(Floor(misura / divisori.Traccia));
    for (Line* const parete : {&LineaPareti1, &LineaPareti2}) {
        parete->BorderWidth(Floor(misura / divisori.Muri));
    }
}

void FormConfigura::ImpostaColori() {
    const Stato& stato = servizi_.Stato;
    const Colour sfondo = Nearest(stato.ColoreSfondo);
    Option1.ForEach([&](OptionButton& opzione) { opzione.BackColor(sfondo); });
    Option1(stato.SpessoreLinee).Value(true);
    FramePuzzle.BackColor(sfondo);
    for (Line* const traccia : {&LineaSelezione, &Line1}) {
        traccia->BorderColor(Nearest(stato.ColoreAvanti));
    }
    for (Line* const parete : {&LineaPareti1, &LineaPareti2}) {
        parete->BorderColor(Nearest(stato.ColorePareti));
    }
    Line2.BorderColor(Nearest(stato.ColoreRitorno));
    Shape1.FillColor(Nearest(stato.ColoreSimbolo));
    for (CheckBox* const casella : {&CheckSuoni, &CheckSuoni2, &CheckRetrocedi, &CheckMuri}) {
        casella->BackColor(sfondo);
    }
}

/// Lets the player choose one of the colours; cancelled, it stays.
void FormConfigura::ScegliColorePer(double Impostazioni::*colore) {
    Colour scelto = 0;
    const bool fatto = CommDlgs::ScegliColore(servizi_.Dialogs, scelto);
    if (!Loaded()) {
        return;
    }
    if (fatto) {
        servizi_.Stato.*colore = scelto;
    }
    ImpostaConfigurazioni();
}

void FormConfigura::Command1_Click() {
    ScegliColorePer(&Impostazioni::ColoreSfondo);
}

void FormConfigura::CommandSceltaColoreLinea_Click() {
    ScegliColorePer(&Impostazioni::ColorePareti);
}

void FormConfigura::Command3_Click() {
    ScegliColorePer(&Impostazioni::ColoreSimbolo);
}

void FormConfigura::CommandSceltaColoreLineaSelezione_Click() {
    ScegliColorePer(&Impostazioni::ColoreAvanti);
}

void FormConfigura::Command2_Click() {
    ScegliColorePer(&Impostazioni::ColoreRitorno);
}

void FormConfigura::Option1_Click(int Index) {
    servizi_.Stato.SpessoreLinee = Saturated(Index);
    ImpostaConfigurazioni();
}

void FormConfigura::CheckRetrocedi_Click() {
    servizi_.Stato.CambiaColoreRitorno = CheckRetrocedi.Value();
    ImpostaConfigurazioni();
}

void FormConfigura::CheckMuri_Click() {
    servizi_.Stato.LineeNeiPrimiLivelli = CheckMuri.Value();
}

void FormConfigura::CheckSuoni_Click() {
    servizi_.Stato.SuoniAttivi = CheckSuoni.Value();
    CheckSuoni2.Enabled(servizi_.Stato.SuoniAttivi);
}

void FormConfigura::CheckSuoni2_Click() {
    servizi_.Stato.SuonoMovimento = CheckSuoni2.Value();
}

}  // namespace trameli
