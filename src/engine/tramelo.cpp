#include "engine/tramelo.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>
#include <limits>
#include <stdexcept>

namespace trameli {

namespace {

constexpr int NumeroLati = 4;
constexpr std::uint8_t TuttiILati = 0b1111;

int NumeroCelleDi(int righe, int colonne) {
    constexpr int massimo = std::numeric_limits<std::int16_t>::max();
    if (righe < 1 || colonne < 1 || righe > massimo / colonne) {
        throw std::invalid_argument("a maze has 1 to 32767 cells");
    }
    return righe * colonne;
}

}  // namespace

Tramelo::Tramelo(int righe, int colonne, Casuale& casuale)
    : m_casuale(casuale),
      m_righe(static_cast<std::int16_t>(righe)),
      m_colonne(static_cast<std::int16_t>(colonne)),
      m_numeroCelle(static_cast<std::int16_t>(NumeroCelleDi(righe, colonne))),
      m_passo(static_cast<std::size_t>(colonne) + 1),
      m_griglia((static_cast<std::size_t>(righe) + 1) * m_passo),
      m_muri(m_griglia.size()),
      m_muriProtetti(m_griglia.size()),
      m_esterni(m_griglia.size()),
      m_prime(static_cast<std::size_t>(m_numeroCelle) + 1),
      m_ultime(m_prime.size()) {
    for (int c = 1; c <= m_colonne; ++c) {
        m_esterni[Indice(1, c)] |= Bit(Lato::Alto);
        m_esterni[Indice(m_righe, c)] |= Bit(Lato::Basso);
    }
    for (int r = 1; r <= m_righe; ++r) {
        m_esterni[Indice(r, 1)] |= Bit(Lato::Sinistra);
        m_esterni[Indice(r, m_colonne)] |= Bit(Lato::Destra);
    }
}

void Tramelo::CreaNuovaGriglia() {
    std::int16_t etichetta = 0;
    for (int r = 1; r <= m_righe; ++r) {
        for (int c = 1; c <= m_colonne; ++c) {
            const std::size_t i = Indice(r, c);
            m_griglia[i] = ++etichetta;
            m_prime[static_cast<std::size_t>(etichetta)] = i;
            m_muri[i] = TuttiILati;
            m_muriProtetti[i] = 0;
        }
    }
    m_ultime = m_prime;
    m_regioniRimaste = m_numeroCelle;
}

void Tramelo::NonEliminareMuriEsterni() {
    // On a grid that is still full Muri holds these walls already, so that one routine serves both
    // the grids that are emptied and those that never are.
    for (std::size_t i = 0; i < m_muri.size(); ++i) {
        m_muriProtetti[i] |= m_esterni[i];
        m_muri[i] |= m_esterni[i];
    }
}

void Tramelo::NessunMuro() {
    std::ranges::fill(m_muri, std::uint8_t{0});
}

void Tramelo::ContaMuriRimasti() {
    constexpr unsigned senzaAlto = TuttiILati & ~unsigned{Bit(Lato::Alto)};
    int bandiere = 0;
    for (const unsigned muri : m_muri) {
        bandiere += std::popcount(muri & senzaAlto);
    }
    m_muriRimasti = Saturated(Quotient(bandiere, 2));
}

Tramelo::Faccia Tramelo::EstraiFaccia() {
    // Row, column, side: each its own draw, in this order.
    const int r = m_casuale.FinoA(m_righe) + 1;
    const int c = m_casuale.FinoA(m_colonne) + 1;
    const int s = m_casuale.FinoA(NumeroLati);
    return {Indice(r, c), static_cast<Lato>(s)};
}

Tramelo::Faccia Tramelo::Altra(Faccia faccia) const {
    // Unsigned steps backwards wrap, and the sum wraps back.
    const std::array<std::size_t, NumeroLati> passi{-m_passo, 1, m_passo, -std::size_t{1}};
    return {faccia.Cella + passi[static_cast<std::size_t>(faccia.Su)], Opposto(faccia.Su)};
}

void Tramelo::SelezionaMuroDaAbbattere() {
    if (m_regioniRimaste <= 1) {
        return;
    }
    Faccia faccia = EstraiFaccia();
    Faccia altra = faccia;
    std::int16_t a = 0;
    std::int16_t b = 0;
    while (a == b) {
        while (Ha(m_muriProtetti, faccia)) {
            faccia = EstraiFaccia();
        }
        // Were an outside wall unprotected, its other face would not exist.
        assert(!Ha(m_esterni, faccia));
        altra = Altra(faccia);
        a = m_griglia[faccia.Cella];
        b = m_griglia[altra.Cella];
        m_muriProtetti[faccia.Cella] |= Bit(faccia.Su);
        m_muriProtetti[altra.Cella] |= Bit(altra.Su);
    }
    Togli(faccia);
    Togli(altra);
    Unisci(std::min(a, b), std::max(a, b));
    --m_regioniRimaste;
}

void Tramelo::Unisci(std::int16_t minore, std::int16_t maggiore) {
    // As the smaller label always survives, a region bears the number of its first cell in reading
    // order. With its last one known too, the pass need not go over the whole grid.
    const auto a = static_cast<std::size_t>(minore);
    const auto b = static_cast<std::size_t>(maggiore);
    std::int16_t* const griglia = m_griglia.data();
    const std::size_t fine = m_ultime[b];
    for (std::size_t i = m_prime[b]; i <= fine; ++i) {
        griglia[i] = griglia[i] == maggiore ? minore : griglia[i];
    }
    m_ultime[a] = std::max(m_ultime[a], fine);
}

void Tramelo::AbbattiAltriMuri(std::int16_t quanti) {
    // The draws alone would never notice that nothing is left to knock down. Both faces count, for
    // an opening may have been made in one of them only.
    int inPiedi = 0;
    for (std::size_t i = 0; i < m_muri.size(); ++i) {
        inPiedi += std::popcount(static_cast<unsigned>(m_muri[i] & ~m_esterni[i]));
    }
    std::int16_t n = 0;
    while (n < quanti && inPiedi > 0) {
        const Faccia faccia = EstraiFaccia();
        if (!Ha(m_muri, faccia) || Ha(m_esterni, faccia)) {
            continue;
        }
        const Faccia altra = Altra(faccia);
        inPiedi -= Ha(m_muri, altra) ? 2 : 1;
        Togli(faccia);
        Togli(altra);
        ++n;
    }
}

void Tramelo::Scava() {
    while (m_regioniRimaste > 1) {
        SelezionaMuroDaAbbattere();
    }
}

void Tramelo::Apri(Cella cella, Lato lato) {
    Togli({Indice(cella.Riga, cella.Colonna), lato});
}

bool Tramelo::Esterno(Cella cella, Lato lato) const {
    return Ha(m_esterni, {Indice(cella.Riga, cella.Colonna), lato});
}

}  // namespace trameli
