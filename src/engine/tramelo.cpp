#include "engine/tramelo.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>
#include <limits>
#include <stdexcept>

namespace trameli {

namespace {

constexpr std::uint8_t TuttiILati = 0b1111;

constexpr std::array<Lato, 4> Lati{Lato::Alto, Lato::Destra, Lato::Basso, Lato::Sinistra};

struct Muro {
    Cella Di;
    Lato Su;
};

// Row, column, side, each its own draw and in this order.
Muro EstraiMuro(Casuale& casuale, int righe, int colonne) {
    const int r = casuale.FinoA(righe) + 1;
    const int c = casuale.FinoA(colonne) + 1;
    const int s = casuale.FinoA(4);
    return {{static_cast<std::int16_t>(r), static_cast<std::int16_t>(c)}, static_cast<Lato>(s)};
}

int NumeroCelleDi(int righe, int colonne) {
    constexpr int massimo = std::numeric_limits<std::int16_t>::max();
    if (righe < 1 || colonne < 1 || righe > massimo / colonne) {
        throw std::invalid_argument("a maze of 1 to 32767 cells is needed");
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
      m_muriProtetti(m_griglia.size()) {}
