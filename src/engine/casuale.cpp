#include "engine/casuale.h"

namespace trameli {

CasualeConSeme::CasualeConSeme(std::uint64_t seme) {
    std::seed_seq sequenza{static_cast<std::uint32_t>(seme),
                           static_cast<std::uint32_t>(seme >> 32U)};
    generatore_.seed(sequenza);
    Riempi();
}

void CasualeConSeme::Riempi() {
    for (float& u : scorta_) {
        // 24 bits are all that a float holds exactly; with more of them the greatest draws would be
        // rounded up to 1.
        u = static_cast<float>(generatore_() >> 8U) * 0x1p-24F;
    }
    prossimo_ = 0;
}

}  // namespace trameli
