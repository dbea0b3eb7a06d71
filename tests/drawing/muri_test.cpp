// The places of walls, as lines and as bars, and the order of bars.
#include <gtest/gtest.h>

#include "drawing/muri_a_barre.h"
#include "drawing/muri_a_linee.h"

namespace trameli {
namespace {

constexpr Geometria Usuali{750, 1625, 740};

TEST(MuriALinee, RunFromCornerToCorner) {
    const std::pair<Lato, Segmento> casi[] = {
        {Lato::Alto, {{3125, 1490}, {3875, 1490}}},
        {Lato::Destra, {{3875, 1490}, {3875, 2240}}},
        {Lato::Basso, {{3125, 2240}, {3875, 2240}}},
        {Lato::Sinistra, {{3125, 1490}, {3125, 2240}}},
    };
    for (const auto& [lato, atteso] : casi) {
        EXPECT_EQ(SegmentoMuro({2, 3}, lato, Usuali), atteso);
    }
}

TEST(MuriABarre, LieCentredOnTheirWallsForBothCells) {
    // A third of 761 is 253, half of that 126, a sixth 126.
    constexpr Geometria dispari{761, 100, 200};
    struct {
        Geometria Come;
        Cella Dove;
        Lato Parete;
        Bounds Posto;
    } const casi[] = {
        {Usuali, {1, 1}, Lato::Basso, {1500, 1365, 1000, 250}},
        {Usuali, {3, 1}, Lato::Sinistra, {1500, 2115, 250, 1000}},
        {dispari, {2, 3}, Lato::Basso, {1496, 1596, 1014, 253}},
        {dispari, {2, 3}, Lato::Destra, {2257, 835, 253, 1014}},
    };
    for (const auto& [come, dove, parete, posto] : casi) {
        EXPECT_EQ(PostoBarra(dove, parete, come), posto);
        EXPECT_EQ(PostoBarra(Vicina(dove, parete), Opposto(parete), come), posto);
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
