#include "printing/frm_stampa.h"

#include <algorithm>

#include "platform/forms.h"
#include "platform/keys.h"
#include "platform/screen.h"
#include "printing/testi_stampa.h"
#include "shell/puntatori.h"

namespace trameli {

namespace {

constexpr Form::DesignSize Dimensioni{9360, 7845};
constexpr int Sottile = 1;
constexpr Colour Contorno = Rgb(128, 128, 128);
constexpr Colour Avviso = Rgb(255, 255, 192);

const Font Leggibile{"Arial", 9, false};
const Font Grassetto{"Arial", 9, true};
const Font Compatto{"Arial", 8.25, true};

std::string NomeDi(const frmStampa::Sorgente& sorgente) {
    return std::visit([](const auto* cosa) { return cosa->Name(); }, sorgente);
}

/// The form that it is, or lies on.
const Form& FormDi(const frmStampa::Sorgente& sorgente) {
    const Form* const* const form = std::get_if<Form*>(&sorgente);
    return form ? **form : std::get<Control*>(sorgente)->OwnerForm();
}

}  // namespace

frmStampa::frmStampa(trameli::Forms& forms, Servizi& servizi, StatoStampa& stato)
    : Form(forms, "frmStampa", Dimensioni, FormStyle::Windowed),
      zFrame1(*this, "zFrame1", {840, 240, 7215, 1095}, "Stampante"),
      zLabel1(zFrame1, "zLabel1", {120, 480, 1095, 315}, "Nome:"),
      cboPrinterNames(zFrame1, "cboPrinterNames", {1200, 480, 3255, 315}),
      cmdProprieta(zFrame1, "cmdProprieta", {4680, 360, 1815, 555}, "Proprietà"),

      fraFoglio(*this, "fraFoglio", {360, 1560, 5055, 2535}, "Foglio"),
      shpFoglio(fraFoglio, "shpFoglio", {360, 360, 2895, 1815}, Sottile, Contorno),
      shpBordo(fraFoglio, "shpBordo", {360, 360, 2805, 1845}, Sottile, Black),
      picPreview(fraFoglio, "picPreview", {360, 360, 2415, 1455}),
      lblStampaInCorso(picPreview, "lblStampaInCorso", {360, 600, 1095, 495}, "Stampa in corso..."),
      Label1(fraFoglio, "Label1", {3360, 480, 1455, 1215},
             "Clicca sul foglio per l'anteprima di stampa"),

      lblLblNCopie(*this, "lblLblNCopie", {5880, 2760, 1215, 375}, "N. di copie:"),
      txtNCopies(*this, "txtNCopies", {5880, 3120, 945, 345}),
      updNCopies(*this, "updNCopies", {6960, 3165, 240, 285}, txtNCopies, FrecceCopie.Minimo,
                 FrecceCopie.Massimo),

      zFrame2(*this, "zFrame2", {120, 4320, 4215, 1695}, "Margini Stampa"),
      zLabel7(zFrame2, "zLabel7", {120, 360, 735, 255}, "S&inistro:"),
      txtPrX(zFrame2, "txtPrX", {960, 360, 705, 285}),
      updPrX(zFrame2, "updPrX", {1665, 360, 270, 285}, txtPrX, LimitiMargine.Minimo,
             LimitiMargine.Massimo),
      zLabel9(zFrame2, "zLabel9", {0, 840, 855, 255}, "S&uperiore:"),
      txtPrY(zFrame2, "txtPrY", {960, 840, 705, 285}),
      updPrY(zFrame2, "updPrY", {1680, 840, 240, 285}, txtPrY, LimitiMargine.Minimo,
             LimitiMargine.Massimo),
      cmdOrigine(zFrame2, "cmdOrigine", {2160, 360, 1695, 795}, "Alto sinistra"),
      chkCentro(zFrame2, "chkCentro", {240, 1320, 3015, 255}, "Stampa &al centro"),

