#include "play/tavola_trm.h"

#include "base/rounding.h"
#include "drawing/muri_a_linee.h"
#include "engine/ricette.h"
#include "platform/forms.h"
#include "play/form_archivio.h"

namespace trameli {

TavolaTrm::TavolaTrm(trameli::Forms& forms, Servizi& servizi, Casuale& casuale,
                     const DisegnoTrm& disegno)
    : FinestraTrm(forms, disegno), servizi_(servizi), stato_(servizi.Stato), casuale_(casuale) {}

FormArchivio& TavolaTrm::Archivio() const {
    return static_cast<FormArchivio&>(Forms().Load("FormArchivio"));
}

DimensioniGriglia TavolaTrm::Griglia() const {
    return DimensioniDi(stato_.Livello);
}

void TavolaTrm::Alloca() {
    const auto [righe, colonne] = Griglia();
    tramelo_.emplace(righe, colonne, casuale_);
    traccia_.Alloca(righe, colonne);
}

void TavolaTrm::ImpostaGeometria() {
    const auto [righe, colonne] = Griglia();
    geometria_ = CalcolaGeometria(pictureTramelo.Width(), pictureTramelo.Height(), righe, colonne);
}

void TavolaTrm::ImpostaSpessori() {
    spessori_ = CalcolaSpessori(stato_.SpessoreLinee, geometria_.DimensioneCella,
                                Forms().Screen().TwipsPerPixelY(), AspettoPareti());
}

AspettoTraccia TavolaTrm::Aspetto() const {
    AspettoTraccia aspetto = AspettoDi(spessori_, geometria_.DimensioneCella,
                                       Forms().Screen().TwipsPerPixelX(), stato_.ColoraCasella,
                                       Nearest(stato_.ColoreSfondo), Nearest(stato_.ColoreSimbolo));
    aspetto.TestaQuadra = stato_.ModoInput != Tastiera;
    return aspetto;
}

void TavolaTrm::GeneraTramelo() {
    const Ricetta ricetta = RicettaDi(stato_.Livello);
    tramelo_->CreaNuovaGriglia();
    if (ricetta == Ricetta::ScatolaVuota) {
        tramelo_->NessunMuro();
    }
    tramelo_->NonEliminareMuriEsterni();
    giocatore_.Colloca(TrovaPartenzaArrivo(), geometria_.DimensioneCella);
    if (ricetta != Ricetta::ScatolaVuota) {
        tramelo_->Scava();
    }
    if (ricetta == Ricetta::ScavataEAllargata) {
        tramelo_->ContaMuriRimasti();
        tramelo_->AbbattiAltriMuri(QuantiMuriDaAbbattere(stato_.Livello, tramelo_->MuriRimasti()));
    }
    CompletaTramelo();
}

void TavolaTrm::CompletaTramelo() {
    AzzeraVariabili();
    InserisciPartenza();
    InserisciArrivo();
    DisegnaTramelo();
}

PartenzaArrivo TavolaTrm::TrovaPartenzaArrivo() {
    return trameli::TrovaPartenzaArrivo(*tramelo_, casuale_, MisureDi(geometria_, spessori_));
}

void TavolaTrm::AzzeraVariabili() {
    giocatore_.Azzera();
    traccia_.Azzera();
}

void TavolaTrm::InserisciPartenza() {
    DisegnaSimbolo(pictureTramelo, giocatore_.PuntoCorrente(), Aspetto());
    traccia_.Comincia(giocatore_.PuntoCorrente());
}

void TavolaTrm::InserisciArrivo() {
    const FormArchivio& archivio = Archivio();
    const int i = IndiceImmagineArrivo(casuale_, archivio.Image2.Count());
    const double lato = LatoArrivoImmagine(MisureDi(geometria_, spessori_));
    const Posizione posto = giocatore_.Percorso().PosizioneArrivo;
    Image2.Place(
        {static_cast<double>(posto.Sinistra), static_cast<double>(posto.Alto), lato, lato});
    Image2.Picture(archivio.Image2(i).Picture());
}

void TavolaTrm::DisegnaTramelo() {
    DisegnaMuriALinee(pictureTramelo, *tramelo_, MisureDi(geometria_, spessori_),
                      stato_.ColoraCasella ? Estremi::Quadri : Estremi::Tondi,
                      Nearest(stato_.ColorePareti), Forms().Screen().TwipsPerPixelX());
    stato_.TrameloDisegnato = true;
}

}  // namespace trameli
