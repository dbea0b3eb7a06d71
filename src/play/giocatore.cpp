#include "play/giocatore.h"

#include <utility>

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

bool Giocatore::Aperto(Lato lato, const Tramelo& tramelo) const {
    const bool dentro = NellaGriglia(Vicina(cellaCorrente_, lato), tramelo);
    if (primaMossa_) {
        return dentro;
    }
    // Of the two openings, only the finish cell's is a way out.
    return !tramelo.Muri(cellaCorrente_.Riga, cellaCorrente_.Colonna, lato) &&
           (dentro || AllArrivo());
}

bool Giocatore::Esce(Lato lato, const Tramelo& tramelo) const {
    return AllArrivo() && Aperto(lato, tramelo) &&
           !NellaGriglia(Vicina(cellaCorrente_, lato), tramelo);
}

Esito Giocatore::Muovi(Lato lato, const Tramelo& tramelo) {
    if (!Aperto(lato, tramelo)) {
        return Esito::Urto;
    }
    cellaCorrente_ = Vicina(cellaCorrente_, lato);
    if (std::exchange(primaMossa_, false)) {
        return Esito::Entrata;
    }
    trameloRisolto_ = !NellaGriglia(cellaCorrente_, tramelo);
    return trameloRisolto_ ? Esito::Arrivo : Esito::Passo;
}

}  // namespace trameli
