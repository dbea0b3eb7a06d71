#include "engine/ricette.h"

#include <gtest/gtest.h>

namespace trameli {
namespace {

TEST(Ricette, SayHowManyWallsFall) {
    using enum Ricetta;
    struct {
        int Livello;
        Ricetta Passi;
        std::int16_t MuriRimasti;
        std::int16_t Attesi;
    } const casi[] = {
        {0, ScatolaVuota, 81, 0},
        // The quotient is cut off before it is multiplied: 41 - 5 x 6, not 41 - 34.
        {1, ScavataEAllargata, 41, 35},
        {2, ScavataEAllargata, 41, 29},
        {3, ScavataEAllargata, 41, 17},
        {4, ScavataEAllargata, 41, 11},
        {5, ScatolaVuota, 132, 0},
        {6, ScavataEAllargata, 65, 58},
        {7, ScavataEAllargata, 65, 32},
        {8, Scavata, 40, 0},
        {15, Scavata, 40, 0},
    };
    for (const auto& [livello, passi, muriRimasti, attesi] : casi) {
        EXPECT_EQ(RicettaDi(livello), passi) << livello;
        EXPECT_EQ(QuantiMuriDaAbbattere(livello, muriRimasti), attesi) << livello;
    }
}

}  // namespace
}  // namespace trameli
