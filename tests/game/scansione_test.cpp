// Playing with one key or two: the strokes, and what the keys come to.
#include <gtest/gtest.h>

#include <algorithm>

#include "game/interruttori.h"

namespace trameli {
namespace {

class OgniModo : public ConInterruttori, public testing::WithParamInterface<Caso> {};

INSTANTIATE_TEST_SUITE_P(Casi, OgniModo, testing::ValuesIn(CasiDiScansione), NomeCaso);

TEST_P(OgniModo, OffersGoRoundClockwiseOneAtATime) {
    const auto [livello, modo] = GetParam();
    const Tavolo tavolo = Apri(livello, modo);
    partenza_ = tavolo.Partenza();
    EXPECT_EQ(TrattiAllInizio(tavolo), modo == Manuale ? std::vector{0} : std::vector<int>{});
    std::vector<QImage> viste;
    for (int i = 1; i <= 8; ++i) {
        Prossima(tavolo.Form_);
        EXPECT_EQ(TrattiAllInizio(tavolo), std::vector{i % 4}) << i;
        viste.push_back(tavolo.Guarda().Immagine());
    }
    EXPECT_TRUE(std::equal(viste.begin(), viste.begin() + 4, viste.begin() + 4));
    for (const int altro : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_A}) {
        Tap(tavolo.Form_, altro);
    }
    EXPECT_EQ(tavolo.Urti() + tavolo.Passi(), 0);
}

TEST_F(ConInterruttori, WithTwoKeysTheOfferStaysOnAStepAndARestartShowsNone) {
    const Tavolo tavolo = Apri(9, Manuale);
    partenza_ = tavolo.Partenza();
    const int dentro = Offerta(Contrario(partenza_.Lato));
    const int dopo = (dentro + 1) % NumeroDirezioni;
    for (int i = 0; i < dentro; ++i) {
        Spazio(tavolo.Form_);
    }
    Invio(tavolo.Form_);
    EXPECT_EQ(tavolo.Passi(), 1);
    EXPECT_EQ(Tratti(tavolo, partenza_, false), std::vector{dentro});

    Partita::Scegli(tavolo.Form_, "mnuRicomincia");
    EXPECT_TRUE(TrattiAllInizio(tavolo).empty());
    Spazio(tavolo.Form_);
    EXPECT_EQ(TrattiAllInizio(tavolo), std::vector{dopo});

    // The next maze begins with what is on offer.
    Partita::Scegli(tavolo.Form_, "mnuNuovo");
    partenza_ = tavolo.Partenza();
    EXPECT_EQ(TrattiAllInizio(tavolo), std::vector{dopo});

    // What comes on offer while Enter is down is not what it was meant for.
    partita_.Tempo.Advance(DopoUnTasto);
    Press(tavolo.Form_, Qt::Key_Return);
    Spazio(tavolo.Form_);
    Release(tavolo.Form_, Qt::Key_Return);
    EXPECT_EQ(tavolo.Passi() + tavolo.Urti(), 0);
}

/// Whether so many pixels within `dove` have changed that no eye overlooks it.
bool SiVede(const QImage& prima, const QImage& dopo, const QRect& dove) {
    int diversi = 0;
    for (int y = dove.top(); y <= dove.bottom(); ++y) {
        for (int x = dove.left(); x <= dove.right(); ++x) {
            diversi += prima.pixel(x, y) != dopo.pixel(x, y) ? 1 : 0;
        }
    }
    return diversi >= 6;
}

constexpr QRgb Nero = qRgb(0, 0, 0);

class OgniOfferta : public ConInterruttori, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Livelli, OgniOfferta, testing::Values(0, 4, 8, 10, 12, 15), NomeLivello);

