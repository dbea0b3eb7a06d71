#include "drawing/muri_a_barre.h"

#include <gtest/gtest.h>

#include <ostream>

namespace trameli {

void PrintTo(const Bounds& b, std::ostream* out) {
    *out << b.Left << ", " << b.Top << ", " << b.Width << ", " << b.Height;
}

namespace {

constexpr Misure Usuali{750, 1625, 740, 7};
// A third is 250, a sixth 125. Odd: a third of 761 is 253, half of that 126, a sixth 126.
constexpr Misure Dispari{761, 100, 200, 7};

struct Barra {
    const char* Nome;
    Misure Come;
    Cella Dove;
    trameli::Lato Lato;
    Bounds Posto;
};

class MuriABarre : public testing::TestWithParam<Barra> {};

INSTANTIATE_TEST_SUITE_P(
    Tabella, MuriABarre,
    testing::Values(Barra{"Below", Usuali, {1, 1}, Lato::Basso, {1500, 1365, 1000, 250}},
                    Barra{"Above", Usuali, {1, 4}, Lato::Alto, {3750, 615, 1000, 250}},
                    Barra{"Left", Usuali, {3, 1}, Lato::Sinistra, {1500, 2115, 250, 1000}},
                    Barra{"Right", Usuali, {3, 2}, Lato::Destra, {3000, 2115, 250, 1000}},
                    Barra{"OddBelow", Dispari, {2, 3}, Lato::Basso, {1496, 1596, 1014, 253}},
                    Barra{"OddRight", Dispari, {2, 3}, Lato::Destra, {2257, 835, 253, 1014}}),
    [](const auto& voce) { return voce.param.Nome; });

TEST_P(MuriABarre, LieCentredOnTheirWalls) {
    const Barra& riga = GetParam();
    EXPECT_EQ(PostoBarra(riga.Dove, riga.Lato, riga.Come), riga.Posto);
}

TEST(BarreDelTramelo, ABarLiesAtTheSamePlaceForBothItsCells) {
    EXPECT_EQ(PostoBarra({3, 4}, Lato::Destra, Dispari),
              PostoBarra({3, 5}, Lato::Sinistra, Dispari));
    EXPECT_EQ(PostoBarra({3, 4}, Lato::Basso, Dispari), PostoBarra({4, 4}, Lato::Alto, Dispari));
}

TEST(BarreDelTramelo, OneForEachWallInFourPasses) {
    CasualeConSeme casuale(1);
    Tramelo tramelo(2, 2, casuale);
    tramelo.CreaNuovaGriglia();
    tramelo.Apri({1, 2}, Lato::Alto);
    tramelo.Apri({2, 1}, Lato::Sinistra);
    const std::vector<std::pair<Cella, Lato>> attesi{
        {{1, 1}, Lato::Alto},   {{1, 1}, Lato::Sinistra}, {{1, 1}, Lato::Basso},
        {{1, 2}, Lato::Basso},  {{2, 1}, Lato::Basso},    {{2, 2}, Lato::Basso},
        {{1, 1}, Lato::Destra}, {{1, 2}, Lato::Destra},   {{2, 1}, Lato::Destra},
        {{2, 2}, Lato::Destra}};
    const auto posti = PostiBarre(tramelo, Usuali);
    ASSERT_EQ(posti.size(), attesi.size());
    for (std::size_t i = 0; i < posti.size(); ++i) {
        EXPECT_EQ(posti[i], PostoBarra(attesi[i].first, attesi[i].second, Usuali)) << i;
    }
}

}  // namespace
}  // namespace trameli
