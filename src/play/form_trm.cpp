#include "play/form_trm.h"

#include <string>

#include "base/rounding.h"
#include "platform/forms.h"

namespace trameli {

FormTrm::FormTrm(trameli::Forms& forms, Servizi& servizi, Casuale& casuale,
                 const DisegnoTrm& disegno)
    : TavolaTrm(forms, servizi, casuale, disegno) {
    mnuNuovo.Click = [this] { mnuNuovo_Click(); };
    mnuRicomincia.Click = [this] { mnuRicomincia_Click(); };
    mnuColora.Click = [this] { mnuColora_Click(); };
    mnuLinee.Click = [this] { mnuLinee_Click(); };
    mnuEsci.Click = [this] { mnuEsci_Click(); };
    BottoneAvanti.Click = [this] { BottoneAvanti_Click(); };
    BottoneAvanti.GotFocus = [this] { BottoneAvanti_GotFocus(); };
}

void FormTrm::Form_Load() {
    if (stato_.PuntatoreSistema) {
        BottoneAvanti.MouseIcon(std::nullopt);
    }
    stato_.TrameloDisegnato = false;
}

void FormTrm::Form_Activate() {
    ScriviIntestazione();
    if (DaPreparare()) {
        PreparaGioco();
    }
}

bool FormTrm::DaPreparare() const {
    return !stato_.TrameloDisegnato && !preparando_;
}

void FormTrm::ScriviIntestazione() {
    StatusBar1.Panel(1, stato_.NomeGiocatore);
    StatusBar1.Panel(2, servizi_.Lingue.TestoLingua("0022") + std::to_string(stato_.Livello + 1));
}

void FormTrm::PreparaGioco() {
    preparando_ = true;
    BackColor(Nearest(stato_.ColoreSfondo));
    Alloca();
    TrameliRisolti = 0;
    Disponi();
    ImpostaGeometria();
    ImpostaSpessori();
    pictureTramelo.Left(0);
    pictureTramelo.Top(0);
    pictureTramelo.BackColor(Nearest(stato_.ColoreSfondo));
    if (!Attesa(AttesaIniziale())) {
        return;
    }
    preparando_ = false;
    mnuNuovo_Click();
    if (Loaded() && stato_.ModoInput == ScansioneManuale && HaTramelo()) {
        RidisegnaRotazione();
    }
}

void FormTrm::mnuNuovo_Click() {
    if (!tramelo_) {
        return;  // chosen before the form was activated
    }
    Sgombra();
    ScegliMuri();
    GeneraTramelo();
    InserisciPartenza();
    AvviaTramelo();
}

void FormTrm::Sgombra() {
    BottoneAvanti.Visible(false);
    AzzeraContatori();
    pictureTramelo.Cls();
}

void FormTrm::mnuRicomincia_Click() {
    pictureTramelo.Cls();
    if (SpessoriAllaRipartenza()) {
        ImpostaSpessori();
    }
    if (!HaTramelo()) {
        return;
    }
    DisegnaTramelo();
    AzzeraVariabili();
    giocatore_.TornaAllaPartenza();
    InserisciPartenza();
}

void FormTrm::mnuColora_Click() {
    stato_.ColoraCasella = !stato_.ColoraCasella;
    mnuColora.Checked(stato_.ColoraCasella);
    mnuRicomincia_Click();
}

void FormTrm::mnuLinee_Click() {
    stato_.SpessoreLinee = static_cast<std::int16_t>((stato_.SpessoreLinee + 1) % NumeroSpessori);
    if (!SpessoriAllaRipartenza()) {
        ImpostaSpessori();
    }
    mnuRicomincia_Click();
}

void FormTrm::mnuEsci_Click() {
    Timer1.Enabled(false);
    Forms().Show("FormMenu");
    Forms().Unload(*this);
}

void FormTrm::BottoneAvanti_GotFocus() {
    // The button can get the focus a second time, from the Tab key or a click, and then finds the
    // timer as it left it. A timer that once ran has to run again, or scanning would stand still
    // in the next maze.
    StatoTimerSalvato = StatoTimerSalvato || Timer1.Enabled();
    Timer1.Enabled(false);
}

void FormTrm::BottoneAvanti_Click() {
    Timer1.Enabled(StatoTimerSalvato);
    mnuNuovo_Click();
}

void FormTrm::AzzeraContatori() {
    ContaBoing = 0;
    ContaPassi = 0;
    ScriviPassi();
    ScriviBoing("boing ");
}

void FormTrm::ScriviBoing(const char* parola) {
    StatusBar1.Panel(3, parola + std::to_string(ContaBoing));
}

void FormTrm::ScriviPassi() {
    StatusBar1.Panel(4, servizi_.Lingue.TestoLingua("0023") + std::to_string(ContaPassi));
}

}  // namespace trameli
