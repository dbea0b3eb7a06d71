// Mazes as they are seen: every level on screens of many sizes.
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "game/partita.h"
#include "platform/image.h"

namespace trameli {
namespace {

/// Colours that no picture of the game has.
const FileUtente Colorato = FileUtente()
                                .Con(RigaPareti, Rgb(11, 22, 33))
                                .Con(RigaSfondo, Rgb(201, 222, 233))
                                .Con(RigaSimbolo, Rgb(251, 7, 99));

/// Wall divisor of the thickness that the settings begin with.
constexpr int DivisoreMuri = 5;

/// How many interior walls the first levels leave, more or less.
constexpr std::array MuriRimasti{0, 6, 12, 24, 30, 0, 12, 38};

void HaDueApertureOpposte(const Tavolo& tavolo) {
    const Posto partenza = tavolo.Partenza();  // throws unless there are two openings
    const Posto arrivo = tavolo.Arrivo();
    EXPECT_EQ(partenza.Lato, Contrario(arrivo.Lato));
    EXPECT_TRUE(partenza.Riga == 1 || partenza.Riga == tavolo.Pianta_.Righe);
    EXPECT_TRUE(partenza.Colonna == 1 || partenza.Colonna == tavolo.Pianta_.Colonne);
    EXPECT_EQ(partenza.Riga + arrivo.Riga, tavolo.Pianta_.Righe + 1);
    EXPECT_EQ(partenza.Colonna + arrivo.Colonna, tavolo.Pianta_.Colonne + 1);
}

void HaIMuriDelLivello(const Tavolo& tavolo, int livello) {
    const MuriVisti muri = tavolo.Muri();
    const auto [righe, colonne] = MisuraDi(livello);
    const int celle = righe * colonne;
    EXPECT_EQ(muri.Raggiungibili(), celle);
    if (livello >= 8) {
        // All cells are linked, and by no wall less than it takes: a perfect maze.
        const int posti = righe * (colonne - 1) + (righe - 1) * colonne;
        EXPECT_EQ(muri.Interni(), posti - (celle - 1));
    } else {
        EXPECT_NEAR(muri.Interni(), MuriRimasti.at(static_cast<std::size_t>(livello)),
                    livello == 0 || livello == 5 ? 0 : 4);
    }
}

/// The walls that stand, each as thick as it should be and centred on its edge, and nothing else;
/// in the middle of one opening the symbol, a round point on the line of the outside wall.
void HaLineeAlLoroPosto(const Tavolo& tavolo) {
    const Vista vista = tavolo.Guarda();
    const Pianta& p = vista.LaPianta();
    const MuriVisti muri = tavolo.Muri();
    const int spesso = static_cast<int>(p.Lato / p.TwipsPerPixel) / DivisoreMuri;
    for (int r = 1; r <= p.Righe; ++r) {
        for (int c = 1; c <= p.Colonne; ++c) {
            ASSERT_EQ(vista.Centro(r, c), tavolo.Colore(RigaSfondo)) << r << ", " << c;
            for (int lato = 0; lato < 4; ++lato) {
                const Posto posto{r, c, lato};
                const bool lungoX = lato == AllaDestra || lato == AllaSinistra;
                ASSERT_TRUE(!muri.Ha(posto) || vista.Largo(tavolo.Colore(RigaPareti),
                                                           p.Verso(posto, 0.5), spesso, lungoX))
                    << r << ", " << c;
            }
        }
    }
    for (const bool lungoX : {true, false}) {
        EXPECT_TRUE(vista.Largo(tavolo.Colore(RigaSimbolo), p.Verso(tavolo.Partenza(), 0.5),
                                2 * spesso, lungoX));
    }
}

/// The finish picture stands before the finish opening, two thirds of a cell wide.
void HaLArrivoAlSuoPosto(const Tavolo& tavolo) {
    const Pianta& p = tavolo.Pianta_;
    const int muro = static_cast<int>(p.Lato / p.TwipsPerPixel) / DivisoreMuri;
    const double lato = 2 * ((p.Lato - muro) / 3);
    const auto& immagine = Trova<Image>(tavolo.Form_, "Image2");
    EXPECT_TRUE(WidgetOf(immagine).isVisible());
    EXPECT_EQ(immagine.Place(), (Bounds{immagine.Left(), immagine.Top(), lato, lato}));
    const QPointF atteso = p.Verso(tavolo.Arrivo(), 1);
    EXPECT_NEAR(immagine.Left() + lato / 2, atteso.x(), p.Lato / 5.0);
    EXPECT_NEAR(immagine.Top() + lato / 2, atteso.y(), p.Lato / 5.0);
}

void EComeVuoleIlLivello(int livello, PixelSize schermo) {
    SCOPED_TRACE(testing::Message() << "level " << livello << " on " << schermo.Width);
    const Disco disco;
    disco.Scrivi("_predefinito", Colorato);
    Partita partita(disco, schermo, static_cast<std::uint64_t>(livello + 1));
    const Tavolo tavolo(partita.ApriLivello(livello), livello, Colorato);
    HaDueApertureOpposte(tavolo);
    HaIMuriDelLivello(tavolo, livello);
    HaLineeAlLoroPosto(tavolo);
    HaLArrivoAlSuoPosto(tavolo);
}

TEST(Scene, EveryLevelIsDrawnAsItShould) {
    for (int livello = 0; livello < NumeroLivelliGioco; ++livello) {
        EComeVuoleIlLivello(livello, {1366, 768});
    }
}

TEST(Scene, MazesStartAtEachOpeningOfEachCorner) {
    const Disco disco;
    Partita partita(disco, {800, 600});
    const Tavolo tavolo(partita.ApriLivello(9), 9);
    std::set<std::array<int, 3>> partenze;
    for (int i = 0; i < 48; ++i) {
        const Posto qui = tavolo.Partenza();
        partenze.insert({qui.Riga, qui.Colonna, qui.Lato});
        Tap(tavolo.Form_, Qt::Key_N, Qt::ControlModifier);
    }
    EXPECT_EQ(partenze.size(), 8U);
}

TEST(Scene, SoItIsOnEveryScreen) {
    for (const PixelSize schermo :
         {PixelSize{800, 600}, {1920, 1080}, {3840, 2160}, {1080, 1920}}) {
        for (const int livello : {1, 6, 15}) {
            EComeVuoleIlLivello(livello, schermo);
        }
    }
}

}  // namespace
}  // namespace trameli
