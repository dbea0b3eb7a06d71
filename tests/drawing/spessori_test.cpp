#include "drawing/spessori.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace trameli {

namespace {

struct Caso {
    int SpessoreLinee;
    Spessori Atteso;
};

class OgniCombinazione : public testing::TestWithParam<Caso> {};

}  // namespace

TEST_P(OgniCombinazione, FollowsTheCellOfFiftyPixels) {
    const auto& [combinazione, atteso] = GetParam();
    EXPECT_EQ(CalcolaSpessori(combinazione, 750, 15, Pareti::Linee), atteso);
}

INSTANTIATE_TEST_SUITE_P(Spessori, OgniCombinazione,
                         testing::Values(Caso{0, {5, 5, 45}}, Caso{1, {10, 10, 40}},
                                         Caso{2, {16, 16, 34}}, Caso{3, {16, 7, 43}},
                                         Caso{4, {10, 5, 45}}, Caso{5, {7, 16, 34}},
                                         Caso{6, {5, 10, 40}}),
                         [](const auto& caso) {
                             return "Combinazione" + std::to_string(caso.param.SpessoreLinee);
                         });

TEST(Spessori, CorridorBetweenBarsIsTwoThirdsOfACell) {
    // 50 \ 3 is 16; the walls' own thickness has no part in it.
    EXPECT_EQ(CalcolaSpessori(0, 750, 15, Pareti::Barre), (Spessori{5, 5, 34}));
    EXPECT_EQ(CalcolaSpessori(5, 750, 15, Pareti::Barre), (Spessori{7, 16, 34}));
}

TEST(Spessori, CellIsFlooredToWholePixelsFirst) {
    // 764 / 15 is 50.9: one pixel more would make the walls 17 pixels thick.
    EXPECT_EQ(CalcolaSpessori(2, 764, 15, Pareti::Linee), (Spessori{16, 16, 34}));
    EXPECT_EQ(CalcolaSpessori(2, 765, 15, Pareti::Linee), (Spessori{17, 17, 34}));
}

TEST(Spessori, FinerScreenHasMorePixelsInACell) {
    // 750 / 8 is 93.75: 93 pixels, 93 / 7 is 13.3 and 93 / 3 is 31.
    EXPECT_EQ(CalcolaSpessori(5, 750, 8, Pareti::Linee), (Spessori{13, 31, 62}));
}

TEST(Spessori, TinyCellsHaveThicknessZero) {
    EXPECT_EQ(CalcolaSpessori(0, 149, 15, Pareti::Linee), (Spessori{0, 0, 9}));
    EXPECT_EQ(CalcolaSpessori(0, 0, 15, Pareti::Linee), (Spessori{0, 0, 0}));
}

TEST(Spessori, LargestCellFits) {
    EXPECT_EQ(CalcolaSpessori(0, 32767, 1, Pareti::Linee), (Spessori{3276, 3276, 29491}));
}

TEST(Spessori, ThereIsNoEighthCombination) {
    EXPECT_THROW(CalcolaSpessori(NumeroSpessori, 750, 15, Pareti::Linee), std::out_of_range);
    EXPECT_THROW(CalcolaSpessori(-1, 750, 15, Pareti::Linee), std::out_of_range);
}

}  // namespace trameli
