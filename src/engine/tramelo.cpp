#include "engine/tramelo.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>

namespace trameli {

namespace {

constexpr int NumeroLati = 4;
constexpr std::uint8_t TuttiILati = 0b1111;

}  // namespace

Tramelo::Tramelo(int righe, int colonne, Casuale& casuale)
    : casuale_(casuale),
      righe_(static_cast<std::int16_t>(righe)),
      colonne_(static_cast<std::int16_t>(colonne)),
      numeroCelle_(static_cast<std::int16_t>(righe * colonne)),
      passo_(static_cast<std::size_t>(colonne) + 1),
      griglia_((static_cast<std::size_t>(righe) + 1) * passo_),
      muri_(griglia_.size()),
      muriProtetti_(griglia_.size()),
      esterni_(griglia_.size()),
      prime_(static_cast<std::size_t>(numeroCelle_) + 1),
      ultime_(prime_.size()) {
    for (int c = 1; c <= colonne_; ++c) {
        esterni_[Indice(1, c)] |= Bit(Lato::Alto);
        esterni_[Indice(righe_, c)] |= Bit(Lato::Basso);
    }
    for (int r = 1; r <= righe_; ++r) {
        esterni_[Indice(r, 1)] |= Bit(Lato::Sinistra);
        esterni_[Indice(r, colonne_)] |= Bit(Lato::Destra);
    }
}

void Tramelo::CreaNuovaGriglia() {
    std::int16_t etichetta = 0;
    for (int r = 1; r <= righe_; ++r) {
        for (int c = 1; c <= colonne_; ++c) {
            const std::size_t i = Indice(r, c);
            griglia_[i] = ++etichetta;
            prime_[static_cast<std::size_t>(etichetta)] = i;
            muri_[i] = TuttiILati;
            muriProtetti_[i] = 0;
        }
    }
    ultime_ = prime_;
    regioniRimaste_ = numeroCelle_;
}

void Tramelo::NonEliminareMuriEsterni() {
    // On a grid that is still full Muri holds these walls already, so that one routine serves both
    // the grids that are emptied and those that never are.
    for (std::size_t i = 0; i < muri_.size(); ++i) {
        muriProtetti_[i] |= esterni_[i];
        muri_[i] |= esterni_[i];
    }
}

void Tramelo::NessunMuro() {
    std::ranges::fill(muri_, std::uint8_t{0});
}

void Tramelo::ContaMuriRimasti() {
    constexpr unsigned senzaAlto = TuttiILati & ~unsigned{Bit(Lato::Alto)};
    int bandiere = 0;
    for (const unsigned muri : muri_) {
        bandiere += std::popcount(muri & senzaAlto);
    }
    muriRimasti_ = Saturated(Quotient(bandiere, 2));
}

Tramelo::Faccia Tramelo::EstraiFaccia() {
    // Row, column, side: each its own draw, in this order.
    const int r = casuale_.FinoA(righe_) + 1;
    const int c = casuale_.FinoA(colonne_) + 1;
    const int s = casuale_.FinoA(NumeroLati);
    return {Indice(r, c), static_cast<Lato>(s)};
}

Tramelo::Faccia Tramelo::Altra(Faccia faccia) const {
    // Unsigned steps backwards wrap, and the sum wraps back.
    const std::array<std::size_t, NumeroLati> passi{-passo_, 1, passo_, -std::size_t{1}};
    return {faccia.Cella + passi[static_cast<std::size_t>(faccia.Su)], Opposto(faccia.Su)};
}

void Tramelo::SelezionaMuroDaAbbattere() {
    if (regioniRimaste_ <= 1) {
        return;
    }
    Faccia faccia = EstraiFaccia();
    Faccia altra = faccia;
    std::int16_t a = 0;
    std::int16_t b = 0;
    while (a == b) {
        while (Ha(muriProtetti_, faccia)) {
            faccia = EstraiFaccia();
        }
        // Were an outside wall unprotected, its other face would not exist.
        assert(!Ha(esterni_, faccia));
        altra = Altra(faccia);
        a = griglia_[faccia.Cella];
        b = griglia_[altra.Cella];
        muriProtetti_[faccia.Cella] |= Bit(faccia.Su);
        muriProtetti_[altra.Cella] |= Bit(altra.Su);
    }
    Togli(faccia);
    Togli(altra);
    Unisci(std::min(a, b), std::max(a, b));
    --regioniRimaste_;
}

void Tramelo::Unisci(std::int16_t minore, std::int16_t maggiore) {
    // As the smaller label always survives, a region bears the number of its first cell in reading
    // order. With its last one known too, the pass need not go over the whole grid.
    const auto a = static_cast<std::size_t>(minore);
    const auto b = static_cast<std::size_t>(maggiore);
    std::int16_t* const griglia = griglia_.data();
    const std::size_t fine = ultime_[b];
    for (std::size_t i = prime_[b]; i <= fine; ++i) {
        griglia[i] = griglia[i] == maggiore ? minore : griglia[i];
    }
    ultime_[a] = std::max(ultime_[a], fine);
}

void Tramelo::AbbattiAltriMuri(std::int16_t quanti) {
    // The draws alone would never notice that nothing is left to knock down. Both faces count, for
    // an opening may have been made in one of them only.
    int inPiedi = 0;
    for (std::size_t i = 0; i < muri_.size(); ++i) {
        inPiedi += std::popcount(static_cast<unsigned>(muri_[i] & ~esterni_[i]));
    }
    std::int16_t n = 0;
    while (n < quanti && inPiedi > 0) {
        const Faccia faccia = EstraiFaccia();
        if (!Ha(muri_, faccia) || Ha(esterni_, faccia)) {
            continue;
        }
        const Faccia altra = Altra(faccia);
        inPiedi -= Ha(muri_, altra) ? 2 : 1;
        Togli(faccia);
        Togli(altra);
        ++n;
    }
}

void Tramelo::Scava() {
    while (regioniRimaste_ > 1) {
        SelezionaMuroDaAbbattere();
    }
}

void Tramelo::Apri(Cella cella, Lato lato) {
    Togli({Indice(cella.Riga, cella.Colonna), lato});
}

}  // namespace trameli
