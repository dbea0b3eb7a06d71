#include "quaderno/soluzione.h"

#include <array>
#include <cstddef>
#include <optional>
#include <queue>

namespace trameli {

std::vector<Cella> Soluzione(const Tramelo& tramelo, const PartenzaArrivo& percorso) {
    constexpr std::array lati{Lato::Alto, Lato::Destra, Lato::Basso, Lato::Sinistra};
    const auto posto = [&](Cella cella) {
        return static_cast<std::size_t>((cella.Riga - 1) * tramelo.Colonne() + cella.Colonna - 1);
    };
    const auto dentro = [&](Cella cella) {
        return cella.Riga >= 1 && cella.Riga <= tramelo.Righe() && cella.Colonna >= 1 &&
               cella.Colonna <= tramelo.Colonne();
    };
    // Backwards from the finish, so that the ways found lead from the start to it.
    std::vector<std::optional<Cella>> prossima(static_cast<std::size_t>(tramelo.NumeroCelle()));
    prossima[posto(percorso.CellaArrivo)] = percorso.CellaArrivo;
    std::queue<Cella> onda({percorso.CellaArrivo});
    while (!onda.empty()) {
        const Cella qui = onda.front();
        onda.pop();
        for (const Lato lato : lati) {
            const Cella vicina = Vicina(qui, lato);
            if (!tramelo.Muri(qui.Riga, qui.Colonna, lato) && dentro(vicina) &&
                !prossima[posto(vicina)]) {
                prossima[posto(vicina)] = qui;
                onda.push(vicina);
            }
        }
    }
    std::vector<Cella> celle{percorso.CellaPartenza};
    while (celle.back() != percorso.CellaArrivo && prossima[posto(celle.back())]) {
        celle.push_back(*prossima[posto(celle.back())]);
    }
    return celle;
}

}  // namespace trameli
