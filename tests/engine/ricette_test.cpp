#include "engine/ricette.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

namespace trameli {
namespace {

struct CasoLivello {
    int Livello;
    DimensioniGriglia Dimensioni;
    Ricetta Passi;
};

class Livelli : public testing::TestWithParam<CasoLivello> {};

TEST_P(Livelli, HasItsGridAndItsRecipe) {
    const auto& [livello, dimensioni, passi] = GetParam();
    EXPECT_EQ(DimensioniDi(livello), dimensioni);
    EXPECT_EQ(RicettaDi(livello), passi);
}

INSTANTIATE_TEST_SUITE_P(Ricette, Livelli,
                         testing::Values(CasoLivello{0, {6, 9}, Ricetta::ScatolaVuota},
                                         CasoLivello{1, {6, 9}, Ricetta::ScavataEAllargata},
                                         CasoLivello{2, {6, 9}, Ricetta::ScavataEAllargata},
                                         CasoLivello{3, {6, 9}, Ricetta::ScavataEAllargata},
                                         CasoLivello{4, {6, 9}, Ricetta::ScavataEAllargata},
                                         CasoLivello{5, {8, 11}, Ricetta::ScatolaVuota},
                                         CasoLivello{6, {8, 11}, Ricetta::ScavataEAllargata},
                                         CasoLivello{7, {8, 11}, Ricetta::ScavataEAllargata},
                                         CasoLivello{8, {3, 4}, Ricetta::Scavata},
                                         CasoLivello{9, {4, 5}, Ricetta::Scavata},
                                         CasoLivello{10, {5, 6}, Ricetta::Scavata},
                                         CasoLivello{11, {6, 7}, Ricetta::Scavata},
                                         CasoLivello{12, {8, 10}, Ricetta::Scavata},
                                         CasoLivello{13, {10, 15}, Ricetta::Scavata},
                                         CasoLivello{14, {12, 18}, Ricetta::Scavata},
                                         CasoLivello{15, {15, 20}, Ricetta::Scavata}));

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
