#include "engine/ricette.h"

#include <array>

#include "base/griglie.h"
#include "base/rounding.h"

namespace trameli {

namespace {

// In whole numbers wider than the 16 bits of the result, with a quotient taken before it is
// multiplied.
using Quanti = int (*)(int m);

struct Livello {
    Ricetta Passi;
    Quanti DaAbbattere;
};

constexpr int Nessuno(int /*m*/) {
    return 0;
}

constexpr auto Livelli = std::to_array<Livello>({
    {Ricetta::ScatolaVuota, Nessuno},
    {Ricetta::ScavataEAllargata, [](int m) { return m - Quotient(m, 6); }},
    {Ricetta::ScavataEAllargata, [](int m) { return m - 2 * Quotient(m, 6); }},
    {Ricetta::ScavataEAllargata, [](int m) { return m - 4 * Quotient(m, 6); }},
    {Ricetta::ScavataEAllargata, [](int m) { return m - 5 * Quotient(m, 6); }},
    {Ricetta::ScatolaVuota, Nessuno},
    {Ricetta::ScavataEAllargata, [](int m) { return m - 7; }},
    {Ricetta::ScavataEAllargata, [](int m) { return Quotient(m, 2); }},
    {Ricetta::Scavata, Nessuno},
    {Ricetta::Scavata, Nessuno},
    {Ricetta::Scavata, Nessuno},
    {Ricetta::Scavata, Nessuno},
    {Ricetta::Scavata, Nessuno},
    {Ricetta::Scavata, Nessuno},
    {Ricetta::Scavata, Nessuno},
    {Ricetta::Scavata, Nessuno},
});
static_assert(Livelli.size() == NumeroLivelli);

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

void CreaTramelo(Tramelo& tramelo, int livello, const std::function<void()>& apri) {
    const Ricetta ricetta = RicettaDi(livello);
    tramelo.CreaNuovaGriglia();
    if (ricetta == Ricetta::ScatolaVuota) {
        tramelo.NessunMuro();
    }
    tramelo.NonEliminareMuriEsterni();
    apri();
    if (ricetta != Ricetta::ScatolaVuota) {
        tramelo.Scava();
    }
    if (ricetta == Ricetta::ScavataEAllargata) {
        tramelo.ContaMuriRimasti();
        tramelo.AbbattiAltriMuri(QuantiMuriDaAbbattere(livello, tramelo.MuriRimasti()));
    }
}

}  // namespace trameli
