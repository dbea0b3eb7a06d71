// The moves of FormTrm, and what they end in.
#include "base/rounding.h"
#include "platform/forms.h"
#include "play/form_trm.h"

namespace trameli {

void FormTrm::Muovi(Lato lato) {
    if (giocatore_.PrimaMossa()) {
        PrimoPasso(lato);
        return;
    }
    switch (lato) {
        case Lato::Sinistra:
            Sinistra();
            break;
        case Lato::Alto:
            Alto();
            break;
        case Lato::Destra:
            Destra();
            break;
        case Lato::Basso:
            Basso();
            break;
    }
}

void FormTrm::Sinistra() {
    Passo(Lato::Sinistra);
}

void FormTrm::Alto() {
    Passo(Lato::Alto);
}

void FormTrm::Destra() {
    Passo(Lato::Destra);
}

void FormTrm::Basso() {
    Passo(Lato::Basso);
}

void FormTrm::PrimoPasso(Lato lato) {
    // The half cell through the opening walks no passage, so that it always has the first colour.
    if (giocatore_.PrimoPasso(lato, *tramelo_) == Esito::Passo) {
        DisegnaLinea();
    } else {
        ColpitoMuro();
    }
}

void FormTrm::Passo(Lato lato) {
    const Passaggio passaggio = PassaggioDa(giocatore_.CellaCorrente(), lato);
    switch (giocatore_.Passo(lato, *tramelo_)) {
        case Esito::Urto:
            ColpitoMuro();
            break;
        case Esito::Passo:
            if (stato_.CambiaColoreRitorno) {
                const bool avanti = traccia_.Attraversa(passaggio);
                ColoreTratto = Nearest(avanti ? stato_.ColoreAvanti : stato_.ColoreRitorno);
            }
            DisegnaLinea();
            break;
        case Esito::Arrivo:
            DisegnaLinea();
            MostraFrameTrameloRisolto();
            break;
    }
}

void FormTrm::ColpitoMuro() {
    ContaBoing = Saturated(ContaBoing + 1);
    servizi_.Suoni.SuonoMuro();
    ScriviBoing("Boing ");
}

void FormTrm::DisegnaLinea() {
    servizi_.Suoni.SuonoPasso();
    ContaPassi = Saturated(ContaPassi + 1);
    ScriviPassi();
    DisegnaPasso(pictureTramelo, traccia_, giocatore_.PuntoCorrente(), ColoreTratto, Aspetto());
    if (stato_.ModoInput == ScansioneManuale) {
        RidisegnaRotazione();
    }
}

AspettoScansione FormTrm::AspettoTratti() const {
    return AspettoScansioneDi(spessori_, geometria_.DimensioneCella,
                              Forms().Screen().TwipsPerPixelX(), Nearest(stato_.ColoreScansione),
                              Nearest(stato_.ColoreSfondo));
}

void FormTrm::RidisegnaRotazione() {
    DisegnaTrattoScansione(pictureTramelo, giocatore_.PuntoCorrente(), DirezioneScansione,
                           AspettoTratti());
}

void FormTrm::MostraFrameTrameloRisolto() {
    if (TrameliRisolti < Image1.Count()) {
        Image1(TrameliRisolti).Visible(true);
        servizi_.Suoni.SuonoArrivo();
        BottoneAvanti.Visible(true);
        BottoneAvanti.SetFocus();
        if (stato_.ModoInput == ScansioneAutomatica) {
            Timer1.Enabled(false);
        }
        ++TrameliRisolti;
        return;
    }
    Forms().Show("FormFinale");
    Forms().Unload(*this);
}

}  // namespace trameli
