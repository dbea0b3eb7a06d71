#include "drawing/segmento.h"

#include <gtest/gtest.h>

namespace trameli {

TEST(Segmento, GrowsAlongItselfAtEachEnd) {
    EXPECT_EQ(Allunga({{1000, 1000}, {1750, 1000}}, 52, 7), (Segmento{{948, 1000}, {1757, 1000}}));
    EXPECT_EQ(Allunga({{1750, 1000}, {1000, 1000}}, 52, 7), (Segmento{{1802, 1000}, {993, 1000}}));
    EXPECT_EQ(Allunga({{1000, 1000}, {1000, 1750}}, 52, 7), (Segmento{{1000, 948}, {1000, 1757}}));
    EXPECT_EQ(Allunga({{1000, 1750}, {1000, 1000}}, 52, 7), (Segmento{{1000, 1802}, {1000, 993}}));
}

TEST(Segmento, ShrinksToo) {
    EXPECT_EQ(Allunga({{1000, 1000}, {1750, 1000}}, -52, -52),
              (Segmento{{1052, 1000}, {1698, 1000}}));
}

TEST(Segmento, APointHasNoDirection) {
    EXPECT_EQ(Allunga({{1000, 1000}, {1000, 1000}}, 52, 52),
              (Segmento{{1000, 1000}, {1000, 1000}}));
}

TEST(Segmento, StopsAtSixteenBits) {
    EXPECT_EQ(Allunga({{-32700, 0}, {32700, 0}}, 323, 323), (Segmento{{-32768, 0}, {32767, 0}}));
    EXPECT_EQ(Allunga({{0, 32700}, {0, -32700}}, 323, 323), (Segmento{{0, 32767}, {0, -32768}}));
}

TEST(MetaPenna, IsRoundedBeforeItIsHalved) {
    EXPECT_EQ(MetaPenna(7, 15), 52);  // 105 \ 2
    EXPECT_EQ(MetaPenna(10, 15), 75);
    EXPECT_EQ(MetaPenna(5, 8.5), 21);  // 42.5 goes to the even 42
    EXPECT_EQ(MetaPenna(7, 8.5), 30);  // 59.5 goes to the even 60
    EXPECT_EQ(MetaPenna(0, 15), 0);
}

}  // namespace trameli
