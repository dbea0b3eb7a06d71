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

class OgniSchermo : public testing::TestWithParam<Schermo> {
protected:
    /// A surface with one cell of `lato` twips in its middle, walls all round.
    void Prepara(int lato, int spessoreLinee) {
        const auto [twips, ratio] = GetParam();
        lato_ = static_cast<std::int16_t>(lato);
        spessori_ = CalcolaSpessori(spessoreLinee, lato_, twips, Pareti::Linee);
        const int pixel = static_cast<int>(2 * lato / twips) + 4;
        superficie_.SurfaceNative().Setup(twips, Sfondo);
        superficie_.SurfaceNative().Resize({pixel, pixel}, ratio);
        superficie_.Cls();
        const auto margine = static_cast<std::int16_t>(lato / 2 + 7);
        const Misure misure{lato_, margine, margine, spessori_.SpessoreMuri};
        testa_ = {static_cast<std::int16_t>(margine + lato / 2),
                  static_cast<std::int16_t>(margine + lato / 2)};
        superficie_.DrawWidth(static_cast<int>(spessori_.SpessoreMuri));
        // Round-ended walls and square-ended ones in turn.
        const Estremi estremi = lato % 2 == 0 ? Estremi::Tondi : Estremi::Quadri;
        const int sporgenza =
            estremi == Estremi::Quadri ? MetaPenna(spessori_.SpessoreMuri, twips) : 0;
        for (const Lato muro : DirezioniScansione) {
            Disegna(superficie_, SegmentoMuro({1, 1}, muro, misure, sporgenza), estremi, Black,
                    twips);
        }
    }
    AspettoScansione Aspetto() const {
        return AspettoScansioneDi(spessori_, lato_, GetParam().Twips, Tratto, Sfondo);
    }
    QImage Vista() { return superficie_.SurfaceNative().Image().copy(); }

    std::int16_t lato_ = 0;
    Spessori spessori_;
    Punto testa_{};
    Surface superficie_;
};

TEST_P(OgniSchermo, AStrokeGoesToTheLastPixelAndTouchesNoWall) {
    for (int spessoreLinee = 0; spessoreLinee < NumeroSpessori; ++spessoreLinee) {
        for (int lato = 150; lato < 2400; lato += 67) {
            Prepara(lato, spessoreLinee);
            const QImage prima = Vista();
            for (std::int16_t direzione = 0; direzione < NumeroDirezioni; ++direzione) {
                DisegnaTrattoScansione(superficie_, testa_, direzione, Aspetto());
                ASSERT_NE(Vista(), prima);
                TogliTrattoScansione(superficie_, testa_, direzione, Aspetto());
                ASSERT_EQ(Vista(), prima) << "thickness " << spessoreLinee << " cell " << lato
                                          << " direction " << direzione;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Risoluzioni, OgniSchermo,
                         testing::Values(Schermo{15, 1}, Schermo{15, 1.25}, Schermo{15, 1.5},
                                         Schermo{15, 2}, Schermo{12, 1}, Schermo{8, 1},
                                         Schermo{8, 1.5}, Schermo{5, 1}, Schermo{5, 1.25}),
                         [](const auto& voce) {
                             return std::to_string(static_cast<int>(voce.param.Twips)) + "Twips" +
                                    std::to_string(static_cast<int>(voce.param.Ratio * 100));
                         });

struct Lunghezza {
    double SpessoreMuri;
    std::int16_t Cella;
    double Twips;
    int Attesa;
};

class LunghezzaTratti : public testing::TestWithParam<Lunghezza> {};

// 750 \ 2 - (8 x 15) \ 2, and so on; 42.5 goes to the even 42.
INSTANTIATE_TEST_SUITE_P(Tabella, LunghezzaTratti,
                         testing::Values(Lunghezza{7, 750, 15, 315}, Lunghezza{16, 751, 15, 248},
                                         Lunghezza{4, 750, 8.5, 354}, Lunghezza{0, 33, 15, 9}));

TEST_P(LunghezzaTratti, EndsShortOfTheWall) {
    const Lunghezza& riga = GetParam();
    const AspettoScansione aspetto =
        AspettoScansioneDi({5, riga.SpessoreMuri, 0}, riga.Cella, riga.Twips, Tratto, Sfondo);
    EXPECT_EQ(aspetto.Lunghezza, riga.Attesa);
    EXPECT_EQ(aspetto.Penna, 4);
    EXPECT_EQ(aspetto.PennaGomma, 5);
}

struct Direzione {
    std::int16_t Numero;
    Punto Fine;
    std::int16_t Dopo;
    std::int16_t Prima;
};

class DirezioniTratti : public testing::TestWithParam<Direzione> {};

INSTANTIATE_TEST_SUITE_P(ClockwiseFromTheLeft, DirezioniTratti,
                         testing::Values(Direzione{0, {685, 2000}, 1, 3},
                                         Direzione{1, {1000, 1685}, 2, 0},
                                         Direzione{2, {1315, 2000}, 3, 1},
                                         Direzione{3, {1000, 2315}, 0, 2}));

TEST_P(DirezioniTratti, LeadFromTheHead) {
    const Direzione& riga = GetParam();
    const AspettoScansione aspetto = AspettoScansioneDi({5, 7, 0}, 750, 15, Tratto, Sfondo);
    EXPECT_EQ(TrattoScansione({1000, 2000}, riga.Numero, aspetto),
              (Segmento{{1000, 2000}, riga.Fine}));
    EXPECT_EQ(DirezioneDopo(riga.Numero), riga.Dopo);
    EXPECT_EQ(DirezionePrima(riga.Numero), riga.Prima);
}

}  // namespace
}  // namespace trameli
