#include "play/traccia.h"

#include <algorithm>

namespace trameli {

Passaggio PassaggioDa(Cella cella, Lato lato) {
    const bool verticale = lato == Lato::Alto || lato == Lato::Basso;
    const Cella prima = lato == Lato::Alto || lato == Lato::Sinistra ? Vicina(cella, lato) : cella;
    return {prima.Riga, prima.Colonna, static_cast<std::int8_t>(verticale ? 1 : 0)};
}

Traccia::Traccia(int righe, int colonne)
    : passo_(static_cast<std::size_t>(colonne) + 1),
      passaggi_((static_cast<std::size_t>(righe) + 1) * passo_ * 2) {}

void Traccia::Comincia(Punto punto) {
    contaPunti_ = 0;
    percorso_[0] = punto;
    passaggi_.assign(passaggi_.size(), false);
}

void Traccia::Aggiungi(Punto punto, Colour colore) {
    if (contaPunti_ == MassimoPunti) {
        std::shift_left(percorso_.begin(), percorso_.end(), 1);
        std::shift_left(colori_.begin(), colori_.end(), 1);
    } else {
        ++contaPunti_;
    }
    const auto ultimo = static_cast<std::size_t>(contaPunti_);
    percorso_[ultimo] = punto;
    colori_[ultimo] = colore;
}

void Traccia::Trasferisci(const Geometria& da, const Geometria& a) {
    for (int i = 0; i <= contaPunti_; ++i) {
        Punto& punto = percorso_[static_cast<std::size_t>(i)];
        punto = Trasferito(punto, da, a);
    }
}

bool Traccia::Attraversa(const Passaggio& passaggio) {
    const std::size_t cella = static_cast<std::size_t>(passaggio.Riga) * passo_ +
                              static_cast<std::size_t>(passaggio.Colonna);
    auto segno = passaggi_[cella * 2 + static_cast<std::size_t>(passaggio.Verso)];
    segno.flip();
    return segno;
}

Segmento Traccia::Tratto(int i, int indietro) const {
    return Allunga({Percorso(i - 1), Percorso(i)}, indietro, 0);
}

}  // namespace trameli
