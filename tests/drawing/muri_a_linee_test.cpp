#include "drawing/muri_a_linee.h"

#include <gtest/gtest.h>

namespace trameli {

namespace {

constexpr Misure Piccole{750, 1625, 740, 7};

}  // namespace

TEST(MuriALinee, WallsRunFromCornerToCorner) {
    const Cella cella{2, 3};
    EXPECT_EQ(SegmentoMuro(cella, Lato::Alto, Piccole, 0), (Segmento{{3125, 1490}, {3875, 1490}}));
    EXPECT_EQ(SegmentoMuro(cella, Lato::Destra, Piccole, 0),
              (Segmento{{3875, 1490}, {3875, 2240}}));
    EXPECT_EQ(SegmentoMuro(cella, Lato::Basso, Piccole, 0), (Segmento{{3125, 2240}, {3875, 2240}}));
    EXPECT_EQ(SegmentoMuro(cella, Lato::Sinistra, Piccole, 0),
              (Segmento{{3125, 1490}, {3125, 2240}}));
}

TEST(MuriALinee, WallsGrowAlongThemselves) {
    EXPECT_EQ(SegmentoMuro({1, 1}, Lato::Alto, Piccole, 52), (Segmento{{1573, 740}, {2427, 740}}));
    EXPECT_EQ(SegmentoMuro({1, 1}, Lato::Destra, Piccole, 52),
              (Segmento{{2375, 688}, {2375, 1542}}));
}

TEST(MuriALinee, AWallLiesAtTheSamePlaceForBothItsCells) {
    EXPECT_EQ(SegmentoMuro({3, 4}, Lato::Destra, Piccole, 0),
              SegmentoMuro({3, 5}, Lato::Sinistra, Piccole, 0));
    EXPECT_EQ(SegmentoMuro({3, 4}, Lato::Basso, Piccole, 0),
              SegmentoMuro({4, 4}, Lato::Alto, Piccole, 0));
}

TEST(MuriALinee, WhatIsTooFarStopsAtSixteenBits) {
    constexpr Misure grandi{32767, 32767, -32768, 7};
    EXPECT_EQ(SegmentoMuro({3, 2}, Lato::Basso, grandi, 0),
              (Segmento{{32767, 32767}, {32767, 32767}}));
    EXPECT_EQ(SegmentoMuro({1, 1}, Lato::Sinistra, grandi, 0),
              (Segmento{{32767, -32768}, {32767, -1}}));
}

}  // namespace trameli