      zFrame3(*this, "zFrame3", {4560, 4320, 4215, 1695}, "Dimensioni Stampa"),
      zLabel8(zFrame3, "zLabel8", {0, 360, 1095, 255}, "Largh&ezza:"),
      txtPrW(zFrame3, "txtPrW", {1200, 360, 705, 285}),
      updPrW(zFrame3, "updPrW", {1905, 360, 270, 285}, txtPrW, FrecceMisura.Minimo,
             FrecceMisura.Massimo),
      zLabel2(zFrame3, "zLabel2", {240, 840, 855, 255}, "Alte&zza:"),
      txtPrH(zFrame3, "txtPrH", {1200, 840, 705, 285}),
      updPrH(zFrame3, "updPrH", {1920, 840, 240, 285}, txtPrH, FrecceMisura.Minimo,
             FrecceMisura.Massimo),
      cmdMax(zFrame3, "cmdMax", {2400, 360, 1455, 795}, "Massima"),
      chkProporzioni(zFrame3, "chkProporzioni", {240, 1320, 3495, 255}, "&Mantieni proporzioni"),

      cmdStampa(*this, "cmdStampa", {3840, 6240, 2295, 735}, "Stampa"),
      cmdChiudi(*this, "cmdChiudi", {6480, 6240, 2295, 735}, "&Chiudi"),
      imgPrinter(*this, "imgPrinter", {2280, 2400, 1320, 1065}, {"stampa/stampante.svg"}),

      picZoom(*this, "picZoom", {240, 0, 8775, 1515}),
      shpFoglioZoom(picZoom, "shpFoglioZoom", {3780, 1200, 315, 315}, Sottile, Contorno),
      picPreviewZoom(picZoom, "picPreviewZoom", {3840, 1260, 195, 195}),

