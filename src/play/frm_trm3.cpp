#include "play/frm_trm3.h"

#include <algorithm>

#include "base/rounding.h"

namespace trameli {

namespace {

constexpr DisegnoTrm Disegno{
    .Nome = "frmTrm3",
    .Dimensioni = {8400, 6255},
    .pictureTramelo = {120, 120, 5325, 4725},
    .Image2 = {600, 3120, 855, 735},
    .Image2Visibile = true,
    .LeftCoppe = {120, 1080, 2040, 2880},
    .TopCoppe = 5160,
    .LatoCoppe = 615,
    .BottoneAvanti = {4440, 5040, 1725, 780},
    .ConRipartenze = false,
    .SempreIntestata = false,
    .AttesaIniziale = 0,
};

}  // namespace

frmTrm3::frmTrm3(trameli::Forms& forms, Servizi& servizi, Casuale& casuale)
    : FormAPassi(forms, servizi, casuale, Disegno,
                 {servizi.Stato.RigheGriglia, servizi.Stato.ColonneGriglia}, {7200, 3600, 495, 495},
                 {6360, 4440, 615, 495}) {}

void frmTrm3::Accomoda() {
    const int scartoCoppe = Quotient(Nearest(Image1(0).Height()), 2);
    // The status bar needs more than what is left below the cups only where its font is very large.
    DisponiControlli(Height() - std::max(2 * BottoneAvanti.Height(),
                                         StatusBar1.Height() + scartoCoppe + Image1(0).Height()),
                     scartoCoppe);
}

void frmTrm3::Disponi() {
    ImpostaModoInput();
}

void frmTrm3::mnuNuovo_Click() {
    Sgombra();
    GeneraTramelo();
    InserisciPartenza();
    if (stato_.ModoInput == ScansioneManuale) {
        Timer1.Enabled(true);
    }
    AvviaScansione();
}

}  // namespace trameli
