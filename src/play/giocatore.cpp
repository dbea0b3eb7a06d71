#include "play/giocatore.h"

#include "base/rounding.h"

namespace trameli {

namespace {

bool NellaGriglia(Cella cella, const Tramelo& tramelo) {
    return cella.Riga >= 1 && cella.Riga <= tramelo.Righe() && cella.Colonna >= 1 &&
           cella.Colonna <= tramelo.Colonne();
}

}  // namespace

void Giocatore::Colloca(const PartenzaArrivo& partenzaArrivo, std::int16_t dimensioneCella) {
    percorso_ = partenzaArrivo;
    dimensioneCella_ = dimensioneCella;
    TornaAllaPartenza();
}

void Giocatore::Azzera() {
    primaMossa_ = true;
    trameloRisolto_ = false;
}

void Giocatore::TornaAllaPartenza() {
    cellaCorrente_ = percorso_.CellaIniziale;
    puntoCorrente_ = percorso_.PuntoIniziale;
}

Esito Giocatore::PrimoPasso(Lato lato, const Tramelo& tramelo) {
    const Cella nuova = Vicina(cellaCorrente_, lato);
    if (!NellaGriglia(nuova, tramelo)) {
        return Esito::Urto;
    }
    Vai(nuova, Quotient(dimensioneCella_, 2));
    primaMossa_ = false;
    return Esito::Passo;
}

Esito Giocatore::Passo(Lato lato, const Tramelo& tramelo) {
    if (tramelo.Muri(cellaCorrente_.Riga, cellaCorrente_.Colonna, lato)) {
        return Esito::Urto;
    }
    const Cella nuova = Vicina(cellaCorrente_, lato);
    const bool dentro = NellaGriglia(nuova, tramelo);
    // Of the two openings, only the finish cell's is a way out.
    if (!dentro && cellaCorrente_ != percorso_.CellaArrivo) {
        return Esito::Urto;
    }
    Vai(nuova, dimensioneCella_);
    trameloRisolto_ = !dentro;
    return dentro ? Esito::Passo : Esito::Arrivo;
}

void Giocatore::Vai(Cella vicina, int lunghezza) {
    const int dx = vicina.Colonna - cellaCorrente_.Colonna;
    const int dy = vicina.Riga - cellaCorrente_.Riga;
    puntoCorrente_ = {Saturated(puntoCorrente_.X + dx * lunghezza),
                      Saturated(puntoCorrente_.Y + dy * lunghezza)};
    cellaCorrente_ = vicina;
}

}  // namespace trameli
