// The print window's printers, and its jobs.
#include <algorithm>
#include <initializer_list>
#include <utility>

#include "base/leading_number.h"
#include "base/rounding.h"
#include "platform/forms.h"
#include "printing/frm_stampa.h"
#include "printing/lavoro.h"
#include "printing/testi_stampa.h"

namespace trameli {

namespace {

constexpr int CifreCopie = 4;

}  // namespace

void frmStampa::DisponiStampante() {
    cboPrinterNames.AccessibleName("Nome della stampante");
    cboPrinterNames.Click = [this] { cboPrinterNames_Click(); };
    cmdProprieta.Click = [this] { cmdProprieta_Click(); };
    txtNCopies.AccessibleName("Numero di copie");
    txtNCopies.MaxLength(CifreCopie);
    txtNCopies.KeyPress = [this](int tasto) {
        return FiltraTastoNumerico(txtNCopies, tasto, false);
    };
    txtNCopies.Change = [this] { stato_.NumeroCopie = Nearest(LeadingNumber(txtNCopies.Text())); };
    cmdStampa.Default(true);
    cmdStampa.Click = [this] { cmdStampa_Click(); };
    cmdChiudi.Cancel(true);
    cmdChiudi.Click = [this] { cmdChiudi_Click(); };
    lblStampaInCorso.Visible(false);
}

/// Lists the printers that there are now and chooses the one in force, or else the first.
void frmStampa::ElencaStampanti() {
    stato_.DatiStampanteIniziali = stato_.DatiStampante;
    stato_.ColoreStampante = stato_.DatiStampante.Colour;
    if (orientamentoChiesto_ == PrinterSettings::Portrait ||
        orientamentoChiesto_ == PrinterSettings::Landscape) {
        stato_.DatiStampante.Orientation = orientamentoChiesto_;
    }
    int scelta = 0;
    for (const std::string& nome : servizi_.Printers.Names()) {
        if (nome == stato_.NomeStampante) {
            scelta = cboPrinterNames.ListCount();
        }
        cboPrinterNames.AddItem(nome);
    }
    const bool qualcuna = cboPrinterNames.ListCount() > 0;
    cmdStampa.Enabled(qualcuna);
    cmdProprieta.Enabled(qualcuna);
    cboPrinterNames.ListIndex(scelta);
}

void frmStampa::cboPrinterNames_Click() {
    stampanteScelta_ = cboPrinterNames.Text();
    if (!stampante_.ApriStampante(stampanteScelta_) || !Loaded()) {
        return;
    }
    LeggiFoglio();
    stato_.ColoreStampante = stato_.DatiStampante.Colour;
    DimensionaFoglio();
}

void frmStampa::LeggiFoglio() {
    int orientamento = 0;
    stampante_.LeggiDimensioniFoglio(stampanteScelta_, stato_.Foglio, orientamento);
}

void frmStampa::cmdProprieta_Click() {
    PrinterSettings& dati = stato_.DatiStampante;
    // The boxes hold what was typed, which may be nothing at all.
    dati.Copies = std::max(1, Nearest(LeadingNumber(txtNCopies.Text())));
    stampante_.MostraProprietaStampante();
    const int copie = std::exchange(dati.Copies, 1);  // the job makes the copies itself
    if (!Loaded()) {
        return;
    }
    LeggiFoglio();
    if (LeadingNumber(txtNCopies.Text()) != copie) {
        txtNCopies.Text(std::to_string(copie));
    }
    stato_.ColoreStampante = dati.Colour;
    DimensionaFoglio();
}

void frmStampa::cmdStampa_Click() {
    inLavoro_ = true;
    Abilita(false);
    picPreview.TakesKeyboard(false);
    stato_.NomeStampante = stampanteScelta_;
    lblStampaInCorso.Left((picPreview.Width() - lblStampaInCorso.Width()) / 2);
    lblStampaInCorso.Top((picPreview.Height() - lblStampaInCorso.Height()) / 2);
    lblStampaInCorso.Visible(true);
    Forms().ServeEvents();
    Lavoro lavoro(*this, servizi_, stato_, immagine_, [this] { return !chiudiDopo_; });
    const bool stampata = Loaded() && lavoro.StampaImmagine(stato_.Posto, nomeDocumento_);
    inLavoro_ = false;
    if (!Loaded()) {
        immagine_.Libera();
        return;
    }
    if (stampata || chiudiDopo_) {
        Forms().Unload(*this);
        return;
    }
    lblStampaInCorso.Visible(false);
    Abilita(true);
    picPreview.TakesKeyboard(true);
    cmdStampa.SetFocus();
    if (!immagine_.Presente() && Aperta()) {
        // For another try. Nothing is told if it fails: that try would tell.
        static_cast<void>(Cattura());
    }
}

void frmStampa::cmdChiudi_Click() {
    stato_.NumeroCopie = stato_.CopieIniziali;
    stato_.DatiStampante = stato_.DatiStampanteIniziali;
    Forms().Unload(*this);
}

/// Lets the player use the window, or not while something else has its turn. The preview can still
/// be seen.
void frmStampa::Abilita(bool abilitati) {
    for (InteractiveControl* const controllo : std::initializer_list<InteractiveControl*>{
             &zFrame1, &txtNCopies, &updNCopies, &zFrame2, &zFrame3, &cmdChiudi}) {
        controllo->Enabled(abilitati);
    }
    cmdStampa.Enabled(abilitati && cboPrinterNames.ListCount() > 0);
}

}  // namespace trameli
