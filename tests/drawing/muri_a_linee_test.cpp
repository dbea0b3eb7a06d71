#include "drawing/muri_a_linee.h"

#include <gtest/gtest.h>

namespace trameli {
namespace {

constexpr Misure Usuali{750, 1625, 740, 7};

TEST(MuriALinee, RunFromCornerToCornerAndGrowAlongThemselves) {
    const Cella cella{2, 3};
    EXPECT_EQ(SegmentoMuro(cella, Lato::Alto, Usuali, 0), (Segmento{{3125, 1490}, {3875, 1490}}));
    EXPECT_EQ(SegmentoMuro(cella, Lato::Destra, Usuali, 52),
              (Segmento{{3875, 1438}, {3875, 2292}}));
    EXPECT_EQ(SegmentoMuro(cella, Lato::Basso, Usuali, 52), (Segmento{{3073, 2240}, {3927, 2240}}));
    EXPECT_EQ(SegmentoMuro(cella, Lato::Sinistra, Usuali, 0),
              (Segmento{{3125, 1490}, {3125, 2240}}));
}

TEST(MuriALinee, LieAtTheSamePlaceForBothCells) {
    for (const Lato lato : {Lato::Destra, Lato::Basso}) {
        const Cella cella{3, 4};
        EXPECT_EQ(SegmentoMuro(cella, lato, Usuali, 0),
                  SegmentoMuro(Vicina(cella, lato), Opposto(lato), Usuali, 0));
    }
}

TEST(MuriALinee, StopAtSixteenBits) {
    constexpr Misure grandi{32767, 32767, -32768, 7};
    EXPECT_EQ(SegmentoMuro({3, 2}, Lato::Basso, grandi, 0),
              (Segmento{{32767, 32767}, {32767, 32767}}));
    EXPECT_EQ(SegmentoMuro({1, 1}, Lato::Sinistra, grandi, 0),
              (Segmento{{32767, -32768}, {32767, -1}}));
}

}  // namespace
}  // namespace trameli
