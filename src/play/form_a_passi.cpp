#include "play/form_a_passi.h"

#include <algorithm>
#include <array>

#include "base/rounding.h"
#include "platform/keys.h"

namespace trameli {

namespace {

struct Tasto {
    int Codice;
    Lato Direzione;
};

constexpr std::array<Tasto, 8> Tasti{{
    {KeyLeft, Lato::Sinistra},
    {KeyPad4, Lato::Sinistra},
    {KeyUp, Lato::Alto},
    {KeyPad8, Lato::Alto},
    {KeyRight, Lato::Destra},
    {KeyPad6, Lato::Destra},
    {KeyDown, Lato::Basso},
    {KeyPad2, Lato::Basso},
}};

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
    const auto tasto = std::find_if(Tasti.begin(), Tasti.end(),
                                    [=](const Tasto& t) { return t.Codice == keyCode; });
    if (tasto != Tasti.end()) {
        Muovi(tasto->Direzione);
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
