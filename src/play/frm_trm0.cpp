#include "play/frm_trm0.h"

#include <string>

namespace trameli {

namespace {

constexpr DisegnoTrm Disegno{
    .Nome = "frmTrm0",
    .Dimensioni = {9255, 6480},
    .pictureTramelo = {120, 120, 5325, 4725},
    .Image2 = {600, 3120, 855, 735},
    .Image2Visibile = false,
    .Image1 = {{240, 1080, 2040, 2880}, 5400, 615},
    .BottoneAvanti = {7320, 5400, 1725, 660},
    .PictureScansioneAutomatica = Bounds{7320, 2400, 495, 495},
    .PictureScansioneManuale = Bounds{6120, 1920, 615, 495},
    .ConMuri = true,
};

}  // namespace

frmTrm0::frmTrm0(trameli::Forms& forms, Servizi& servizi, Casuale& casuale)
    : FormAPassi(forms, servizi, casuale, Disegno) {
    PictureMuri.Add(pictureTramelo, Bounds{4080, 480, 900, 900}).Visible(false);
    mnuLineeMuri->Enabled(false);  // until there are bars
}

void frmTrm0::Disponi() {
    DisponiControlli(Height() - BottoneAvanti.Height() - 2 * StatusBar1.Height(), 0);
    LineeMuri = stato_.LineeNeiPrimiLivelli;
    ScriviLineeMuri();
    ImpostaModoInput();
}

void frmTrm0::mnuNuovo_Click() {
    FormAPassi::mnuNuovo_Click();
    if (!HaTramelo()) {
        return;
    }
    // A second draw: this picture, not the one that came with the maze, is the one that stays.
    InserisciArrivo();
    if (stato_.ModoInput == 2) {
        Timer1.Enabled(true);
    } else if (stato_.ModoInput == 1) {
        RidisegnaRotazione();
    }
}

void frmTrm0::AzzeraContatori() {
    ContaPassi = 0;
    ScriviPassi();
    ContaBoing = 0;
    ScriviBoing("boing ");
}

Pareti frmTrm0::AspettoPareti() const {
    return LineeMuri ? Pareti::Linee : Pareti::Barre;
}

void frmTrm0::InserisciArrivo() {
    FormAPassi::InserisciArrivo();
    Image2.Visible(true);
}

void frmTrm0::ScriviLineeMuri() {
    const std::string testo = servizi_.Lingue.TestoLingua(LineeMuri ? "0018" : "0017");
    // An entry without a caption could not be told from a gap in the menu.
    if (!testo.empty()) {
        mnuLineeMuri->Caption(testo);
    }
}

}  // namespace trameli
