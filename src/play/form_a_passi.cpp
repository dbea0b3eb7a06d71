#include "play/form_a_passi.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "base/rounding.h"
#include "platform/forms.h"
#include "platform/keys.h"
#include "play/tasti.h"
#include "play/voce.h"

namespace trameli {

namespace {

/// Without anything taken in four rounds, the player may want to leave.
constexpr int OfferteFinoAllUscita = 4 * NumeroDirezioni;
/// With one switch it stays as long as two directions.
constexpr int DurataUscita = 2;

}  // namespace

FormAPassi::FormAPassi(trameli::Forms& forms, Servizi& servizi, Casuale& casuale,
                       const DisegnoTrm& disegno, DimensioniGriglia griglia,
                       const Bounds& automatica, const Bounds& manuale)
    : FormTrm(forms, servizi, casuale, disegno, griglia),
      PictureScansioneAutomatica(*this, "PictureScansioneAutomatica", automatica),
      PictureScansioneManuale(*this, "PictureScansioneManuale", manuale) {
    Timer1.Tick = [this] { Timer1_Timer(); };
    int ordine = 2;
    for (PictureBox* tasti : {&PictureScansioneAutomatica, &PictureScansioneManuale}) {
        tasti->TabIndex(ordine++);
        tasti->Visible(false);
        tasti->ToBack();
    }
    PictureScansioneAutomatica.AccessibleName("Scansione automatica");
    PictureScansioneAutomatica.KeyUp = [this](int keyCode, int) {
        PictureScansioneAutomatica_KeyUp(keyCode);
    };
    PictureScansioneManuale.AccessibleName("Scansione manuale");
    PictureScansioneManuale.KeyUp = [this](int keyCode, int) {
        PictureScansioneManuale_KeyUp(keyCode);
    };
}

/// Brings the keyboard to where the switches count, before the key goes down there. The timer alone
/// would not do: its next tick can be 15 seconds away, and while a solved maze is on show it stands
/// still. A click somewhere would then leave the player no way to go on.
bool FormAPassi::Form_KeyDown(int keyCode, int /*shift*/) {
    if (giro_.KeyDown(keyCode)) {
        return true;
    }
    if (stato_.ModoInput == Tastiera || (keyCode != KeySpace && keyCode != KeyEnter)) {
        return false;
    }
    // What is taken is what was on offer when the switch went down.
    if (BottoneAvanti.Visible()) {
        BottoneAvanti.SetFocus();
    } else if (stato_.ModoInput == ScansioneManuale) {
        PictureScansioneManuale.SetFocus();
        tenuto_ = keyCode == KeyEnter && !UscitaAppenaOfferta();
    } else if (keyCode == KeySpace) {
        // Nothing is taken if nothing was on offer.
        tenuto_ = offerto_;
        PictureScansioneAutomatica.SetFocus();
        return !offerto_;
    } else {
        return uscitaOfferta_ > 0;  // the button for leaving has the keyboard
    }
    return false;
}

void FormAPassi::Form_KeyUp(int keyCode, int /*shift*/) {
    if (stato_.ModoInput != Tastiera) {
        giro_.KeyUp(keyCode);
        return;
    }
    if (BottoneAvanti.Visible()) {
        BottoneAvanti.SetFocus();
        return;
    }
    const auto direzione = DirezioneDi(keyCode);
    if (direzione && InGioco()) {
        Muovi(*direzione);
    }
}

void FormAPassi::Timer1_Timer() {
    if (stato_.ModoInput == ScansioneManuale) {
        PictureScansioneManuale.SetFocus();
    } else if (stato_.ModoInput == ScansioneAutomatica && stato_.TrameloDisegnato &&
               !(tenuto_ && KeyIsDown(KeySpace))) {
        OffriProssima();
        if (uscitaOfferta_ == 0) {
            PictureScansioneAutomatica.SetFocus();
        }
    }
}

void FormAPassi::PictureScansioneManuale_KeyUp(int keyCode) {
    if (stato_.ModoInput != ScansioneManuale || !stato_.TrameloDisegnato) {
        return;
    }
    if (BottoneAvanti.Visible()) {
        BottoneAvanti_Click();
    } else if (keyCode == KeySpace) {
        OffriProssima();
    } else if (keyCode == KeyEnter && std::exchange(tenuto_, false) && InGioco()) {
        PrendiOfferta();
    }
}

void FormAPassi::PictureScansioneAutomatica_KeyUp(int keyCode) {
    // A new start meanwhile has taken the offer back.
    if (stato_.ModoInput == ScansioneAutomatica && keyCode == KeySpace &&
        std::exchange(tenuto_, false) && InGioco()) {
        TogliLineeRotazione();
        PrendiOfferta();
    }
}

Bounds FormAPassi::PostoBottoneMenu() const {
    const double left = Image1(0).Left();
    return {left, BottoneAvanti.Top(), BottoneAvanti.Left() - 2 * left,
            std::max(BottoneAvanti.Height(),
                     Image1(0).Top() + Image1(0).Height() - BottoneAvanti.Top())};
}

void FormAPassi::DisponiControlli(double altezza, double scartoCoppe) {
    pictureTramelo.Width(Width());
    pictureTramelo.Height(altezza);
    BottoneAvanti.Top(pictureTramelo.Height());
    BottoneAvanti.Left(Width() - 2 * BottoneAvanti.Width());
    Image1.ForEach([&](Image& coppa) { coppa.Top(BottoneAvanti.Top() + scartoCoppe); });
    if (BottoneMenu.Visible()) {
        BottoneMenu.Place(PostoBottoneMenu());
    }
}

void FormAPassi::ImpostaModoInput() {
    switch (stato_.ModoInput) {
        case ScansioneManuale:
            Timer1.Enabled(true);
            DirezioneScansione = 0;
            break;
        case ScansioneAutomatica:
            Timer1.Interval(stato_.VelocitaScansione * QuartoDiSecondo);
            DirezioneScansione = 0;
            break;
        default:
            Timer1.Enabled(false);
            break;
    }
    PictureScansioneManuale.Visible(stato_.ModoInput == ScansioneManuale);
    PictureScansioneAutomatica.Visible(stato_.ModoInput == ScansioneAutomatica);
}

void FormAPassi::AvviaScansione() {
    if (stato_.ModoInput == ScansioneAutomatica) {
        Timer1.Enabled(true);
    } else if (stato_.ModoInput == ScansioneManuale) {
        RidisegnaRotazione();
        offerte_ = 1;
    }
}

/// A direction, or once after some rounds the way out. No stroke is shown meanwhile: only one thing
/// is on offer.
void FormAPassi::OffriProssima() {
    if (uscitaOfferta_ > 0) {
        if (--uscitaOfferta_ > 0) {
            return;
        }
        MostraBottoneMenu(false);
        offerte_ = 0;
    } else if (offerte_ >= OfferteFinoAllUscita && InGioco()) {
        TogliLineeRotazione();
        uscitaOfferta_ = stato_.ModoInput == ScansioneAutomatica ? DurataUscita : 1;
        uscitaDa_ = Forms().Clock().Now();
        MostraBottoneMenu(true);
        offerto_ = true;
        return;
    }
    ++offerte_;
    OffriDirezione();
}

/// With two switches the keyboard is not on the button, whose newness would be minded there.
bool FormAPassi::UscitaAppenaOfferta() const {
    return uscitaOfferta_ > 0 && Forms().Clock().Now() - uscitaDa_ < Forms::Reaction;
}

void FormAPassi::OffriDirezione() {
    TogliTrattoScansione(pictureTramelo, traccia_.Testa(), DirezioneScansione, AspettoTratti());
    DirezioneScansione = DirezioneDopo(DirezioneScansione);
    DisegnaPercorsoPerStampa(pictureTramelo, traccia_, Aspetto());
    MostraOfferta();
    Announce([this] { return NomeDirezione(Offerta(), servizi_.Lingue); });
}

void FormAPassi::MostraOfferta() {
    const Punto testa = traccia_.Testa();
    const AspettoScansione aspetto = AspettoTratti();
    offerto_ = true;
    DisegnaTrattoScansione(pictureTramelo, testa, DirezioneScansione, aspetto);
    if (!aspetto.SopraIlSimbolo) {
        DisegnaSimbolo(pictureTramelo, testa, Aspetto());
    }
}

void FormAPassi::RimettiOfferta() {
    if (offerto_ && uscitaOfferta_ == 0) {
        MostraOfferta();
    }
}

void FormAPassi::TogliLineeRotazione() {
    offerto_ = false;
    for (std::int16_t direzione = 0; direzione < NumeroDirezioni; ++direzione) {
        TogliTrattoScansione(pictureTramelo, traccia_.Testa(), direzione, AspettoTratti());
    }
    DisegnaPercorsoPerStampa(pictureTramelo, traccia_, Aspetto());
}

void FormAPassi::PrendiOfferta() {
    if (uscitaOfferta_ > 0) {
        mnuEsci_Click();
        return;
    }
    offerte_ = stato_.ModoInput == ScansioneManuale ? 1 : 0;  // with two switches it stays on show
    Muovi(Offerta());
}

Lato FormAPassi::Offerta() const {
    return DirezioniScansione.at(static_cast<std::size_t>(DirezioneScansione));
}

}  // namespace trameli
