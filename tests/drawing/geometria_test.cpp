#include "drawing/geometria.h"

#include <gtest/gtest.h>

namespace trameli {
namespace {

struct Caso {
    const char* Nome;
    double Larghezza, Altezza;
    int Righe, Colonne;
    Geometria Attesa;
};

const Caso Casi[] = {
    // 10000 \ 21 is 476, 6000 \ 17 is 352; 5000 \ 12 is 416, 9000 \ 10 is 900.
    {"TheHeightDecides", 10000, 6000, 15, 20, {352, 1480, 360}},
    {"FirstLevels", 10000, 6000, 6, 9, {750, 1625, 750}},
    {"TheWidthDecides", 5000, 9000, 8, 11, {416, 212, 2836}},
    // 1007 - 4 x 201 leaves 203.
    {"AnOddRestLosesItsHalf", 1007, 9000, 3, 4, {201, 101, 4198}},
    // 999.5 becomes 1000, a fifth of which is 200; 994.5 becomes 994 and gives 198. Margins come
    // from the unrounded size: (999.5 - 800) / 2 is 99.75, (999.5 - 600) / 2 is 199.75.
    {"AHalfIsRounded", 999.5, 9000, 3, 4, {200, 99, 4200}},
    {"AHalfIsRoundedToTheEven", 994.5, 9000, 3, 4, {198, 101, 4203}},
    {"UprightMarginsToo", 9000, 999.5, 3, 4, {200, 4100, 199}},
    {"TooLarge", 1e6, 1e6, 3, 4, {32767, 32767, 32767}},
    {"FarTooLarge", 1e12, 1e12, 3, 4, {32767, 32767, 32767}},
    {"NoRoom", 0, 0, 6, 9, {0, 0, 0}},
    {"NoRoomForACell", 10000, 7, 6, 9, {0, 5000, 3}},
};

TEST(Geometria, LargestCellsThatFitInTheMiddleOfTheBox) {
    for (const Caso& caso : Casi) {
        const Geometria geometria =
            CalcolaGeometria(caso.Larghezza, caso.Altezza, caso.Righe, caso.Colonne);
        EXPECT_EQ(geometria.DimensioneCella, caso.Attesa.DimensioneCella) << caso.Nome;
        EXPECT_EQ(geometria.MargineSinistro, caso.Attesa.MargineSinistro) << caso.Nome;
        EXPECT_EQ(geometria.MargineSuperiore, caso.Attesa.MargineSuperiore) << caso.Nome;
    }
}

}  // namespace
}  // namespace trameli
