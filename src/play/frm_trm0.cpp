#include "play/frm_trm0.h"

#include <string>

#include "drawing/muri_a_barre.h"
#include "platform/forms.h"
#include "play/form_archivio.h"

namespace trameli {

namespace {

constexpr DisegnoTrm Disegno{
    .Nome = "frmTrm0",
    .Dimensioni = {9255, 6480},
    .pictureTramelo = {120, 120, 5325, 4725},
    .Image2 = {600, 3120, 855, 735},
    .Image2Visibile = false,
    .LeftCoppe = {240, 1080, 2040, 2880},
    .TopCoppe = 5400,
    .LatoCoppe = 615,
    .BottoneAvanti = {7320, 5400, 1725, 660},
    .ConRipartenze = false,
    .SempreIntestata = true,
    .AttesaIniziale = 0.5,
};

constexpr double TempoStampa = 1;  // seconds in which the white maze is seen

}  // namespace

frmTrm0::frmTrm0(trameli::Forms& forms, Servizi& servizi, Casuale& casuale)
    : FormAPassi(forms, servizi, casuale, Disegno, {6, 9}, {7320, 2400, 495, 495},
                 {6120, 1920, 615, 495}),
      mnuLineeMuri(mnuTrameli, "mnuLineeMuri", "Usa linee", 'M', &mnuLinee) {
    mnuLineeMuri.Click = [this] { mnuLineeMuri_Click(); };
    PictureMuri.Add(pictureTramelo, Bounds{4080, 480, 900, 900}).Visible(false);
}

void frmTrm0::Accomoda() {
    DisponiControlli(Height() - BottoneAvanti.Height() - 2 * StatusBar1.Height(), 0);
}

void frmTrm0::Disponi() {
    LineeMuri = stato_.LineeNeiPrimiLivelli;
    ScriviLineeMuri();
    ImpostaModoInput();
}

void frmTrm0::mnuNuovo_Click() {
    Sgombra();
    if (!LineeMuri) {
        IndiceMuro = static_cast<std::int16_t>(casuale_.FinoA(Archivio().PictureMuro.Count()));
    }
    GeneraTramelo();
    InserisciPartenza();
    // A second draw: this picture, not the one that came with the maze, is the one that stays.
    InserisciArrivo();
    AvviaScansione();
}

Pareti frmTrm0::AspettoPareti() const {
    return LineeMuri ? Pareti::Linee : Pareti::Barre;
}

void frmTrm0::DisegnaTramelo() {
    if (LineeMuri) {
        DisegnaConLinee();
    } else {
        SistemaMuri();
    }
}

void frmTrm0::DisegnaConLinee() {
    TogliMuri(0);
    FormAPassi::DisegnaTramelo();
}

void frmTrm0::SistemaMuri() {
    const Picture& disegno = Archivio().PictureMuro(IndiceMuro).Picture();
    PictureMuri(0).Width(geometria_.DimensioneCella);
    PictureMuri(0).Height(geometria_.DimensioneCella);
    PictureMuri(0).Picture(disegno);
    // The bars of the last maze are taken again where they are needed: to destroy seventy controls
    // and make them anew takes longer than drawing them.
    std::int16_t pezzi = 0;
    for (const Bounds& posto : PostiBarre(tramelo_, geometria_)) {
        PictureBox& muro = PictureMuri.Load(++pezzi);
        muro.Enabled(false);  // a click on a wall takes the keyboard from nobody
        muro.Picture(disegno);
        muro.Place(posto);
        muro.Visible(true);
    }
    TogliMuri(pezzi);
    stato_.TrameloDisegnato = true;
}

void frmTrm0::TogliMuri(std::int16_t restano) {
    for (; ContaPezziMuro > restano; --ContaPezziMuro) {
        PictureMuri.Unload(ContaPezziMuro);
    }
    ContaPezziMuro = restano;
}

bool frmTrm0::StampaTramelo() {
    servizi_.Printers.FormOrientation(PrinterSettings::Landscape);
    servizi_.Printers.PrintForm(*this, NomeDocumento);
    RimettiOfferta();  // a switch may be pressed in that second
    return Attesa(TempoStampa);
}

void frmTrm0::mnuLineeMuri_Click() {
    LineeMuri = !LineeMuri;
    ScriviLineeMuri();
    mnuRicomincia_Click();
}

void frmTrm0::ScriviLineeMuri() {
    const std::string testo = servizi_.Lingue.TestoLingua(LineeMuri ? "0018" : "0017");
    // An entry without a caption could not be told from a gap in the menu.
    if (!testo.empty()) {
        mnuLineeMuri.Caption(testo);
    }
}

}  // namespace trameli
