// The print window's numbers: margins, size, proportions.
#include <initializer_list>
#include <string>

#include "base/leading_number.h"
#include "base/rounding.h"
#include "platform/forms.h"
#include "printing/frm_stampa.h"

namespace trameli {

void frmStampa::DisponiFoglio() {
    struct Casella {
        TextBox& Testo;
        UpDown& Frecce;
        int PostoStampa::*Numero;
        Limiti Range;
        bool ConMeno;
        void (frmStampa::*Scelta)();
    };
    for (const Casella& casella :
         {Casella{txtPrW, updPrW, &PostoStampa::W, LimitiMisura, false,
                  &frmStampa::LarghezzaScelta},
          Casella{txtPrH, updPrH, &PostoStampa::H, LimitiMisura, false, &frmStampa::AltezzaScelta},
          Casella{txtPrX, updPrX, &PostoStampa::X, LimitiMargine, true,
                  &frmStampa::AggiornaAnteprima},
          Casella{txtPrY, updPrY, &PostoStampa::Y, LimitiMargine, true,
                  &frmStampa::AggiornaAnteprima}}) {
        casella.Testo.Change = [this, casella] {
            NumeroCambiato(casella.Testo, stato_.Posto.*casella.Numero, casella.Range);
        };
        casella.Testo.KeyPress = [casella](int tasto) {
            return FiltraTastoNumerico(casella.Testo, tasto, casella.ConMeno);
        };
        const auto scelta = [this, casella] { (this->*casella.Scelta)(); };
        casella.Testo.KeyUp = [scelta](int, int) { scelta(); };
        casella.Testo.EditedByMouse = scelta;
        casella.Frecce.Change = scelta;
    }
    chkProporzioni.Value(true);
    chkProporzioni.Click = [this] { chkProporzioni_Click(); };
    chkCentro.Click = [this] { chkCentro_Click(); };
    cmdMax.Click = [this] { cmdMax_Click(); };
    cmdMax.ToolTipText("Usa tutto il foglio");
    cmdOrigine.Click = [this] { cmdOrigine_Click(); };
    cmdOrigine.ToolTipText("Imposta i margini a 0");
}

int frmStampa::FiltraTastoNumerico(const TextBox& casella, int keyAscii, bool consentiMeno) {
    return trameli::FiltraTastoNumerico(keyAscii, consentiMeno, casella.Text(), casella.SelText(),
                                        casella.SelStart());
}

/// A number out of its range is replaced at once, which is a change of its own.
void frmStampa::NumeroCambiato(TextBox& casella, int& numero, const Limiti& limiti) {
    const double scritto = LeadingNumber(casella.Text());
    if (scritto < limiti.Minimo) {
        casella.Text(std::to_string(limiti.Minimo));
    } else if (scritto > limiti.Massimo) {
        casella.Text(std::to_string(limiti.Massimo));
    }
    numero = Nearest(LeadingNumber(casella.Text()));
}

void frmStampa::LarghezzaScelta() {
    if (chkProporzioni.Value()) {
        txtPrH.Text(std::to_string(AltezzaPer(stato_.Posto.W, stato_.Proporzione)));
        Forms().ServeEvents();
    }
    AggiornaSeHaMisura();
}

void frmStampa::AltezzaScelta() {
    if (chkProporzioni.Value()) {
        txtPrW.Text(std::to_string(LarghezzaPer(stato_.Posto.H, stato_.Proporzione)));
        Forms().ServeEvents();
    }
    AggiornaSeHaMisura();
}

/// The width always wins.
void frmStampa::chkProporzioni_Click() {
    if (chkProporzioni.Value()) {
        LarghezzaScelta();
    }
}

void frmStampa::AggiornaSeHaMisura() {
    if (Loaded() && stato_.Posto.W > 1 && stato_.Posto.H > 1) {
        AggiornaAnteprima();
    }
}

void frmStampa::chkCentro_Click() {
    const bool aMano = !chkCentro.Value();
    for (InteractiveControl* const controllo : std::initializer_list<InteractiveControl*>{
             &txtPrX, &txtPrY, &updPrX, &updPrY, &cmdOrigine}) {
        controllo->Enabled(aMano);
    }
    if (!aMano) {
        AggiornaAnteprima();
    }
}

void frmStampa::cmdMax_Click() {
    Scrivi(Massima(stato_.Posto, stato_.Foglio, stato_.Proporzione, chkProporzioni.Value(),
                   chkCentro.Value()));
    AggiornaAnteprima();
}

void frmStampa::cmdOrigine_Click() {
    Scrivi({0, 0, stato_.Posto.W, stato_.Posto.H});
    AggiornaAnteprima();
}

/// Puts the numbers into the boxes, also where another text stands for the same one.
void frmStampa::Scrivi(const PostoStampa& posto) {
    txtPrW.Text(std::to_string(posto.W));
    txtPrH.Text(std::to_string(posto.H));
    txtPrX.Text(std::to_string(posto.X));
    txtPrY.Text(std::to_string(posto.Y));
}

}  // namespace trameli
