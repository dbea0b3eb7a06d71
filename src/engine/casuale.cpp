#include "engine/casuale.h"

namespace trameli {

CasualeConSeme::CasualeConSeme(std::uint64_t seme) {
    std::seed_seq sequenza{static_cast<std::uint32_t>(seme),
                           static_cast<std::uint32_t>(seme >> 32U)};
    m_generatore.seed(sequenza);
    Riempi();
}

void CasualeConSeme::Riempi() {
    for (float& u : m_scorta) {
        // 24 bits are all that a float holds exactly; with more of them the greatest draws would be
        // rounded up to 1.
        u = static_cast<float>(m_generatore() >> 8U) * 0x1p-24F;
    }
    m_prossimo = 0;
}

}  // namespace trameli
