#include "engine/casuale.h"

namespace trameli {

namespace {

std::mt19937 Seminato(std::uint64_t seme) {
    std::seed_seq sequenza{static_cast<std::uint32_t>(seme), static_cast<std::uint32_t>(seme >> 32U)};
    return std::mt19937(sequenza);
}

}  // namespace

CasualeConSeme::CasualeConSeme(std::uint64_t seme) : m_generatore(Seminato(seme)) {}

float CasualeConSeme::Estrai() {
    // 24 bits are all that a float holds exactly; with more of them the greatest draws would be
    // rounded up to 1.
    return static_cast<float>(m_generatore() >> 8U) * 0x1p-24F;
}

}  // namespace trameli
