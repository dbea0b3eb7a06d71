// The print window's miniature of the page, and its enlargement.
#include <algorithm>

#include "platform/forms.h"
#include "platform/screen.h"
#include "printing/frm_stampa.h"
#include "printing/testi_stampa.h"

namespace trameli {

namespace {

// Of the miniature, from the outside: the outline, paper, a thin line, and the sheet. Pixels.
constexpr int FinoAlBordo = 3;
constexpr int FinoAlFoglio = 4;

}  // namespace

void frmStampa::DisponiAnteprima() {
    shpFoglioZoom.FillColor(White);
    picPreview.BackColor(White);
    picPreviewZoom.BackColor(White);
    picPreview.AccessibleName("Anteprima di stampa");
    picPreview.TakesKeyboard(true);
    picPreview.Click = [this] { picPreview_Click(); };

    picZoom.Visible(false);
    picZoom.TakesKeyboard(false);  // what lies on it does
    picZoom.Click = [this] { picZoom_Click(); };
    picPreviewZoom.AccessibleName("Anteprima di stampa ingrandita");
    picPreviewZoom.TakesKeyboard(true);
    picPreviewZoom.Click = [this] { picPreviewZoom_Click(); };
    const auto suggerisci = [this](PictureBox& dove, const TestoNumerato& testo) {
        dove.ToolTipText("Chiudi");
        dove.MouseMove = [this, &dove, testo] {
            dove.ToolTipText("");
            dove.ToolTipText(Testo(servizi_.Lingue, testo));
        };
    };
    suggerisci(picPreviewZoom, TestoStampa::ChiudiAnteprima);
    suggerisci(picZoom, TestoStampa::ChiudiZoom);
}

void frmStampa::DimensionaFoglio() {
    DisponiMiniatura();
    AggiornaAnteprima();
}

/// Gives the miniature the sheet's proportions, or leaves its own where there is no sheet.
void frmStampa::DisponiMiniatura() {
    const double px = Forms().Screen().TwipsPerPixelX();
    const double py = Forms().Screen().TwipsPerPixelY();
    const Bounds misura = HaMisura(stato_.Foglio) ? Miniatura(stato_.Foglio) : picPreview.Place();
    const auto intorno = [&](int pixel) {
        const int dentro = FinoAlFoglio - pixel;
        return Bounds{cornice_.Left + pixel * px, cornice_.Top + pixel * py,
                      misura.Width + 2 * dentro * px, misura.Height + 2 * dentro * py};
    };
    shpFoglio.Place(intorno(0));
    shpBordo.Place(intorno(FinoAlBordo));
    picPreview.Place(intorno(FinoAlFoglio));
}

void frmStampa::AggiornaAnteprima() {
    if (!HaMisura(stato_.Foglio)) {
        return;
    }
    if (chkCentro.Value()) {
        Scrivi(Centrato(stato_.Posto, stato_.Foglio));
    }
    if (!DisegnaImmagine(picPreview)) {
        ErroreDiCopia(TestoStampa::TitoloPreview);
    }
}

void frmStampa::AggiornaZoom() {
    if (!IngrandisciFoglio()) {
        ErroreDiCopia(TestoStampa::TitoloZoom);
    }
}

bool frmStampa::IngrandisciFoglio() {
    const HoldPainting insieme(*this);
    picZoom.Place({BordoZoom, BordoZoom, std::max(0.0, ScaleWidth() - 2 * BordoZoom),
                   std::max(0.0, ScaleHeight() - 2 * BordoZoom)});
    picZoom.ToFront();
    const float rapporto = HaMisura(stato_.Foglio)
                               ? Rapporto(stato_.Foglio.Width, stato_.Foglio.Height)
                               : static_cast<float>(picPreview.Width() / picPreview.Height());
    const Bounds foglio = FoglioIngrandito(picZoom.Width(), picZoom.Height(), rapporto);
    shpFoglioZoom.Place(foglio);
    picPreviewZoom.Place({foglio.Left + BordoZoom, foglio.Top + BordoZoom,
                          std::max(0.0, foglio.Width - 2 * BordoZoom),
                          std::max(0.0, foglio.Height - 2 * BordoZoom)});
    return DisegnaImmagine(picPreviewZoom);
}

void frmStampa::ErroreDiCopia(const TestoNumerato& titolo) {
    servizi_.Dialogs.Message(Testo(servizi_.Lingue, TestoStampa::ErroreDiCopia),
                             Testo(servizi_.Lingue, titolo), Icon::Critical, Buttons::Ok);
}

/// Draws the picture where it will be printed on the surface, which stands for the whole sheet.
/// Without a picture, or a sheet, the surface keeps what it shows.
bool frmStampa::DisegnaImmagine(PictureBox& superficie) {
    if (!immagine_.Presente() || !HaMisura(stato_.Foglio)) {
        return true;
    }
    Immagine::Memoria copia;
    const PixelBlock blocco = stato_.ColoreStampante == PrinterSettings::Grey
                                  ? immagine_.InGrigi(copia)
                                  : immagine_.Blocco();
    if (!blocco.Bits) {
        return false;
    }
    superficie.Cls();
    return superficie.StretchPixels(
        SullAnteprima(stato_.Posto, stato_.Foglio, superficie.ScaleWidthPixels(),
                      superficie.ScaleHeightPixels()),
        blocco);
}

void frmStampa::picPreview_Click() {
    if (inLavoro_) {
        return;
    }
    picZoom.Visible(true);
    WindowState(Maximised);
    Forms().ServeEvents();
    if (!Loaded()) {
        return;
    }
    AggiornaZoom();
    picPreviewZoom.SetFocus();
    AbilitaSfondo(false);
}

void frmStampa::picZoom_Click() {
    WindowState(Normal);
    LasciaZoom();
}

void frmStampa::picPreviewZoom_Click() {
    LasciaZoom();
    WindowState(Normal);
}

void frmStampa::LasciaZoom() {
    picZoom.Visible(false);
    AbilitaSfondo(true);
    picPreview.SetFocus();
}

/// What lies under the enlargement must not have the keyboard.
void frmStampa::AbilitaSfondo(bool abilitato) {
    fraFoglio.Enabled(abilitato);
    Abilita(abilitato);
}

}  // namespace trameli
