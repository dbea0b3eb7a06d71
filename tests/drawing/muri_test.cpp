// The places of walls as bars.
#include <gtest/gtest.h>

#include "drawing/muri_a_barre.h"

namespace trameli {
namespace {

constexpr Geometria Usuali{750, 1625, 740};

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

}  // namespace
}  // namespace trameli
