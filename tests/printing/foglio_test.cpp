// The arithmetic of the sheet, as tables.
#include "printing/foglio.h"

#include <gtest/gtest.h>

#include "base/leading_number.h"

namespace trameli {

void PrintTo(const PostoStampa& posto, std::ostream* os) {
    *os << posto.X << ' ' << posto.Y << ' ' << posto.W << ' ' << posto.H;
}
void PrintTo(const Bounds& posto, std::ostream* os) {
    *os << posto.Left << ' ' << posto.Top << ' ' << posto.Width << ' ' << posto.Height;
}

namespace {

std::vector<int> Parti(const PixelRectangle& posto) {
    return {posto.Left, posto.Top, posto.Width, posto.Height};
}

TEST(Foglio, ReadsTheNumberThatATextBeginsWith) {
    const std::vector<std::pair<const char*, double>> casi{{"", 0},
                                                           {"-", 0},
                                                           {"12", 12},
                                                           {"-7", -7},
                                                           {"  5 mm", 5},
                                                           {"2.5", 2.5},
                                                           {".5", 0.5},
                                                           {"1e3", 1},
                                                           {"+4", 4},
                                                           {"+-4", 0},
                                                           {"--4", 0},
                                                           {"inf", 0},
                                                           {"-nan", 0},
                                                           {"x1", 0},
                                                           {"0012", 12},
                                                           {"1,5", 1},
                                                           {"-.5x", -0.5},
                                                           {"-", 0},
                                                           {"99999999999", 99999999999.0}};
    for (const auto& [testo, numero] : casi) {
        EXPECT_EQ(LeadingNumber(testo), numero) << testo;
    }
    EXPECT_GT(LeadingNumber(std::string(400, '9')), 2000);
    EXPECT_LT(LeadingNumber("-" + std::string(400, '9')), -2000);
}

TEST(Foglio, LetsOnlyKeysOfNumbersThrough) {
    for (const int tasto : std::vector<int>{'0', '9', 8, '/', ':', '.', 'a', 13, '-'}) {
        const bool numero = tasto == 8 || (tasto >= '0' && tasto <= '9');
        EXPECT_EQ(FiltraTastoNumerico(tasto, false, "", "", 0), numero ? tasto : 0) << tasto;
    }
    const auto meno = [](const char* testo, const char* selezione, int inizio) {
        return FiltraTastoNumerico('-', true, testo, selezione, inizio) == '-';
    };
    EXPECT_TRUE(meno("", "", 0) && meno("12", "", 0) && meno("-12", "-12", 0));
    EXPECT_FALSE(meno("12", "", 1) || meno("-12", "", 0) || meno("-12", "-", 0));
}

TEST(Foglio, RoundsAHalfToTheEvenSide) {
    EXPECT_EQ(AltezzaPer(5, 2.0F), 2);
    EXPECT_EQ(AltezzaPer(7, 2.0F), 4);
    EXPECT_EQ(LarghezzaPer(5, 0.5F), 2);
    EXPECT_EQ(Centrato({1, 1, 193, 195}, {200, 200}), (PostoStampa{4, 2, 193, 195}));
    EXPECT_EQ(Centrato({1, 1, 300, 201}, {200, 100}), (PostoStampa{-50, -50, 300, 201}));
}

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

TEST(Foglio, BecomesPixels) {
    const SheetSize foglio{200, 100};
    EXPECT_EQ(Parti(SullaStampante({10, 10, 100, 100}, foglio, {4800, 1200})),
              (std::vector{240, 120, 2400, 1200}));
    EXPECT_EQ(Parti(SullaStampante({1, 3, 5, -1}, foglio, {500, 250})),
              (std::vector{2, 8, 12, -2}));  // each a half
    EXPECT_EQ(Parti(SullaStampante({1, 1, 1, 1}, {}, {500, 250})), (std::vector{0, 0, 0, 0}));
    EXPECT_EQ(Parti(SullAnteprima({10, -3, 100, 50}, foglio, 127, 63)),
              (std::vector{6, -2, 64, 32}));
}

TEST(Foglio, HasAMiniatureAndAnEnlargement) {
    EXPECT_EQ(Miniatura({280, 200}), (Bounds{0, 0, 1905, 1361}));
    EXPECT_EQ(Miniatura({200, 280}), (Bounds{0, 0, 1361, 1905}));
    EXPECT_EQ(Miniatura({100, 100}), (Bounds{0, 0, 1905, 1905}));
    EXPECT_EQ(FoglioIngrandito(2240, 5000, 2.0F), (Bounds{120, 2000, 2000, 1000}));  // by width
    EXPECT_EQ(FoglioIngrandito(5000, 1240, 2.0F), (Bounds{1500, 120, 2000, 1000}));  // by height
}

}  // namespace
}  // namespace trameli
