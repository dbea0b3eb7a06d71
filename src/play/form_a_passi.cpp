#include "play/form_a_passi.h"

#include "base/rounding.h"
#include "play/tasti.h"

namespace trameli {

namespace {

constexpr int QuartoDiSecondo = 250;  // milliseconds

}  // namespace

void FormAPassi::Form_KeyUp(int keyCode, int /*shift*/) {
    if (stato_.ModoInput != 0) {
        return;
    }
    if (BottoneAvanti.Visible()) {
        BottoneAvanti.SetFocus();
        return;
    }
    if (giocatore_.TrameloRisolto() || !HaTramelo()) {
        return;
    }
    ColoreTratto = Nearest(stato_.ColoreAvanti);
    if (const auto direzione = DirezioneDi(keyCode)) {
        Muovi(*direzione);
    }
}

void FormAPassi::DisponiControlli(double altezza, double scartoCoppe) {
    pictureTramelo.Width(Width());
    pictureTramelo.Height(altezza);
    BottoneAvanti.Top(pictureTramelo.Height());
    BottoneAvanti.Left(Width() - 2 * BottoneAvanti.Width());
    Image1.ForEach([&](Image& coppa) {
        coppa.Visible(false);
        coppa.Top(BottoneAvanti.Top() + scartoCoppe);
    });
}

void FormAPassi::ImpostaModoInput() {
    switch (stato_.ModoInput) {
        case 1:
            Timer1.Enabled(true);
            break;
        case 2:
            Timer1.Interval(stato_.VelocitaScansione * QuartoDiSecondo);
            break;
        default:
            Timer1.Enabled(false);
            break;
    }
    PictureScansioneManuale->Visible(stato_.ModoInput == 1);
    PictureScansioneAutomatica->Visible(stato_.ModoInput == 2);
}

}  // namespace trameli
