#include "engine/ricette.h"

#include <array>

#include "base/rounding.h"

namespace trameli {

namespace {

// In whole numbers wider than the 16 bits of the result, with a quotient taken before it is
// multiplied.
using Quanti = int (*)(int m);

struct Livello {
    DimensioniGriglia Dimensioni;
    Ricetta Passi;
    Quanti DaAbbattere;
};

constexpr int Nessuno(int /*m*/) {
    return 0;
}

constexpr std::array<Livello, 16> Livelli{{
    {{6, 9}, Ricetta::ScatolaVuota, Nessuno},
    {{6, 9}, Ricetta::ScavataEAllargata, [](int m) { return m - Quotient(m, 6); }},
    {{6, 9}, Ricetta::ScavataEAllargata, [](int m) { return m - 2 * Quotient(m, 6); }},
    {{6, 9}, Ricetta::ScavataEAllargata, [](int m) { return m - 4 * Quotient(m, 6); }},
    {{6, 9}, Ricetta::ScavataEAllargata, [](int m) { return m - 5 * Quotient(m, 6); }},
    {{8, 11}, Ricetta::ScatolaVuota, Nessuno},
    {{8, 11}, Ricetta::ScavataEAllargata, [](int m) { return m - 7; }},
    {{8, 11}, Ricetta::ScavataEAllargata, [](int m) { return Quotient(m, 2); }},
    {{3, 4}, Ricetta::Scavata, Nessuno},
    {{4, 5}, Ricetta::Scavata, Nessuno},
    {{5, 6}, Ricetta::Scavata, Nessuno},
    {{6, 7}, Ricetta::Scavata, Nessuno},
    {{8, 10}, Ricetta::Scavata, Nessuno},
    {{10, 15}, Ricetta::Scavata, Nessuno},
    {{12, 18}, Ricetta::Scavata, Nessuno},
    {{15, 20}, Ricetta::Scavata, Nessuno},
}};

const Livello& Trova(int livello) {
    return Livelli.at(static_cast<std::size_t>(livello));
}

}  // namespace

Ricetta RicettaDi(int livello) {
    return Trova(livello).Passi;
}

std::int16_t QuantiMuriDaAbbattere(int livello, std::int16_t muriRimasti) {
    return Saturated(Trova(livello).DaAbbattere(muriRimasti));
}

DimensioniGriglia DimensioniDi(int livello) {
    return Trova(livello).Dimensioni;
}

}  // namespace trameli
