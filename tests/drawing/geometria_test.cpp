#include "drawing/geometria.h"

#include <gtest/gtest.h>

namespace trameli {
namespace {

TEST(Geometria, LargestCellsThatFitInTheMiddleOfTheBox) {
    struct {
        const char* Nome;
        double Larghezza, Altezza;
        int Righe, Colonne;
        Geometria Attesa;
    } const casi[] = {
        // 10000 \ 21 is 476, 6000 \ 17 is 352; 5000 \ 12 is 416, 9000 \ 10 is 900.
        {"TheHeightDecides", 10000, 6000, 15, 20, {352, 1480, 360}},
        {"TheWidthDecides", 5000, 9000, 8, 11, {416, 212, 2836}},
        // 999.5 becomes 1000, a fifth of which is 200; 994.5 becomes 994 and gives 198. Margins
        // come from the unrounded size: (999.5 - 800) / 2 is 99.75, (999.5 - 600) / 2 is 199.75.
        {"AHalfIsRounded", 999.5, 9000, 3, 4, {200, 99, 4200}},
        {"AHalfIsRoundedToTheEven", 994.5, 9000, 3, 4, {198, 101, 4203}},
        {"UprightMarginsToo", 9000, 999.5, 3, 4, {200, 4100, 199}},
        {"FarTooLarge", 1e12, 1e12, 3, 4, {32767, 32767, 32767}},
        {"NoRoomForACell", 10000, 7, 6, 9, {0, 5000, 3}},
    };
    for (const auto& caso : casi) {
        EXPECT_EQ(CalcolaGeometria(caso.Larghezza, caso.Altezza, caso.Righe, caso.Colonne),
                  caso.Attesa)
            << caso.Nome;
    }
}

}  // namespace
}  // namespace trameli
