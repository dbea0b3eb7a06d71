// Twips on screens of all sizes.
#include "platform/screen.h"

#include <gtest/gtest.h>

#include "support/stage.h"

namespace trameli {
namespace {

TEST(ScreenTest, HasFifteenTwipsAPixelOrAsManyAsFitIntoSixteenBits) {
    for (int longer = 1; longer <= LongestInTwips; ++longer) {
        const int twips = TwipsPerPixelFor(longer, longer / 2);
        ASSERT_LE(longer * twips, LongestInTwips) << longer;
        ASSERT_TRUE(twips == 15 || longer * (twips + 1) > LongestInTwips)
            << longer << " pixels have room for more";
        ASSERT_EQ(TwipsPerPixelFor(longer / 2, longer), twips);
    }
    EXPECT_EQ(TwipsPerPixelFor(1920, 1080), 15);
    EXPECT_EQ(TwipsPerPixelFor(40000, 10), 1);
    EXPECT_EQ(TwipsPerPixelFor(-1, 0), 15);
    const FixedScreen large(3840, 2160);
    EXPECT_EQ(large.Width(), 30720);
    EXPECT_EQ(large.Height(), 17280);
}

}  // namespace
}  // namespace trameli
