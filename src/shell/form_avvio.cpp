#include "shell/form_avvio.h"

#include <array>

#include "platform/forms.h"
#include "platform/text.h"
#include "shell/fumetto.h"
#include "shell/puntatori.h"

namespace trameli {

namespace {

constexpr Form::DesignSize Dimensioni{8190, 6210};
constexpr Colour BluScuro = Rgb(0, 0, 128);
constexpr int Fasce = 256;
constexpr const char* Immagine = "avvio/labirinto.svg";
constexpr double PuntiBottone = 24;

struct Scritta {
    Bounds Posto;
    const char* Testo;
    double Punti;
};

/// Title and date of the version.
constexpr std::array<Scritta, 2> Scritte{{
    {{0, 960, 8175, 2535}, "Trameli", 72},
    {{5520, 4560, 2415, 735}, "24/02/2008", 15.75},
}};

}  // namespace

FormAvvio::FormAvvio(trameli::Forms& forms, Servizi& servizi)
    : Form(forms, "FormAvvio", Dimensioni),
      Image1(*this, "Image1", {480, 4320, 1215, 1095}, {Immagine}),
      Label2("Label2"),
      Command1(*this, "Command1", {2280, 4200, 3015, 1215}, "&Avvio"),
      EssResizer1(*this),
      servizi_(servizi) {
    MouseIcon(FrecciaGrande());
    Image1.AccessibleName("Labirinto");

    for (const Scritta& scritta : Scritte) {
        Label& label = Label2.Add(*this, scritta.Posto, scritta.Testo);
        label.Font(Fumetto(scritta.Punti));
        label.TextAlignment(Alignment::Centre);
        label.Transparent(true);
        label.ForeColor(BluScuro);
        label.Click = [this] { Label2_Click(); };
    }

    Command1.Picture({"icona/trameli.svg"});
    Command1.Font(Fumetto(PuntiBottone));
    Command1.MouseIcon(PuntatoreIcona());
    Command1.Click = [this] { Command1_Click(); };
}

FirstSight FormAvvio::PrimaVista() {
    return {Fumetto(PuntiBottone), {Immagine}};
}

void FormAvvio::Form_Load() {
    servizi_.Lingue.TraduciForm(*this);
    if (!Loaded()) {
        return;
    }
    EssResizer1.Carica();
}

void FormAvvio::Form_Resize() {
    EssResizer1.Ridimensiona();
    // A screen that turns or grows after the activation must not show a strip without background.
    if (sfondoDisegnato_) {
        DisegnaSfondo();
    }
}

void FormAvvio::Form_Activate() {
    DisegnaSfondo();
    if (servizi_.Stato.PuntatoreSistema) {
        Command1.MouseIcon(std::nullopt);
        MouseIcon(std::nullopt);
    }
    if (servizi_.Stato.UsaMaiuscolo) {
        Command1.Caption(Capitals(Command1.Caption()));
        Label2(0).Caption(Capitals(Label2(0).Caption()));
    }
}

void FormAvvio::Command1_Click() {
    MostraMenu();
}

void FormAvvio::Label2_Click() {
    MostraMenu();
}

/// From white at the top to pure blue at the bottom.
void FormAvvio::DisegnaSfondo() {
    Surface& superficie = Canvas();
    for (int fascia = 0; fascia < Fasce; ++fascia) {
        const int chiarore = Fasce - 1 - fascia;
        superficie.FillBox(0, Height() * fascia / Fasce, Width(), Height() * (fascia + 1) / Fasce,
                           Rgb(chiarore, chiarore, 255));
    }
    sfondoDisegnato_ = true;
}

void FormAvvio::MostraMenu() {
    Forms().HandOver(*this, "FormMenu");
}

}  // namespace trameli
