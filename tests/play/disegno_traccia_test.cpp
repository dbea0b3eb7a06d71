// What no picture of a game shows.
#include <gtest/gtest.h>

#include "play/disegno_traccia.h"

namespace trameli {
namespace {

TEST(AspettoTraccia, FillsCellsBackToTheFaceOfTheWall) {
    const auto indietro = [](const Spessori& spessori, std::int16_t cella, double twips) {
        return AspettoDi(spessori, cella, twips, true, 0, 0).Indietro;
    };
    EXPECT_EQ(indietro({16, 7, 43}, 751, 15), 323);  // 751 \ 2 - 105 \ 2
    // Rounded before it is halved: 42.5 goes to the even 42, and 375 - 21 is left.
    EXPECT_EQ(indietro({10, 5, 45}, 750, 8.5), 354);
}

}  // namespace
}  // namespace trameli
