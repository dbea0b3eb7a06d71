#include "play/traccia.h"

#include <gtest/gtest.h>

namespace trameli {

namespace {

constexpr Colour Avanti = 49152;
constexpr Colour Ritorno = 8438015;

Punto PuntoNumero(int i) {
    return {static_cast<std::int16_t>(i), static_cast<std::int16_t>(-i)};
}

/// Points 0 to n, each with its number as coordinate and as colour.
void Riempi(Traccia& traccia, int n) {
    traccia.Comincia(PuntoNumero(0));
    for (int i = 1; i <= n; ++i) {
        traccia.Aggiungi(PuntoNumero(i), i);
    }
}

}  // namespace

TEST(Traccia, KeepsPointsAndColoursInTheOrderWalked) {
    Traccia traccia;
    for (int volta = 0; volta < 2; ++volta) {
        traccia.Comincia({100, 200});
        EXPECT_EQ(traccia.ContaPunti(), 0);
        EXPECT_EQ(traccia.Testa(), (Punto{100, 200}));
    }
    traccia.Aggiungi({100, 575}, Avanti);
    traccia.Aggiungi({850, 575}, Ritorno);
    EXPECT_EQ(traccia.ContaPunti(), 2);
    EXPECT_EQ(traccia.PercorsoX(1), 100);
    EXPECT_EQ(traccia.PercorsoY(1), 575);
    EXPECT_EQ(traccia.PercorsoColore(1), Avanti);
    EXPECT_EQ(traccia.PercorsoColore(2), Ritorno);
    EXPECT_EQ(traccia.Testa(), (Punto{850, 575}));
}

TEST(Traccia, SegmentsRunFromPointToPoint) {
    Traccia traccia;
    traccia.Comincia({1000, 1000});
    traccia.Aggiungi({1750, 1000}, Avanti);
    traccia.Aggiungi({1750, 1750}, Avanti);
    EXPECT_EQ(traccia.Tratto(1, 0), (Segmento{{1000, 1000}, {1750, 1000}}));
    EXPECT_EQ(traccia.Tratto(2, 0), (Segmento{{1750, 1000}, {1750, 1750}}));
    EXPECT_EQ(traccia.Tratto(1, 323), (Segmento{{677, 1000}, {1750, 1000}}));
    EXPECT_EQ(traccia.Tratto(2, 323), (Segmento{{1750, 677}, {1750, 1750}}));
}

TEST(Traccia, AzzeraForgetsPointsAndPassages) {
    Traccia traccia;
    traccia.Alloca(3, 4);
    Riempi(traccia, 5);
    traccia.Attraversa({3, 4, 1});
    traccia.Azzera();
    EXPECT_EQ(traccia.ContaPunti(), 0);
    for (int i = 0; i <= Traccia::MassimoPunti; ++i) {
        ASSERT_EQ(traccia.PercorsoX(i), 0);
        ASSERT_EQ(traccia.PercorsoY(i), 0);
        ASSERT_EQ(traccia.PercorsoColore(i), 0);
    }
    EXPECT_FALSE(traccia.Passaggi(3, 4, 1));
}

TEST(Traccia, IsFullWithAThousandPointsAndThenLosesTheOldest) {
    Traccia traccia;
    for (const int persi : {0, 2}) {
        Riempi(traccia, Traccia::MassimoPunti + persi);
        EXPECT_EQ(traccia.ContaPunti(), 1000);
        EXPECT_EQ(traccia.PercorsoX(0), persi);
        EXPECT_EQ(traccia.PercorsoY(0), -persi);
        EXPECT_EQ(traccia.PercorsoColore(1), persi + 1);
        EXPECT_EQ(traccia.PercorsoColore(1000), persi + 1000);
        EXPECT_EQ(traccia.Testa(), PuntoNumero(persi + 1000));
    }
}

TEST(Passaggi, AreToldApartAndCountWalksOddAndEven) {
    Traccia traccia;
    traccia.Alloca(6, 9);
    const Passaggio passaggio{2, 3, 0};
    for (const bool dispari : {true, false, true}) {
        EXPECT_EQ(traccia.Attraversa(passaggio), dispari);
        for (int r = 0; r <= 6; ++r) {
            for (int c = 0; c <= 9; ++c) {
                for (int verso = 0; verso <= 1; ++verso) {
                    const bool questo = r == 2 && c == 3 && verso == 0;
                    EXPECT_EQ(traccia.Passaggi(r, c, verso), dispari && questo);
                }
            }
        }
    }
}

TEST(Passaggi, AreTheSameFromBothCells) {
    EXPECT_EQ(PassaggioDa({2, 3}, Lato::Destra), (Passaggio{2, 3, 0}));
    EXPECT_EQ(PassaggioDa({2, 4}, Lato::Sinistra), (Passaggio{2, 3, 0}));
    EXPECT_EQ(PassaggioDa({2, 3}, Lato::Basso), (Passaggio{2, 3, 1}));
    EXPECT_EQ(PassaggioDa({3, 3}, Lato::Alto), (Passaggio{2, 3, 1}));
}

}  // namespace trameli
