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
    Misure Come;
    Cella Dove;
    trameli::Lato Lato;
    Bounds Posto;
};

constexpr Barra Barre[] = {
    {Usuali, {1, 1}, Lato::Basso, {1500, 1365, 1000, 250}},
    {Usuali, {1, 4}, Lato::Alto, {3750, 615, 1000, 250}},
    {Usuali, {3, 1}, Lato::Sinistra, {1500, 2115, 250, 1000}},
    {Usuali, {3, 2}, Lato::Destra, {3000, 2115, 250, 1000}},
    {Dispari, {2, 3}, Lato::Basso, {1496, 1596, 1014, 253}},
    {Dispari, {2, 3}, Lato::Destra, {2257, 835, 253, 1014}},
};

TEST(MuriABarre, LieCentredOnTheirWallsForBothCells) {
    for (const auto& [come, dove, lato, posto] : Barre) {
        EXPECT_EQ(PostoBarra(dove, lato, come), posto);
        EXPECT_EQ(PostoBarra(Vicina(dove, lato), Opposto(lato), come), posto);
    }
}

TEST(MuriABarre, OneForEachWallInFourPasses) {
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
