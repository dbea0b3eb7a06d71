#include <gtest/gtest.h>

#include "play/disegno_traccia.h"

namespace trameli {

namespace {

constexpr Colour Sfondo = 12648447;
constexpr Colour Simbolo = 255;
constexpr Spessori Cinquanta{16, 7, 43};  // of a cell of 50 pixels

}  // namespace

TEST(AspettoTraccia, LineIsTwiceTheThickness) {
    const AspettoTraccia aspetto = AspettoDi(Cinquanta, 750, 15, false, Sfondo, Simbolo);
    EXPECT_EQ(aspetto.PennaTraccia, 32);
    EXPECT_EQ(aspetto.PennaSimbolo, 32);
    EXPECT_EQ(aspetto.EstremiTratti, Estremi::Tondi);
    EXPECT_EQ(aspetto.Indietro, 0);
    EXPECT_EQ(aspetto.ColoreSfondo, Sfondo);
    EXPECT_EQ(aspetto.ColoreSimbolo, Simbolo);
}

TEST(AspettoTraccia, WholeCellsAreFilledFromWallToWall) {
    const AspettoTraccia aspetto = AspettoDi(Cinquanta, 751, 15, true, Sfondo, Simbolo);
    EXPECT_EQ(aspetto.PennaTraccia, 43);
    EXPECT_EQ(aspetto.PennaSimbolo, 32);
    EXPECT_EQ(aspetto.EstremiTratti, Estremi::Quadri);
    EXPECT_EQ(aspetto.Indietro, 323);  // 751 \ 2 - 105 \ 2
}

TEST(AspettoTraccia, ThicknessInTwipsIsRoundedBeforeItIsHalved) {
    const AspettoTraccia aspetto = AspettoDi({10, 5, 45}, 750, 8.5, true, Sfondo, Simbolo);
    EXPECT_EQ(aspetto.Indietro, 354);  // 42.5 goes to the even 42: 375 - 21
}

}  // namespace trameli
