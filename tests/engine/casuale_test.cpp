#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "casuale_finto.h"
#include "engine/casuale.h"

namespace trameli {
namespace {

constexpr float SottoUno = 0x1.fffffep-1F;

struct CasoFinoA {
    float U;
    int N;
    int Atteso;
};

class FinoA : public testing::TestWithParam<CasoFinoA> {};

TEST_P(FinoA, IsTheFloorAndTakesOneDraw) {
    const auto [u, n, atteso] = GetParam();
    CasualeFinto casuale({u, 0.0F});
    EXPECT_EQ(casuale.FinoA(n), atteso);
    EXPECT_EQ(casuale.Estratti(), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    Casuale, FinoA,
    testing::Values(CasoFinoA{0.0F, 1, 0}, CasoFinoA{SottoUno, 1, 0}, CasoFinoA{0.0F, 20, 0},
                    CasoFinoA{0.24999999F, 4, 0}, CasoFinoA{0.25F, 4, 1}, CasoFinoA{0.5F, 4, 2},
                    CasoFinoA{0.74999994F, 4, 2}, CasoFinoA{0.75F, 4, 3}, CasoFinoA{SottoUno, 4, 3},
                    CasoFinoA{0.99F, 15, 14},
                    // A sixth is no float: the one below it and the one above it.
                    CasoFinoA{0x1.555554p-3F, 6, 0}, CasoFinoA{0x1.555556p-3F, 6, 1},
                    // Times n these are just below 10 and 5; in single precision they would be
                    // rounded up to them.
                    CasoFinoA{0x1.d1745cp-1F, 11, 9}, CasoFinoA{0x1.aaaaaap-1F, 6, 4}));

TEST(Casuale, FinoANeverReachesN) {
    for (int n = 1; n <= 40000; ++n) {
        CasualeFinto casuale({SottoUno});
        ASSERT_EQ(casuale.FinoA(n), n - 1);
    }
    CasualeFinto casuale({SottoUno});
    EXPECT_LT(casuale.FinoA(std::numeric_limits<int>::max()), std::numeric_limits<int>::max());
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

TEST(CasualeConSeme, EveryBitOfTheSeedCounts) {
    const auto prime = [](std::uint64_t seme) {
        CasualeConSeme casuale(seme);
        std::vector<float> estratti(8);
        std::ranges::generate(estratti, [&] { return casuale.Estrai(); });
        return estratti;
    };
    EXPECT_EQ(prime(1), prime(1));
    for (unsigned bit = 0; bit < 64; ++bit) {
        EXPECT_NE(prime(1), prime(1U ^ (std::uint64_t{1} << bit))) << bit;
    }
}

}  // namespace
}  // namespace trameli
