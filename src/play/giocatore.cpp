#include "play/giocatore.h"

namespace trameli {

namespace {

bool NellaGriglia(Cella cella, const Tramelo& tramelo) {
    return cella.Riga >= 1 && cella.Riga <= tramelo.Righe() && cella.Colonna >= 1 &&
           cella.Colonna <= tramelo.Colonne();
}

}  // namespace

void Giocatore::Colloca(const PartenzaArrivo& percorso) {
    percorso_ = percorso;
    Azzera();
}

void Giocatore::Azzera() {
    primaMossa_ = true;
    trameloRisolto_ = false;
    cellaCorrente_ = percorso_.CellaIniziale;
}

Esito Giocatore::Muovi(Lato lato, const Tramelo& tramelo) {
    const Cella nuova = Vicina(cellaCorrente_, lato);
    const bool dentro = NellaGriglia(nuova, tramelo);
    if (primaMossa_) {
        if (!dentro) {
            return Esito::Urto;
        }
        primaMossa_ = false;
        cellaCorrente_ = nuova;
        return Esito::Entrata;
    }
    // Of the two openings, only the finish cell's is a way out.
    if (tramelo.Muri(cellaCorrente_.Riga, cellaCorrente_.Colonna, lato) ||
        (!dentro && cellaCorrente_ != percorso_.CellaArrivo)) {
        return Esito::Urto;
    }
    cellaCorrente_ = nuova;
    trameloRisolto_ = !dentro;
    return dentro ? Esito::Passo : Esito::Arrivo;
}

}  // namespace trameli
