// The walls that are left to be knocked down; carving is seen in the mazes of the game.
#include <gtest/gtest.h>

#include "engine/tramelo.h"

namespace trameli {
namespace {

TEST(ContaMuriRimasti, LeavesOutTheUpperSidesAndCutsOffAHalf) {
    CasualeConSeme casuale(1);
    Tramelo tramelo(6, 9, casuale);
    tramelo.CreaNuovaGriglia();
    const auto conta = [&] {
        tramelo.ContaMuriRimasti();
        return tramelo.MuriRimasti();
    };
    EXPECT_EQ(conta(), 81);
    tramelo.Apri({1, 9}, Lato::Alto);
    EXPECT_EQ(conta(), 81);
    tramelo.Apri({1, 9}, Lato::Destra);  // 161 flags
    EXPECT_EQ(conta(), 80);
    tramelo.Apri({6, 4}, Lato::Basso);
    tramelo.Apri({3, 1}, Lato::Sinistra);  // 159
    EXPECT_EQ(conta(), 79);
}

}  // namespace
}  // namespace trameli
