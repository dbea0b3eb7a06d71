#include "shell/livelli.h"

#include <array>
#include <cstddef>

namespace trameli {

namespace {

/// Levels that one form plays, up to the next row's first.
struct Gioco {
    int Primo;
    const char* Form;
};

constexpr std::array<Gioco, 3> Giochi{{
    {0, "frmTrm0"},
    {5, "frmTrm1"},
    {8, "frmTrm3"},
}};

/// The first level whose form is told by variables how large its grid is.
constexpr int PrimoConMisure = Giochi.back().Primo;

}  // namespace

const char* FormDelLivello(int livello) {
    std::size_t gioco = Giochi.size() - 1;
    while (gioco > 0 && livello < Giochi[gioco].Primo) {
        --gioco;
    }
    return Giochi[gioco].Form;
}

void ImpostaGriglia(Stato& stato) {
    if (stato.Livello >= PrimoConMisure) {
        const auto [righe, colonne] = DimensioniDi(stato.Livello);
        stato.RigheGriglia = righe;
        stato.ColonneGriglia = colonne;
    }
}

}  // namespace trameli
