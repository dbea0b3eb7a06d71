// The moves of a play form, and what they end in.
#include "base/rounding.h"
#include "platform/forms.h"
#include "play/form_trm.h"
#include "play/voce.h"

namespace trameli {

void FormTrm::Muovi(Lato lato) {
    const Passaggio passaggio = PassaggioDa(giocatore_.CellaCorrente(), lato);
    const int cella = geometria_.DimensioneCella;
    switch (giocatore_.Muovi(lato, tramelo_)) {
        case Esito::Urto:
            Announce([&] { return DescriviUrto(lato, servizi_.Lingue) + CostoDellUrto(); });
            ColpitoMuro();
            break;
        case Esito::Entrata:
            DisegnaLinea(lato, Quotient(cella, 2), stato_.ColoreAvanti);
            AnnunciaPosto();
            break;
        case Esito::Passo: {
            // The ways through the openings walk no passage, so that they are always ways forward.
            const bool avanti = !stato_.CambiaColoreRitorno || traccia_.Attraversa(passaggio);
            DisegnaLinea(lato, cella, avanti ? stato_.ColoreAvanti : stato_.ColoreRitorno);
            AnnunciaPosto();
            break;
        }
        case Esito::Arrivo:
            DisegnaLinea(lato, cella, stato_.ColoreAvanti);
            MostraFrameTrameloRisolto();
            break;
    }
}

void FormTrm::AnnunciaPosto() {
    Announce([this] { return DovEIlGiocatore(giocatore_, tramelo_, servizi_.Lingue); });
}

void FormTrm::ColpitoMuro() {
    ContaBoing = Saturated(ContaBoing + 1);
    servizi_.Suoni.SuonoMuro();
    ScriviBoing("Boing ");
}

void FormTrm::DisegnaLinea(Lato lato, int lunghezza, double colore) {
    servizi_.Suoni.SuonoPasso();
    ContaPassi = Saturated(ContaPassi + 1);
    ScriviPassi();
    DisegnaPasso(pictureTramelo, traccia_, Sposta(traccia_.Testa(), lato, lunghezza),
                 Nearest(colore), Aspetto());
    if (stato_.ModoInput == ScansioneManuale) {
        RidisegnaRotazione();
    }
}

AspettoScansione FormTrm::AspettoTratti() const {
    return AspettoScansioneDi(spessori_, AspettoPareti(), geometria_.DimensioneCella,
                              Forms().Screen().TwipsPerPixelX(), Nearest(stato_.ColoreScansione),
                              pictureTramelo.BackColor());
}

void FormTrm::RidisegnaRotazione() {
    offerto_ = true;
    DisegnaTrattoScansione(pictureTramelo, traccia_.Testa(), DirezioneScansione, AspettoTratti());
}

void FormTrm::MostraFrameTrameloRisolto() {
    if (TrameliRisolti < Image1.Count()) {
        Image1(TrameliRisolti).Visible(true);
        servizi_.Suoni.SuonoArrivo();
        BottoneAvanti.Visible(true);
        BottoneAvanti.SetFocus();
        if (stato_.ModoInput == ScansioneAutomatica) {
            Timer1.Enabled(false);
            OffriAvantiOMenu();
        }
        // Last, since the button that has just got the keyboard is read out as well.
        Announce([this] {
            return DescriviArrivo(servizi_.Lingue) + ". " + StatusBar1.Panel(4) + ", " +
                   StatusBar1.Panel(3) + ". " + BottoneAvanti.AccessibleName();
        });
        ++TrameliRisolti;
        return;
    }
    Complimenti();
}

void FormTrm::Complimenti() {
    // The clock of the timed levels goes on behind the print window, which would have another
    // window over it and still be the only one that can be used.
    complimentiAttesi_ = stampando_;
    if (!stampando_) {
        Forms().HandOver(*this, "FormFinale");
    }
}

}  // namespace trameli
