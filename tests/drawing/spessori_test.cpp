#include "drawing/spessori.h"

#include <gtest/gtest.h>

namespace trameli {
namespace {

TEST(Spessori, ArePartsOfTheCellInWholePixels) {
    struct {
        int SpessoreLinee;
        std::int16_t DimensioneCella;
        double TwipsPerPixel;
        Pareti Muri;
        Spessori Attesi;
    } const casi[] = {
        // A cell of 50 pixels.
        {0, 750, 15, Pareti::Linee, {5, 5, 45}},
        {1, 750, 15, Pareti::Linee, {10, 10, 40}},
        {2, 750, 15, Pareti::Linee, {16, 16, 34}},
        {3, 750, 15, Pareti::Linee, {16, 7, 43}},
        {4, 750, 15, Pareti::Linee, {10, 5, 45}},
        {5, 750, 15, Pareti::Linee, {7, 16, 34}},
        {6, 750, 15, Pareti::Linee, {5, 10, 40}},
        // Between bars two thirds: 50 \ 3 is 16, and the walls' own thickness has no part in it.
        {0, 750, 15, Pareti::Barre, {5, 5, 34}},
        // Whole pixels first: 764 / 15 is 50.9, and 51 would make the walls 17 pixels thick.
        {2, 764, 15, Pareti::Linee, {16, 16, 34}},
        // 750 / 8 is 93.75: 93 pixels, 93 / 7 is 13.3 and 93 / 3 is 31.
        {5, 750, 8, Pareti::Linee, {13, 31, 62}},
    };
    for (const auto& [combinazione, cella, twips, muri, attesi] : casi) {
        const Spessori spessori = CalcolaSpessori(combinazione, cella, twips, muri);
        EXPECT_EQ(spessori, attesi)
            << combinazione << " in " << cella << ": " << spessori.SpessoreTraccia << ", "
            << spessori.SpessoreMuri << ", " << spessori.LarghezzaCorridoio;
    }
}

}  // namespace
}  // namespace trameli
