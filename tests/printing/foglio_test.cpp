// The arithmetic of the sheet, as tables.
#include "printing/foglio.h"

#include <gtest/gtest.h>

namespace trameli {

void PrintTo(const PostoStampa& posto, std::ostream* os) {
    *os << posto.X << ' ' << posto.Y << ' ' << posto.W << ' ' << posto.H;
}

namespace {

TEST(Foglio, TakesAllOfIt) {
    struct Caso {
        PostoStampa Prima;
        SheetSize Foglio;
        float Proporzione;
        bool Bloccata;
        bool Centrata;
        PostoStampa Dopo;
    };
    const std::vector<Caso> casi{
        // Locked: by the side that the sheet has less of, as the picture is now.
        {{10, 10, 100, 100}, {280, 200}, 1.0F, true, false, {10, 0, 200, 200}},
        {{10, 10, 100, 100}, {200, 280}, 1.0F, true, false, {0, 10, 200, 200}},
        {{10, 20, 140, 100}, {280, 200}, 1.4F, true, false, {0, 0, 280, 200}},
        {{10, 20, 200, 100}, {150, 100}, 1.0F, true, false, {0, -50, 150, 150}},
        // Free: the margins only as far as it takes.
        {{10, -5, 100, 100}, {280, 200}, 1.0F, false, false, {0, -5, 280, 200}},
        {{10, 10, 100, 100}, {280, 200}, 1.0F, false, true, {10, 10, 280, 200}},
        // The limits of the boxes hold.
        {{0, 0, 100, 100}, {3000, 2500}, 1.0F, false, false, {0, 0, 2000, 2000}},
        {{0, 0, 100, 100}, {5000, 10}, 0.01F, true, false, {0, 0, 1, 10}},
        {{0, 0, 100, 100}, {100, 9000}, 0.01F, true, false, {0, 0, 100, 2000}},
        // No sheet.
        {{10, 10, 100, 90}, {0, 0}, 1.0F, true, false, {10, 10, 100, 90}},
        {{10, 10, 100, 90}, {-1, -1}, 1.0F, false, false, {10, 10, 100, 90}}};
    for (const Caso& caso : casi) {
        EXPECT_EQ(Massima(caso.Prima, caso.Foglio, caso.Proporzione, caso.Bloccata, caso.Centrata),
                  caso.Dopo)
            << caso.Foglio.Width << " x " << caso.Foglio.Height;
    }
}

TEST(Foglio, ShrinksWhatReachesBeyondIt) {
    struct Caso {
        PostoStampa Posto;
        SheetSize Foglio;
        bool Eccede;
        PostoStampa Riscalato;
    };
    const std::vector<Caso> casi{{{0, 0, 100, 100}, {100, 100}, false, {0, 0, 100, 100}},
                                 {{-10, -10, 100, 100}, {90, 90}, false, {-10, -10, 100, 100}},
                                 {{10, 0, 100, 50}, {100, 100}, true, {9, 0, 91, 45}},
                                 {{0, 10, 50, 100}, {100, 100}, true, {0, 9, 45, 91}},
                                 {{0, 0, 400, 300}, {200, 100}, true, {0, 0, 133, 100}}};
    for (const Caso& caso : casi) {
        EXPECT_EQ(Eccede(caso.Posto, caso.Foglio), caso.Eccede);
        EXPECT_EQ(Riscalato(caso.Posto, caso.Foglio), caso.Riscalato);
    }
}

}  // namespace
}  // namespace trameli
