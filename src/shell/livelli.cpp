#include "shell/livelli.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace trameli {

namespace {

struct Livello {
    const char* Form;
    std::int16_t Righe = 0;  ///< 0: the size stays as it is
    std::int16_t Colonne = 0;
};

constexpr std::array<Livello, NumeroLivelli> Livelli{{
    {"frmTrm0"},
    {"frmTrm0"},
    {"frmTrm0"},
    {"frmTrm0"},
    {"frmTrm0"},
    {"frmTrm1"},
    {"frmTrm1"},
    {"frmTrm1"},
    {"frmTrm3", 3, 4},
    {"frmTrm3", 4, 5},
    {"frmTrm3", 5, 6},
    {"frmTrm3", 6, 7},
    {"frmTrm3", 8, 10},
    {"frmTrm3", 10, 15},
    {"frmTrm3", 12, 18},
    {"frmTrm3", 15, 20},
}};

const Livello& Trova(int livello) {
    return Livelli[static_cast<std::size_t>(std::clamp(livello, 0, NumeroLivelli - 1))];
}

}  // namespace

const char* FormDelLivello(int livello) {
    return Trova(livello).Form;
}

void ImpostaGriglia(Stato& stato) {
    const Livello& livello = Trova(stato.Livello);
    if (livello.Righe > 0) {
        stato.RigheGriglia = livello.Righe;
        stato.ColonneGriglia = livello.Colonne;
    }
}

}  // namespace trameli
