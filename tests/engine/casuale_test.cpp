#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "casuale_finto.h"
#include "engine/casuale.h"

namespace trameli {
namespace {

TEST(Casuale, FinoAIsTheFloorAndTakesOneDraw) {
    constexpr float sottoUno = 0x1.fffffep-1F;
    struct {
        float U;
        int N;
        int Atteso;
    } const casi[] = {
        {0.0F, 20, 0},
        {sottoUno, 1, 0},
        {0.24999999F, 4, 0},
        {0.25F, 4, 1},
        {sottoUno, 4, 3},
        // Times n these are just below 10 and 5; in single precision they would be rounded up to
        // them.
        {0x1.d1745cp-1F, 11, 9},
        {0x1.aaaaaap-1F, 6, 4},
        {sottoUno, std::numeric_limits<int>::max(), 2147483519},
    };
    for (const auto& [u, n, atteso] : casi) {
        CasualeFinto casuale({u, 0.0F});
        EXPECT_EQ(casuale.FinoA(n), atteso) << u << " of " << n;
        EXPECT_EQ(casuale.Rimasti(), 1U);
    }
}

// Bug reports name a seed, so a seed has to mean the same maze in every version.
TEST(CasualeConSeme, GivesTheUpperBitsOfTheStandardGenerator) {
    std::seed_seq sequenza{0x89abcdefU, 0x01234567U};
    std::mt19937 atteso(sequenza);
    CasualeConSeme casuale(0x0123456789abcdefU);
    for (int i = 0; i < 5000; ++i) {
        ASSERT_EQ(casuale.Estrai(), std::ldexp(static_cast<float>(atteso() >> 8U), -24)) << i;
    }
}

}  // namespace
}  // namespace trameli
