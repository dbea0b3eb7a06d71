#include "play/traccia.h"

#include <algorithm>

namespace trameli {

namespace {

template <typename Elenco>
void DimenticaIlPrimo(Elenco& elenco) {
    std::copy(elenco.begin() + 1, elenco.end(), elenco.begin());
}

}  // namespace

Passaggio PassaggioDa(Cella cella, Lato lato) {
    const bool verticale = lato == Lato::Alto || lato == Lato::Basso;
    const Cella prima = lato == Lato::Alto || lato == Lato::Sinistra ? Vicina(cella, lato) : cella;
    return {prima.Riga, prima.Colonna, static_cast<std::int8_t>(verticale ? 1 : 0)};
}

void Traccia::Alloca(int righe, int colonne) {
    passo_ = static_cast<std::size_t>(colonne) + 1;
    passaggi_.assign((static_cast<std::size_t>(righe) + 1) * passo_ * 2, false);
}

void Traccia::Azzera() {
    contaPunti_ = 0;
    percorsoX_.fill(0);
    percorsoY_.fill(0);
    percorsoColore_.fill(0);
    std::fill(passaggi_.begin(), passaggi_.end(), false);
}

void Traccia::Comincia(Punto punto) {
    percorsoX_[0] = punto.X;
    percorsoY_[0] = punto.Y;
}

void Traccia::Aggiungi(Punto punto, Colour colore) {
    if (contaPunti_ == MassimoPunti) {
        DimenticaIlPrimo(percorsoX_);
        DimenticaIlPrimo(percorsoY_);
        DimenticaIlPrimo(percorsoColore_);
    } else {
        ++contaPunti_;
    }
    const auto ultimo = static_cast<std::size_t>(contaPunti_);
    percorsoX_[ultimo] = punto.X;
    percorsoY_[ultimo] = punto.Y;
    percorsoColore_[ultimo] = colore;
}

bool Traccia::Attraversa(const Passaggio& passaggio) {
    auto segno = passaggi_[Indice(passaggio.Riga, passaggio.Colonna, passaggio.Verso)];
    segno.flip();
    return segno;
}

bool Traccia::Passaggi(int riga, int colonna, int verso) const {
    return passaggi_[Indice(riga, colonna, verso)];
}

Segmento Traccia::Tratto(int i, int indietro) const {
    return Allunga({{PercorsoX(i - 1), PercorsoY(i - 1)}, {PercorsoX(i), PercorsoY(i)}}, indietro,
                   0);
}

}  // namespace trameli