/// With the colours that the settings begin with, where stroke and symbol are of the same. Walls
/// lose nothing by it.
TEST_P(OgniOfferta, IsSeenOnItsSideOfTheSymbolAtEveryThickness) {
    const int livello = GetParam();
    disco_.Scrivi("_predefinito", FileUtente().Con(RigaModoInput, Automatica));
    for (const PixelSize schermo : {PixelSize{800, 600}, PixelSize{1920, 1080}}) {
        Partita partita(disco_, schermo, 11);
        const Tavolo tavolo(partita.ApriLivello(livello), livello);
        const QPointF testa = tavolo.Pianta_.Verso(tavolo.Partenza(), 0.5);
        const int cella = static_cast<int>(tavolo.Pianta_.Lato / tavolo.Pianta_.TwipsPerPixel);
        const QPointF angolo = testa / tavolo.Pianta_.TwipsPerPixel - QPointF(cella, cella) / 2;
        QWidget& labirinto = WidgetOf(Trova<PictureBox>(tavolo.Form_, "pictureTramelo"));
        int offerta = 0;
        const auto prossima = [&] {
            partita.Tempo.Advance(Giro);
            offerta = (offerta + 1) % NumeroDirezioni;
            return labirinto.grab({angolo.toPoint(), QSize(cella, cella)}).toImage();
        };
        // Where walls can be bars, each thickness once with lines and once with bars.
        for (int volta = 0; volta < (livello < 5 ? 14 : 7); ++volta) {
            QImage prima = prossima();
            for (int i = 0; i < NumeroDirezioni; ++i) {
                const QImage dopo = prossima();
                const auto verso = static_cast<std::size_t>(
                    DirezioniScansione.at(static_cast<std::size_t>(offerta)));
                const int mezza = dopo.width() / 2;
                const QRect dove(mezza * (1 + ColonnaVerso.at(verso)) / 2,
                                 mezza * (1 + RigaVerso.at(verso)) / 2, mezza, mezza);
                EXPECT_EQ(MacchiaDi(dopo, Nero).Quanti, MacchiaDi(prima, Nero).Quanti) << "walls";
                EXPECT_TRUE(SiVede(prima, dopo, dove))
                    << schermo.Width << ", change " << volta << ", offer " << offerta;
                prima = dopo;
            }
            Tap(tavolo.Form_, Qt::Key_L, Qt::ControlModifier);
            if (volta == 6) {
                Tap(tavolo.Form_, Qt::Key_M, Qt::ControlModifier);
            }
        }
    }
}

TEST_F(ConInterruttori, WithOneKeyTheOfferStandsStillWhileTheKeyIsDownAndIsTheOneThatIsTaken) {
    const Tavolo tavolo = Apri(9, Automatica);
    partenza_ = tavolo.Partenza();
    const int dentro = Offerta(Contrario(partenza_.Lato));
    Aspetta(dentro);
    Press(tavolo.Form_, Qt::Key_Space);
    Tic(5);
    EXPECT_EQ(TrattiAllInizio(tavolo), std::vector{dentro});
    Release(tavolo.Form_, Qt::Key_Space);
    EXPECT_EQ(tavolo.Passi(), 1);
    // A stroke that is held when nothing is on offer comes to nothing, and stops nothing.
    partita_.Tempo.Advance(DopoUnTasto);
    Press(tavolo.Form_, Qt::Key_Space);
    Tic();
    EXPECT_EQ(Tratti(tavolo, partenza_, false), std::vector{(dentro + 1) % 4});
    Release(tavolo.Form_, Qt::Key_Space);
    // Nor does one that ended in another window.
    partita_.Tempo.Advance(DopoUnTasto);
    Press(tavolo.Form_, Qt::Key_Space);
    Partita::ViaERitorno(tavolo.Form_);
    Tic();
    EXPECT_EQ(Tratti(tavolo, partenza_, false), std::vector{(dentro + 2) % 4});
    // Nor does one that went down before a new start, which takes the offer back.
    partita_.Tempo.Advance(DopoUnTasto);
    Press(tavolo.Form_, Qt::Key_Space);
    Partita::Scegli(tavolo.Form_, "mnuRicomincia");
    Tic();
    EXPECT_EQ(TrattiAllInizio(tavolo), std::vector{(dentro + 3) % 4});
    Release(tavolo.Form_, Qt::Key_Space);
    EXPECT_EQ(tavolo.Passi() + tavolo.Urti(), 1);
}

TEST_F(ConInterruttori, WithOneKeyNothingIsOnShowOrTakenBeforeATick) {
    const Tavolo tavolo = Apri(9, Automatica);
    partenza_ = tavolo.Partenza();
    const int dentro = Offerta(Contrario(partenza_.Lato));
    partita_.Tempo.Advance(Giro - 0.01);
    Spazio(tavolo.Form_);
    EXPECT_EQ(tavolo.Urti() + tavolo.Passi(), 0);
    partita_.Tempo.Advance(0.01);
    while (TrattiAllInizio(tavolo) != std::vector{Offerta(partenza_.Lato)}) {
        Tic();
    }
    Spazio(tavolo.Form_);
    partita_.Tempo.Advance(DopoUnTasto);
    Spazio(tavolo.Form_);
    EXPECT_EQ(tavolo.Urti(), 1);
    EXPECT_TRUE(TrattiAllInizio(tavolo).empty());
    partita_.Tempo.Advance(2 * Giro - DopoUnTasto);
    EXPECT_EQ(TrattiAllInizio(tavolo), std::vector{dentro});
}

}  // namespace
}  // namespace trameli
