#include <gtest/gtest.h>

#include "play/disegno_traccia.h"

namespace trameli {

namespace {

constexpr Colour Sfondo = 12648447;
constexpr Colour Simbolo = 255;
constexpr Spessori Cinquanta{16, 7, 43};  // of a cell of 50 pixels

}  // namespace

TEST(AspettoTraccia, IsALineOrFillsCellsFromWallToWall) {
    const AspettoTraccia linea = AspettoDi(Cinquanta, 750, 15, false, Sfondo, Simbolo);
    EXPECT_EQ(linea.PennaTraccia, 32);
    EXPECT_EQ(linea.PennaSimbolo, 32);
    EXPECT_EQ(linea.EstremiTratti, Estremi::Tondi);
    EXPECT_EQ(linea.Indietro, 0);
    EXPECT_EQ(linea.ColoreSfondo, Sfondo);
    EXPECT_EQ(linea.ColoreSimbolo, Simbolo);
    const AspettoTraccia caselle = AspettoDi(Cinquanta, 751, 15, true, Sfondo, Simbolo);
    EXPECT_EQ(caselle.PennaTraccia, 43);
    EXPECT_EQ(caselle.PennaSimbolo, 32);
    EXPECT_EQ(caselle.EstremiTratti, Estremi::Quadri);
    EXPECT_EQ(caselle.Indietro, 323);  // 751 \ 2 - 105 \ 2
    // Rounded before it is halved: 42.5 goes to the even 42, and 375 - 21 is left.
    EXPECT_EQ(AspettoDi({10, 5, 45}, 750, 8.5, true, Sfondo, Simbolo).Indietro, 354);
}

}  // namespace trameli
