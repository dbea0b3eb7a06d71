// How long a maze takes, without drawing, beside the well-known way to make one of the same size:
// the pairs genera/livello:N and genera_base/livello:N belong together.
#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <utility>
#include <vector>

#include "base/griglie.h"
#include "engine/casuale.h"
#include "engine/partenza_arrivo.h"
#include "engine/ricette.h"
#include "engine/tramelo.h"

namespace trameli {
namespace {

constexpr std::uint64_t Seme = 2024;
constexpr int UltimoLivello = 15;

void Genera(int livello, Tramelo& tramelo, Casuale& casuale) {
    constexpr Geometria geometria{
        .DimensioneCella = 600, .MargineSinistro = 700, .MargineSuperiore = 700};
    const Ricetta ricetta = RicettaDi(livello);
    tramelo.CreaNuovaGriglia();
    if (ricetta == Ricetta::ScatolaVuota) {
        tramelo.NessunMuro();
    }
    tramelo.NonEliminareMuriEsterni();
    benchmark::DoNotOptimize(TrovaPartenzaArrivo(tramelo, casuale, geometria, 4));
    if (ricetta == Ricetta::ScatolaVuota) {
        return;
    }
    tramelo.Scava();
    if (ricetta == Ricetta::ScavataEAllargata) {
        tramelo.ContaMuriRimasti();
        tramelo.AbbattiAltriMuri(QuantiMuriDaAbbattere(livello, tramelo.MuriRimasti()));
    }
}

// The yardstick: a list of all inner walls, shuffled, taken one after the other; a forest of
// regions whose paths are halved on the way.
class Kruskal {
public:
    Kruskal(int righe, int colonne)
        : m_righe(righe),
          m_colonne(colonne),
          m_padri(static_cast<std::size_t>(righe * colonne)),
          m_muri(m_padri.size()) {}

    void Genera(Casuale& casuale) {
        std::iota(m_padri.begin(), m_padri.end(), 0);
        m_muri.assign(m_muri.size(), {true, true});
        m_lista.clear();
        for (int i = 0; i < m_righe * m_colonne; ++i) {
            if (i % m_colonne != m_colonne - 1) {
                m_lista.emplace_back(i, 1);
            }
            if (i / m_colonne != m_righe - 1) {
                m_lista.emplace_back(i, m_colonne);
            }
        }
        for (std::size_t i = m_lista.size() - 1; i > 0; --i) {
            const int j = casuale.FinoA(static_cast<int>(i) + 1);
            std::swap(m_lista[i], m_lista[static_cast<std::size_t>(j)]);
        }
        int rimaste = m_righe * m_colonne;
        for (const auto& [cella, passo] : m_lista) {
            const int a = Radice(cella);
            const int b = Radice(cella + passo);
            if (a == b) {
                continue;
            }
            m_padri[static_cast<std::size_t>(a)] = b;
            m_muri[static_cast<std::size_t>(cella)][passo == 1 ? 0 : 1] = false;
            if (--rimaste == 1) {
                break;
            }
        }
        benchmark::DoNotOptimize(m_muri.data());
        benchmark::ClobberMemory();
    }

private:
    int Radice(int cella) {
        auto padre = [this](int i) -> int& { return m_padri[static_cast<std::size_t>(i)]; };
        while (padre(cella) != cella) {
            padre(cella) = padre(padre(cella));
            cella = padre(cella);
        }
        return cella;
    }

    int m_righe;
    int m_colonne;
    std::vector<int> m_padri;
    std::vector<std::array<bool, 2>> m_muri;   // right and lower wall of each cell
    std::vector<std::pair<int, int>> m_lista;  // cell, and distance to the neighbour
};

void BM_Genera(benchmark::State& stato) {
    const int livello = static_cast<int>(stato.range(0));
    const auto [righe, colonne] = DimensioniDi(livello);
    CasualeConSeme casuale(Seme);
    Tramelo tramelo(righe, colonne, casuale);
    for (auto _ : stato) {
        Genera(livello, tramelo, casuale);
        benchmark::ClobberMemory();
    }
}

void BM_GeneraBase(benchmark::State& stato) {
    const auto [righe, colonne] = DimensioniDi(static_cast<int>(stato.range(0)));
    CasualeConSeme casuale(Seme);
    Kruskal kruskal(righe, colonne);
    for (auto _ : stato) {
        kruskal.Genera(casuale);
    }
}

BENCHMARK(BM_Genera)->Name("genera")->ArgName("livello")->DenseRange(0, UltimoLivello);
BENCHMARK(BM_GeneraBase)->Name("genera_base")->ArgName("livello")->DenseRange(0, UltimoLivello);

}  // namespace
}  // namespace trameli

BENCHMARK_MAIN();
