#include "play/traccia.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace trameli {
namespace {

Punto PuntoNumero(int i) {
    return {static_cast<std::int16_t>(i), static_cast<std::int16_t>(-i)};
}

TEST(Traccia, SegmentsRunFromPointToPoint) {
    Traccia traccia;
    traccia.Comincia({1000, 1000});
    traccia.Aggiungi({1750, 1000}, 1);
    traccia.Aggiungi({1750, 1750}, 2);
    EXPECT_EQ(traccia.Tratto(1, 0), (Segmento{{1000, 1000}, {1750, 1000}}));
    EXPECT_EQ(traccia.Tratto(2, 323), (Segmento{{1750, 677}, {1750, 1750}}));
}

TEST(Traccia, IsFullWithAThousandPointsAndThenLosesTheOldest) {
    Traccia traccia;
    traccia.Alloca(3, 4);
    traccia.Attraversa({3, 4, 1});
    traccia.Comincia(PuntoNumero(0));
    for (int i = 1; i <= 1002; ++i) {
        traccia.Aggiungi(PuntoNumero(i), i);
        const int persi = std::max(0, i - 1000);
        ASSERT_EQ(traccia.ContaPunti(), i - persi);
        ASSERT_EQ(traccia.PercorsoX(0), persi);
        ASSERT_EQ(traccia.PercorsoY(0), -persi);
        ASSERT_EQ(traccia.PercorsoColore(1), persi + 1);
        ASSERT_EQ(traccia.PercorsoColore(i - persi), i);
        ASSERT_EQ(traccia.Testa(), PuntoNumero(i));
    }
    traccia.Azzera();
    EXPECT_EQ(traccia.ContaPunti(), 0);
    for (int i = 0; i <= Traccia::MassimoPunti; ++i) {
        ASSERT_EQ(traccia.PercorsoX(i), 0);
        ASSERT_EQ(traccia.PercorsoY(i), 0);
        ASSERT_EQ(traccia.PercorsoColore(i), 0);
    }
    EXPECT_FALSE(traccia.Passaggi(3, 4, 1));
}

TEST(Passaggi, AreToldApartAndCountWalksOddAndEven) {
    Traccia traccia;
    traccia.Alloca(6, 9);
    for (const bool dispari : {true, false, true}) {
        EXPECT_EQ(traccia.Attraversa(PassaggioDa({2, 4}, Lato::Sinistra)), dispari);
        for (int r = 0; r <= 6; ++r) {
            for (int c = 0; c <= 9; ++c) {
                EXPECT_EQ(traccia.Passaggi(r, c, 0), dispari && r == 2 && c == 3);
                EXPECT_FALSE(traccia.Passaggi(r, c, 1));
            }
        }
    }
    EXPECT_EQ(PassaggioDa({3, 3}, Lato::Alto), (Passaggio{2, 3, 1}));
}

}  // namespace
}  // namespace trameli
