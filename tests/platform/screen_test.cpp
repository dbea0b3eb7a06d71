// Twips on screens of all sizes.
#include "platform/screen.h"

#include <gtest/gtest.h>

#include "support/stage.h"

namespace trameli {
namespace {

TEST(ScreenTest, HasFifteenTwipsAPixelOrAsManyAsFitIntoSixteenBits) {
    struct Row {
        int Width;
        int Height;
        int Twips;
    };
    const Row rows[] = {
        {800, 600, 15},   {1366, 768, 15},  {1920, 1080, 15}, {1080, 1920, 15}, {2184, 1000, 15},
        {2185, 1000, 14}, {1000, 2185, 14}, {2560, 1440, 12}, {3840, 2160, 8},  {2160, 3840, 8},
        {7680, 4320, 4},  {32767, 10, 1},   {40000, 10, 1},   {0, 0, 15},       {-1, -1, 15},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(TwipsPerPixelFor(row.Width, row.Height), row.Twips)
            << row.Width << " x " << row.Height;
    }
}

TEST(ScreenTest, HasNoCoordinateBeyondSixteenBits) {
    for (int longer = 1; longer <= LongestInTwips; ++longer) {
        const int twips = TwipsPerPixelFor(longer, longer / 2);
        ASSERT_LE(longer * twips, LongestInTwips) << longer;
        ASSERT_TRUE(twips == 15 || longer * (twips + 1) > LongestInTwips)
            << longer << " pixels have room for more";
        ASSERT_EQ(TwipsPerPixelFor(longer / 2, longer), twips);
    }
}

TEST(ScreenTest, TellsItsSizeInTwips) {
    const FixedScreen large(3840, 2160);
    EXPECT_EQ(large.Width(), 30720);
    EXPECT_EQ(large.Height(), 17280);
    const FixedScreen usual(1366, 768);
    EXPECT_EQ(usual.Width(), 20490);
    EXPECT_EQ(usual.Height(), 11520);
}

}  // namespace
}  // namespace trameli
