#include "engine/ricette.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <limits>
#include <stdexcept>

#include "base/griglie.h"

namespace trameli {
namespace {

TEST(Ricette, AreOfThreeKinds) {
    using enum Ricetta;
    constexpr std::array<Ricetta, NumeroLivelli> attese{
        ScatolaVuota,      ScavataEAllargata, ScavataEAllargata, ScavataEAllargata,
        ScavataEAllargata, ScatolaVuota,      ScavataEAllargata, ScavataEAllargata,
        Scavata,           Scavata,           Scavata,           Scavata,
        Scavata,           Scavata,           Scavata,           Scavata};
    for (int livello = 0; livello < NumeroLivelli; ++livello) {
        EXPECT_EQ(RicettaDi(livello), attese.at(static_cast<std::size_t>(livello))) << livello;
    }
}

struct CasoQuanti {
    int Livello;
    std::int16_t MuriRimasti;
    std::int16_t Attesi;
};

class QuantiMuri : public testing::TestWithParam<CasoQuanti> {};

TEST_P(QuantiMuri, IsTheRecipesNumber) {
    const auto [livello, muriRimasti, attesi] = GetParam();
    EXPECT_EQ(QuantiMuriDaAbbattere(livello, muriRimasti), attesi);
}

INSTANTIATE_TEST_SUITE_P(
    Ricette, QuantiMuri,
    testing::Values(CasoQuanti{1, 40, 34}, CasoQuanti{2, 40, 28}, CasoQuanti{3, 40, 16},
                    CasoQuanti{4, 40, 10}, CasoQuanti{6, 65, 58}, CasoQuanti{7, 65, 32},
                    // The quotient is cut off before it is multiplied: 41 - 5 x 6, not 41 - 34.
                    CasoQuanti{1, 41, 35}, CasoQuanti{2, 41, 29}, CasoQuanti{3, 41, 17},
                    CasoQuanti{4, 41, 11}, CasoQuanti{2, 47, 33}, CasoQuanti{4, 47, 12},
                    CasoQuanti{1, 5, 5}, CasoQuanti{2, 5, 5}, CasoQuanti{3, 5, 5},
                    CasoQuanti{4, 5, 5}, CasoQuanti{7, 1, 0}, CasoQuanti{6, 7, 0},
                    CasoQuanti{6, 3, -4}, CasoQuanti{1, 32767, 27306}, CasoQuanti{4, 32767, 5462},
                    CasoQuanti{7, 32767, 16383}, CasoQuanti{6, -32768, -32768},
                    CasoQuanti{0, 40, 0}, CasoQuanti{5, 65, 0}, CasoQuanti{8, 40, 0},
                    CasoQuanti{15, 40, 0}));

TEST(Ricette, OtherLevelsAreRefused) {
    for (const int livello : {-1, 16, std::numeric_limits<int>::min()}) {
        EXPECT_THROW(DimensioniDi(livello), std::out_of_range);
        EXPECT_THROW(RicettaDi(livello), std::out_of_range);
        EXPECT_THROW(QuantiMuriDaAbbattere(livello, 40), std::out_of_range);
    }
}

}  // namespace
}  // namespace trameli
