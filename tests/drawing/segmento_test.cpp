#include "drawing/segmento.h"

#include <gtest/gtest.h>

namespace trameli {

TEST(Segmento, GrowsAlongItselfAtEachEnd) {
    struct {
        Segmento Prima;
        int Indietro, Avanti;
        Segmento Dopo;
    } const casi[] = {
        {{{1000, 1000}, {1750, 1000}}, 52, 7, {{948, 1000}, {1757, 1000}}},
        {{{1000, 1750}, {1000, 1000}}, 52, 7, {{1000, 1802}, {1000, 993}}},
        {{{1000, 1000}, {1750, 1000}}, -52, -52, {{1052, 1000}, {1698, 1000}}},
        // A point has no direction.
        {{{1000, 1000}, {1000, 1000}}, 52, 52, {{1000, 1000}, {1000, 1000}}},
        {{{0, 32700}, {0, -32700}}, 323, 323, {{0, 32767}, {0, -32768}}},
    };
    for (const auto& [prima, indietro, avanti, dopo] : casi) {
        EXPECT_EQ(Allunga(prima, indietro, avanti), dopo)
            << "from " << prima.Da.X << ", " << prima.Da.Y << " by " << indietro;
    }
}

TEST(MetaPenna, IsRoundedBeforeItIsHalved) {
    EXPECT_EQ(MetaPenna(5, 15), 37);   // 75 \ 2
    EXPECT_EQ(MetaPenna(5, 8.5), 21);  // 42.5 goes to the even 42
    EXPECT_EQ(MetaPenna(7, 8.5), 30);  // 59.5 goes to the even 60
}

}  // namespace trameli
