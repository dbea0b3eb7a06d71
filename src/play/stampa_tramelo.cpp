// A play form's maze on its way to paper.
#include "base/rounding.h"
#include "platform/forms.h"
#include "play/form_trm.h"

namespace trameli {

namespace {

// What the print window begins with, millimetres.
constexpr int Margine = 10;
constexpr int LatoStampa = 100;

}  // namespace

void FormTrm::mnuStampa_Click() {
    // Before the first maze there is nothing to print, and the entry chosen a second time while the
    // first one's page is under way wants no other page.
    if (!stato_.TrameloDisegnato || stampando_) {
        return;
    }
    stampando_ = true;
    RidisegnaSu(White);
    if (!StampaTramelo()) {
        return;
    }
    stampando_ = false;
    RidisegnaSu(Nearest(stato_.ColoreSfondo));
    RimettiOfferta();
    if (complimentiAttesi_) {
        Complimenti();
    }
}

bool FormTrm::StampaTramelo() {
    pictureStampa.Picture(pictureTramelo);
    servizi_.Stampa.StampaFPB(pictureStampa, Margine, Margine, LatoStampa, LatoStampa,
                              PrinterSettings::Landscape, NomeDocumento);
    if (!Loaded()) {
        return false;
    }
    pictureStampa.Picture(Picture{});  // the copy is as large as the screen
    return true;
}

void FormTrm::RidisegnaSu(Colour sfondo) {
    pictureTramelo.BackColor(sfondo);
    BackColor(sfondo);
    DisegnaTramelo();
    DisegnaPercorsoPerStampa(pictureTramelo, traccia_, Aspetto());
}

}  // namespace trameli
