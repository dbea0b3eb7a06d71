// The strokes of scanning, pixel by pixel.
#include <gtest/gtest.h>

#include <string>

#include "drawing/muri_a_linee.h"
#include "platform/qt/surface_native.h"
#include "play/scansione.h"

namespace trameli {
namespace {

constexpr Colour Sfondo = Rgb(255, 255, 192);
constexpr Colour Tratto = Rgb(0, 0, 255);

/// A screen: twips per logical pixel, and device pixels for each of those.
struct Schermo {
    double Twips;
    double Ratio;
};

class OgniSchermo : public testing::TestWithParam<Schermo> {};

INSTANTIATE_TEST_SUITE_P(Risoluzioni, OgniSchermo,
                         testing::Values(Schermo{15, 1}, Schermo{15, 1.25}, Schermo{15, 2},
                                         Schermo{8, 1}, Schermo{8, 1.5}, Schermo{5, 1.25}),
                         [](const auto& voce) {
                             return std::to_string(static_cast<int>(voce.param.Twips)) + "Twips" +
                                    std::to_string(static_cast<int>(voce.param.Ratio * 100));
                         });

/// In the middle of the surface stands one cell of `lato` twips, with walls all round.
void UnaCella(Surface& superficie, std::int16_t lato, Punto testa, const Spessori& spessori,
              const Schermo& schermo) {
    superficie.SurfaceNative().Setup(schermo.Twips, Sfondo);
    const int pixel = static_cast<int>(2 * lato / schermo.Twips) + 4;
    superficie.SurfaceNative().Resize({pixel, pixel}, schermo.Ratio);
    superficie.Cls();
    // Round-ended walls and square-ended ones in turn.
    const Estremi estremi = lato % 2 == 0 ? Estremi::Tondi : Estremi::Quadri;
    const auto margine = static_cast<std::int16_t>(testa.X - lato / 2);
    CasualeConSeme casuale(1);
    Tramelo tramelo(1, 1, casuale);
    tramelo.CreaNuovaGriglia();
    DisegnaMuriALinee(superficie, tramelo, {lato, margine, margine}, spessori.SpessoreMuri, estremi,
                      Black);
}

TEST_P(OgniSchermo, AStrokeGoesToTheLastPixelAndTouchesNoWall) {
    const double twips = GetParam().Twips;
    Surface superficie;
    const auto vista = [&] { return superficie.SurfaceNative().Image().copy(); };
    for (int spessoreLinee = 0; spessoreLinee < NumeroSpessori; ++spessoreLinee) {
        for (std::int16_t lato = 150; lato < 2400; lato = static_cast<std::int16_t>(lato + 67)) {
            const Spessori spessori = CalcolaSpessori(spessoreLinee, lato, twips, Pareti::Linee);
            const auto centro = static_cast<std::int16_t>(lato / 2 + lato / 2 + 7);
            const Punto testa{centro, centro};
            UnaCella(superficie, lato, testa, spessori, GetParam());
            const AspettoScansione aspetto =
                AspettoScansioneDi(spessori, Pareti::Linee, lato, twips, Tratto, Sfondo);
            const QImage prima = vista();
            for (std::int16_t direzione = 0; direzione < NumeroDirezioni; ++direzione) {
                DisegnaTrattoScansione(superficie, testa, direzione, aspetto);
                ASSERT_NE(vista(), prima);
                TogliTrattoScansione(superficie, testa, direzione, aspetto);
                ASSERT_EQ(vista(), prima) << "thickness " << spessoreLinee << " cell " << lato
                                          << " direction " << direzione;
            }
        }
    }
}

TEST(AspettoScansione, EndsShortOfTheWallAndIsThinnerThanTheTrace) {
    struct {
        double SpessoreMuri;
        std::int16_t Cella;
        double Twips;
        int Lunghezza;
    } const casi[] = {{7, 750, 15, 315},  // 750 \ 2 - (8 x 15) \ 2
                      {16, 751, 15, 248},
                      {4, 750, 8.5, 354}};  // 42.5 goes to the even 42
    for (const auto& [spessoreMuri, cella, twips, lunghezza] : casi) {
        const auto aspetto =
            AspettoScansioneDi({5, spessoreMuri, 0}, Pareti::Linee, cella, twips, Tratto, Sfondo);
        EXPECT_EQ(aspetto.Lunghezza, lunghezza);
        EXPECT_EQ(aspetto.Penna, 4);
        EXPECT_EQ(aspetto.PennaGomma, 5);
    }
}

}  // namespace
}  // namespace trameli
