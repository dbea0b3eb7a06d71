// What no picture of a game shows; colours and ways back are seen there.
#include "play/traccia.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace trameli {
namespace {

Punto PuntoNumero(int i) {
    return {static_cast<std::int16_t>(i), static_cast<std::int16_t>(-i)};
}

TEST(Traccia, IsFullWithAThousandPointsAndThenLosesTheOldest) {
    Traccia traccia(3, 4);
    EXPECT_TRUE(traccia.Attraversa({3, 4, 1}));  // the last one that there is room for
    traccia.Comincia(PuntoNumero(0));
    EXPECT_TRUE(traccia.Attraversa({3, 4, 1}));
    for (int i = 1; i <= 1002; ++i) {
        traccia.Aggiungi(PuntoNumero(i), i);
        const int persi = std::max(0, i - 1000);
        ASSERT_EQ(traccia.ContaPunti(), i - persi);
        ASSERT_EQ(traccia.Percorso(0), PuntoNumero(persi));
        ASSERT_EQ(traccia.PercorsoColore(1), persi + 1);
        ASSERT_EQ(traccia.PercorsoColore(i - persi), i);
        ASSERT_EQ(traccia.Testa(), PuntoNumero(i));
    }
}

}  // namespace
}  // namespace trameli
