#include "drawing/muri_a_linee.h"

#include <gtest/gtest.h>

namespace trameli {

namespace {

constexpr Misure Piccole{750, 1625, 740, 7};

}  // namespace

TEST(MuriALinee, RoundEndedWallsAreAsLongAsACell) {
    const Cella cella{2, 3};
    EXPECT_EQ(SegmentoMuro(cella, Lato::Alto, Piccole, 0), (Segmento{{3125, 1490}, {3875, 1490}}));
    EXPECT_EQ(SegmentoMuro(cella, Lato::Destra, Piccole, 0),
              (Segmento{{3875, 1490}, {3875, 2240}}));
    EXPECT_EQ(SegmentoMuro(cella, Lato::Basso, Piccole, 0), (Segmento{{3125, 2240}, {3875, 2240}}));
    EXPECT_EQ(SegmentoMuro(cella, Lato::Sinistra, Piccole, 0),
              (Segmento{{3125, 1490}, {3125, 2240}}));
}

TEST(MuriALinee, SquareEndedWallsGrowAlongThemselves) {
    const Cella cella{1, 1};
    EXPECT_EQ(SegmentoMuro(cella, Lato::Alto, Piccole, 52), (Segmento{{1573, 740}, {2427, 740}}));
    EXPECT_EQ(SegmentoMuro(cella, Lato::Destra, Piccole, 52),
              (Segmento{{2375, 688}, {2375, 1542}}));
    EXPECT_EQ(SegmentoMuro(cella, Lato::Basso, Piccole, 52),
              (Segmento{{1573, 1490}, {2427, 1490}}));
    EXPECT_EQ(SegmentoMuro(cella, Lato::Sinistra, Piccole, 52),
              (Segmento{{1625, 688}, {1625, 1542}}));
}

TEST(MuriALinee, AWallLiesAtTheSamePlaceForBothItsCells) {
    EXPECT_EQ(SegmentoMuro({3, 4}, Lato::Destra, Piccole, 52),
              SegmentoMuro({3, 5}, Lato::Sinistra, Piccole, 52));
    EXPECT_EQ(SegmentoMuro({3, 4}, Lato::Basso, Piccole, 52),
              SegmentoMuro({4, 4}, Lato::Alto, Piccole, 52));
}

TEST(MuriALinee, HalfTheThicknessInTwips) {
    EXPECT_EQ(SporgenzaMuri(7, 15), 52);  // 105 \ 2
    EXPECT_EQ(SporgenzaMuri(10, 15), 75);
    EXPECT_EQ(SporgenzaMuri(5, 8.5), 21);  // 42.5 goes to the even 42
    EXPECT_EQ(SporgenzaMuri(0, 15), 0);
}

TEST(MuriALinee, WhatIsTooFarStopsAtSixteenBits) {
    constexpr Misure grandi{32767, 32767, 0, 7};
    EXPECT_EQ(SegmentoMuro({1, 2}, Lato::Alto, grandi, 52), (Segmento{{32767, 0}, {32767, 0}}));
    EXPECT_EQ(SegmentoMuro({1, 1}, Lato::Sinistra, {750, -32768, -32768, 7}, 52),
              (Segmento{{-32768, -32768}, {-32768, -31966}}));
}

}  // namespace trameli
