#include "drawing/geometria.h"

#include <gtest/gtest.h>

namespace trameli {

TEST(Geometria, LargestGrid) {
    // 10000 \ 21 is 476, 6000 \ 17 is 352: the height decides.
    EXPECT_EQ(CalcolaGeometria(10000, 6000, 15, 20), (Geometria{352, 1480, 360}));
}

TEST(Geometria, GridOfTheFirstLevels) {
    EXPECT_EQ(CalcolaGeometria(10000, 6000, 6, 9), (Geometria{750, 1625, 750}));
}

TEST(Geometria, NarrowBox) {
    // 5000 \ 12 is 416, 9000 \ 10 is 900: the width decides.
    EXPECT_EQ(CalcolaGeometria(5000, 9000, 8, 11), (Geometria{416, 212, 2836}));
}

TEST(Geometria, OddRestLosesItsHalf) {
    // 1007 - 4 x 201 leaves 203.
    EXPECT_EQ(CalcolaGeometria(1007, 9000, 3, 4), (Geometria{201, 101, 4198}));
}

TEST(Geometria, SizeIsRoundedToTheNearestAndAHalfToTheEven) {
    // 999.5 becomes 1000, a fifth of which is 200; 994.5 becomes 994 and gives 198.
    EXPECT_EQ(CalcolaGeometria(999.5, 9000, 3, 4).DimensioneCella, 200);
    EXPECT_EQ(CalcolaGeometria(994.5, 9000, 3, 4).DimensioneCella, 198);
}

TEST(Geometria, MarginsComeFromTheUnroundedSize) {
    // (999.5 - 800) / 2 is 99.75, (999.5 - 600) / 2 is 199.75; the rounded size would give 100 and
    // 200.
    EXPECT_EQ(CalcolaGeometria(999.5, 9000, 3, 4).MargineSinistro, 99);
    EXPECT_EQ(CalcolaGeometria(9000, 999.5, 3, 4).MargineSuperiore, 199);
}

TEST(Geometria, WhatIsTooLargeStopsAtSixteenBits) {
    EXPECT_EQ(CalcolaGeometria(1e6, 1e6, 3, 4), (Geometria{32767, 32767, 32767}));
    EXPECT_EQ(CalcolaGeometria(1e12, 1e12, 3, 4).DimensioneCella, 32767);
}

TEST(Geometria, BoxWithoutRoomMakesNoCells) {
    EXPECT_EQ(CalcolaGeometria(0, 0, 6, 9), (Geometria{0, 0, 0}));
    EXPECT_EQ(CalcolaGeometria(10000, 7, 6, 9), (Geometria{0, 5000, 3}));
}

TEST(Geometria, EngineGetsTheThicknessInPixels) {
    const Misure misure = MisureDi({750, 1625, 740}, {16, 7, 43});
    EXPECT_EQ(misure.DimensioneCella, 750);
    EXPECT_EQ(misure.MargineSinistro, 1625);
    EXPECT_EQ(misure.MargineSuperiore, 740);
    EXPECT_EQ(misure.SpessoreMuri, 7);
}

}  // namespace trameli
