// The maze of a play form, as it is made and drawn.
#include <utility>

#include "base/rounding.h"
#include "drawing/muri_a_linee.h"
#include "engine/ricette.h"
#include "platform/forms.h"
#include "play/form_archivio.h"
#include "play/form_trm.h"

namespace trameli {

FormArchivio& FormTrm::Archivio() const {
    return static_cast<FormArchivio&>(Forms().Load("FormArchivio"));
}

void FormTrm::ImpostaGeometria() {
    geometria_ = CalcolaGeometria(pictureTramelo.Width(), pictureTramelo.Height(), tramelo_.Righe(),
                                  tramelo_.Colonne(), DoveSiApre());
    ImpostaSpessori();
}

void FormTrm::ImpostaSpessori() {
    spessori_ = CalcolaSpessori(stato_.SpessoreLinee, geometria_.DimensioneCella,
                                Forms().Screen().TwipsPerPixelY(), AspettoPareti());
}

AspettoTraccia FormTrm::Aspetto() const {
    return AspettoDi(spessori_, geometria_.DimensioneCella, Forms().Screen().TwipsPerPixelX(),
                     stato_.ColoraCasella, pictureTramelo.BackColor(),
                     Nearest(stato_.ColoreSimbolo));
}

void FormTrm::GeneraTramelo() {
    CreaTramelo(tramelo_, stato_.Livello, [this] { giocatore_.Colloca(TrovaPartenzaArrivo()); });
    AzzeraVariabili();
    InserisciArrivo();
    DisegnaTramelo();
    Announce(pictureTramelo.Description);
}

PartenzaArrivo FormTrm::TrovaPartenzaArrivo() {
    return trameli::TrovaPartenzaArrivo(tramelo_, casuale_, geometria_, spessori_.SpessoreMuri);
}

void FormTrm::AzzeraVariabili() {
    giocatore_.Azzera();
    traccia_.Comincia(giocatore_.Percorso().PuntoIniziale);
    offerto_ = false;
    tenuto_ = false;
    offerte_ = 0;
    if (std::exchange(uscitaOfferta_, 0) > 0) {
        MostraBottoneMenu(false);
    }
}

void FormTrm::InserisciPartenza() {
    DisegnaSimbolo(pictureTramelo, traccia_.Testa(), Aspetto());
}

void FormTrm::InserisciArrivo() {
    const FormArchivio& archivio = Archivio();
    const int i = casuale_.FinoA(archivio.Image2.Count());
    CollocaArrivo();
    Image2.Picture(archivio.Image2(i).Picture());
    Image2.Visible(true);
}

void FormTrm::CollocaArrivo() {
    const double lato = LatoArrivoImmagine(geometria_.DimensioneCella, spessori_.SpessoreMuri);
    const auto [alto, sinistra] = giocatore_.Percorso().PosizioneArrivo;
    Image2.Place({static_cast<double>(sinistra), static_cast<double>(alto), lato, lato});
}

void FormTrm::DisegnaTramelo() {
    DisegnaMuriALinee(pictureTramelo, tramelo_, geometria_, spessori_.SpessoreMuri,
                      stato_.ColoraCasella ? Estremi::Quadri : Estremi::Tondi,
                      Nearest(stato_.ColorePareti));
    stato_.TrameloDisegnato = true;
}

}  // namespace trameli
