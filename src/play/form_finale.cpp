#include "play/form_finale.h"

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "base/rounding.h"
#include "platform/forms.h"
#include "play/sfumatura.h"
#include "shell/fumetto.h"
#include "shell/livelli.h"

namespace trameli {

namespace {

constexpr Form::DesignSize Dimensioni{9915, 7680};
constexpr Colour Sfondo = Rgb(0, 0, 32);
constexpr double AttesaIniziale = 1;  // seconds

/// Whether a dark rim sets the colour off better than a light one.
bool Chiaro(Colour colore) {
    return 3 * RedOf(colore) + 6 * GreenOf(colore) + BlueOf(colore) > 5 * 255;
}

}  // namespace

FormFinale::FormFinale(trameli::Forms& forms, Servizi& servizi, Casuale& casuale)
    : Form(forms, "FormFinale", Dimensioni),
      Image1(*this, "Image1", {2520, 1080, 4515, 5475}, {"coppa_grande.svg"}),
      LabelNome(*this, "LabelNome", {3000, 5760, 3375, 495}, ""),
      Label1(*this, "Label1", {360, 3120, 2415, 855}, "Complimenti!"),
      Label2(*this, "Label2", {360, 3960, 3855, 3135}, ""),
      Command1(*this, "Command1", {7440, 5040, 1935, 735}, "Resta a questo livello"),
      Command2(*this, "Command2", {7440, 5880, 1935, 735}, "Vai al prossimo livello"),
      EssResizer1(*this),
      servizi_(servizi),
      stato_(servizi.Stato),
      casuale_(casuale),
      evidenziato_(&Command1),
      giro_(*this, "Timer1", servizi.Stato) {
    Image1.AccessibleName("Coppa");

    LabelNome.Font(Fumetto(14.25, false));
    LabelNome.TextAlignment(Alignment::Centre);
    LabelNome.Transparent(true);
    LabelNome.TabIndex(0);

    Label1.Font(Fumetto(20.25));
    Label1.Transparent(true);
    Label1.TabIndex(1);
    Label2.Font(Fumetto(15.75));
    Label2.Transparent(true);
    Label2.TabIndex(2);

    constexpr int primo = 3;
    for (CommandButton* bottone : {&Command1, &Command2}) {
        const std::size_t quale = bottone == &Command1 ? 0 : 1;
        bottone->Font(Fumetto(12));
        bottone->TabIndex(primo + static_cast<int>(quale));
        bottone->Enabled(false);
        bottone->GotFocus = [this, bottone, quale] {
            Evidenzia(*bottone);
            giro_.Corrente(quale);
        };
    }
    Command1.Click = [this] { Command1_Click(); };
    Command2.Click = [this] { Command2_Click(); };
}

void FormFinale::Form_Load() {
    EssResizer1.Carica();
    Lingue& lingue = servizi_.Lingue;
    lingue.TraduciForm(*this);
    if (!Loaded()) {
        return;
    }
    LabelNome.Caption(stato_.NomeGiocatore);
    Label2.Caption(lingue.TestoLingua("0014") + std::to_string(stato_.Livello + 1) +
                   lingue.TestoLingua("0015") + "\r\n" + lingue.TestoLingua("0016"));
    BackColor(Sfondo);
    SchemaColori = casuale_.FinoA(NumeroSchemi);
    for (Label* scritta : {&Label1, &Label2}) {
        scritta->ForeColor(ColoreScritte(SchemaColori));
        // Some of the colours hardly differ in brightness from the ground they stand on.
        scritta->Rim(Chiaro(ColoreScritte(SchemaColori)) ? Black : White);
    }
    DisegnaSfondo();
}

void FormFinale::Form_Resize() {
    EssResizer1.RidimensionaInProporzione();
    DisegnaSfondo();
}

void FormFinale::Form_Activate() {
    if (attivato_) {
        return;
    }
    attivato_ = true;
    servizi_.Suoni.SuonaMidi(std::string(ProgramFolder) + "\\suoni\\coppa.mid");
    if (!Attesa(AttesaIniziale)) {
        return;
    }
    Command1.Enabled(true);
    Command2.Enabled(true);
    if (stato_.Livello == NumeroLivelli - 1) {
        Command2.Visible(false);
    }
    Evidenzia(Command1);
    Command1.SetFocus();
    std::vector<GiroOfferte::Offerta> offerte{OffertaDi(Command1)};
    if (Command2.Visible()) {
        offerte.push_back(OffertaDi(Command2));
    }
    giro_.Avvia(std::move(offerte));
    Announce(
        [this] { return Label1.Caption() + " " + Label2.Caption() + " " + Command1.Caption(); });
}

bool FormFinale::Form_KeyDown(int keyCode, int /*shift*/) {
    return giro_.KeyDown(keyCode);
}

void FormFinale::Form_KeyUp(int keyCode, int /*shift*/) {
    giro_.KeyUp(keyCode);
}

void FormFinale::Form_QueryClose() {
    servizi_.ModuloPerIni.ScriviUtente();
    Form::Form_QueryClose();
}

void FormFinale::Form_Unload() {
    servizi_.Suoni.FermaMidi();
}

void FormFinale::Command1_Click() {
    ApriGioco();
}

void FormFinale::Command2_Click() {
    if (stato_.Livello == NumeroLivelli - 1) {
        return;  // the button is hidden there
    }
    ++stato_.Livello;
    ImpostaGriglia(stato_);
    stato_.TrameloDisegnato = false;
    ApriGioco();
}

/// The screen's size is known only once the window shows, and it may change after that.
void FormFinale::DisegnaSfondo() {
    const double pixel = Forms().Screen().TwipsPerPixelX();
    Canvas().Cls();
    DisegnaSfumatura(Canvas(), SchemaColori, Width() / pixel, Height() / pixel);
}

GiroOfferte::Offerta FormFinale::OffertaDi(CommandButton& bottone) {
    // The focus alone would tell only once the window is in front.
    const auto mostra = [this, &bottone](bool offerto) {
        if (offerto) {
            Evidenzia(bottone);
            bottone.SetFocus();
        }
    };
    return {mostra, bottone.Click};
}

void FormFinale::Evidenzia(CommandButton& bottone) {
    evidenziato_->BackColor(ButtonFace);
    evidenziato_ = &bottone;
    bottone.BackColor(GiroOfferte::Evidenza);
}

void FormFinale::ApriGioco() {
    Forms().HandOver(*this, FormDelLivello(stato_.Livello));
}

}  // namespace trameli