      servizi_(servizi),
      stato_(stato),
      stampante_(servizi, stato) {
    Caption("Stampa");
    Vesti();
    DisponiFoglio();
    DisponiAnteprima();
    DisponiStampante();
}

void frmStampa::Vesti() {
    for (Control* const controllo : Controls()) {
        if (auto* const visto = dynamic_cast<InteractiveControl*>(controllo)) {
            visto->Font(Leggibile);
        }
    }
    for (Label* const scritta : {&zLabel7, &zLabel9, &zLabel8, &zLabel2}) {
        scritta->TextAlignment(Alignment::Right);
    }
    for (Label* const scritta :
         {&zLabel1, &zLabel7, &zLabel9, &zLabel8, &zLabel2, &Label1, &lblLblNCopie}) {
        scritta->Transparent(true);
    }
    lblStampaInCorso.TextAlignment(Alignment::Centre);
    lblStampaInCorso.BackColor(Avviso);
    lblStampaInCorso.Font(Compatto);
    cmdStampa.Font(Grassetto);
    shpFoglio.FillColor(White);
    shpFoglio.ToBack();  // filled, it would hide the line
}

void frmStampa::Form_Load() {
    Centra();
}

void frmStampa::Centra() {
    const Screen& schermo = Forms().Screen();
    // On a screen that is too small, its frame with the button to close it is the last to be lost.
    Left(std::max(0.0, (schermo.Width() - Width()) / 2));
    Top(std::max(0.0, (schermo.Height() - Height()) / 2));
}

/// Widens the window as a whole, as far as the screen has room, where a label beside a box has a
/// longer text in another language than there is room for.
void frmStampa::AllargaPerLaLingua() {
    double quanto = 1;
    for (const Label* const scritta : {&zLabel1, &zLabel7, &zLabel9, &zLabel8, &zLabel2}) {
        quanto = std::max(quanto, scritta->TextWidth() / scritta->Width());
    }
    quanto = std::min(quanto, Forms().Screen().Width() / Width());
    if (quanto <= 1) {
        return;
    }
    for (Control* const controllo : Controls()) {
        if (auto* const posto = dynamic_cast<PlacedControl*>(controllo)) {
            posto->Left(posto->Left() * quanto);
            posto->Width(posto->Width() * quanto);
        }
    }
    Width(Width() * quanto);
    Centra();
}

void frmStampa::StampaFPB(const Sorgente& sorgente, int x, int y, int w, int h, int orientamento,
                          const std::string& nomeDocumento) {
    if (Aperta()) {
        return;  // or on the way there: one at a time
    }
    sorgente_ = sorgente;
    const auto testo = [&](const TestoNumerato& quale) { return Testo(servizi_.Lingue, quale); };
    if (stato_.NomeStampante.empty() && !stampante_.ApriStampante(stato_.NomeStampante)) {
        Forms().Unload(*this);
        return;
    }
    if (Control* const* const altro = std::get_if<Control*>(&sorgente);
        altro && !dynamic_cast<PictureBox*>(*altro)) {
        Fallisci(testo(TestoStampa::StampaDi) + (*altro)->Name() + ARigaNuova + ARigaNuova +
                 testo(TestoStampa::ErroreDiStampa));
        return;
    }
    if (w == 0 || h == 0) {
        Fallisci(testo(TestoStampa::ErroreDiStampa));
        return;
    }
    txtPrX.Text(std::to_string(x));
    servizi_.Lingue.TraduciForm(*this);
    if (!Loaded()) {
        return;
    }
    AllargaPerLaLingua();
    txtPrY.Text(std::to_string(y));
    txtPrW.Text(std::to_string(w));
    txtPrH.Text(std::to_string(h));
    stato_.Proporzione = Rapporto(w, h);
    if (const std::optional<std::string> errore = Cattura()) {
        servizi_.Dialogs.Message(*errore, TitoloStampa, Icon::Critical, Buttons::Ok);
        Fallisci(testo(TestoStampa::UnErrore));
        return;
    }
    nomeDocumento_ = nomeDocumento.empty() ? NomeDi(sorgente) : nomeDocumento;
    orientamentoChiesto_ = orientamento;
    Forms().ServeEvents();
    if (!FormDi(sorgente).Loaded()) {
        Forms().Unload(*this);  // closed while this window was being made; nobody waits for it
        return;
    }
    Forms().Show("frmStampa", Modality::Modal);
}

bool frmStampa::Aperta() const {
    return std::visit([](const auto* cosa) { return cosa != nullptr; }, sorgente_);
}

/// Takes the picture of what is printed. Nothing if that worked, else what did not.
std::optional<std::string> frmStampa::Cattura() {
    if (trameli::Form* const* const form = std::get_if<trameli::Form*>(&sorgente_)) {
        return immagine_.CatturaForm(**form, Testo(servizi_.Lingue, TestoStampa::SenzaMisura));
    }
    return immagine_.CatturaImmagine(dynamic_cast<PictureBox&>(*std::get<Control*>(sorgente_)),
                                     Testo(servizi_.Lingue, TestoStampa::Interrotta));
}

void frmStampa::Fallisci(const std::string& messaggio) {
    if (Loaded()) {
        servizi_.Dialogs.Message(messaggio, TitoloStampa, Icon::Critical, Buttons::Ok);
    }
    Forms().Unload(*this);
}

void frmStampa::FoglioStampa(int& w, int& h, std::optional<int> orientamento) {
    stampante_.FoglioStampa(w, h, orientamento);
}

void frmStampa::Form_Activate() {
    // The window comes to the front again after each message.
    if (attivata_) {
        return;
    }
    attivata_ = true;
    imgPrinter.Visible(false);
    picPreview.MouseIcon(Lente());
    cornice_ = shpFoglio.Place();
    DisponiMiniatura();
    ElencaStampanti();
    if (!Loaded()) {
        return;
    }
    stato_.CopieIniziali = stato_.NumeroCopie;
    txtNCopies.Text(std::to_string(stato_.NumeroCopie == 0 ? 1 : stato_.NumeroCopie));
    (cmdStampa.Enabled() ? cmdStampa : cmdChiudi).SetFocus();
}

void frmStampa::Form_Resize() {
    if (picZoom.Visible()) {
        AggiornaZoom();
    }
}

bool frmStampa::Form_KeyDown(int keyCode, int /*shift*/) {
    const bool esce = keyCode == KeyEscape && picZoom.Visible();
    if (esce) {
        picPreviewZoom_Click();
    }
    return esce;
}

void frmStampa::Form_QueryClose() {
    if (inLavoro_) {
        chiudiDopo_ = true;  // not under the job's feet
        return;
    }
    Form::Form_QueryClose();
}

void frmStampa::Form_Unload() {
    if (!inLavoro_) {
        immagine_.Libera();
    }
}

}  // namespace trameli
