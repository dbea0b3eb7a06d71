// Mazes as they are seen: every level on screens of many sizes.
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "game/partita.h"
#include "platform/image.h"
#include "platform/picture_box.h"

namespace trameli {
namespace {

/// Colours that no picture of the game has.
const FileUtente Colorato = FileUtente()
                                .Con(RigaPareti, Rgb(11, 22, 33))
                                .Con(RigaSfondo, Rgb(201, 222, 233))
                                .Con(RigaSimbolo, Rgb(251, 7, 99));

/// Wall divisor of the thickness that the settings begin with.
constexpr int DivisoreMuri = 5;

int PostiInterni(const Misura& misura) {
    return misura.Righe * (misura.Colonne - 1) + (misura.Righe - 1) * misura.Colonne;
}

/// Pixels of one colour, one after the other along a line.
struct Tratto {
    int Inizio;
    int Lunghezza;
};

std::vector<Tratto> TrattiDi(QRgb colore, const QImage& immagine, int fissa, bool lungoX, int da,
                             int a) {
    std::vector<Tratto> tratti;
    bool dentro = false;
    for (int i = std::max(da, 0); i < std::min(a, lungoX ? immagine.width() : immagine.height());
         ++i) {
        const bool qui = immagine.pixel(lungoX ? i : fissa, lungoX ? fissa : i) == colore;
        if (qui && !dentro) {
            tratti.push_back({i, 0});
        }
        if (qui) {
            ++tratti.back().Lunghezza;
        }
        dentro = qui;
    }
    return tratti;
}

void HaDueApertureOpposte(const Tavolo& tavolo) {
    const auto aperture = tavolo.Muri().Aperture();
    ASSERT_EQ(aperture.size(), 2U);
    const Posto partenza = tavolo.Partenza();
    const Posto arrivo = tavolo.Arrivo();
    EXPECT_EQ(partenza.Lato, Contrario(arrivo.Lato));
    const int righe = tavolo.Pianta_.Righe;
    const int colonne = tavolo.Pianta_.Colonne;
    EXPECT_TRUE(partenza.Riga == 1 || partenza.Riga == righe);
    EXPECT_TRUE(partenza.Colonna == 1 || partenza.Colonna == colonne);
    EXPECT_EQ(partenza.Riga + arrivo.Riga, righe + 1);
    EXPECT_EQ(partenza.Colonna + arrivo.Colonna, colonne + 1);
}

void HaIMuriDelLivello(const Tavolo& tavolo, int livello) {
    const MuriVisti muri = tavolo.Muri();
    const Misura misura = MisureLivelli.at(static_cast<std::size_t>(livello));
    const int celle = misura.Righe * misura.Colonne;
    EXPECT_EQ(muri.Raggiungibili(), celle);
    if (livello == 0) {
        EXPECT_EQ(muri.Interni(), 0);
    } else if (livello >= 8) {
        // All cells are linked, and by no wall less than it takes: a perfect maze.
        EXPECT_EQ(muri.Interni(), PostiInterni(misura) - (celle - 1));
    }
}

/// Crosses the grid through the middle of each row, or of each column: the walls that stand, and
/// nothing else, each as thick as it should be and centred on its edge.
void HaLineeAlLoroPosto(const Tavolo& tavolo, bool lungoX) {
    const Vista vista = tavolo.Guarda();
    const Pianta& pianta = vista.LaPianta();
    const MuriVisti muri = tavolo.Muri();
    const double scala = vista.PixelPerTwip();
    const int cella = static_cast<int>(pianta.Lato / pianta.TwipsPerPixel);
    const int spesso = std::max(1, cella / DivisoreMuri);
    const double penna = std::nearbyint(spesso * vista.Immagine().devicePixelRatio());
    const int linee = lungoX ? pianta.Righe : pianta.Colonne;
    const int bordi = lungoX ? pianta.Colonne : pianta.Righe;
    const auto bordo = [&](int i) {
        return (lungoX ? pianta.BordoX(i) : pianta.BordoY(i)) * scala;
    };
    for (int linea = 1; linea <= linee; ++linea) {
        const double mezzo =
            (lungoX ? pianta.BordoY(linea - 1) : pianta.BordoX(linea - 1)) + pianta.Lato / 2.0;
        std::vector<double> attesi;
        for (int i = 0; i <= bordi; ++i) {
            const int cellaDi = std::max(i, 1);
            const int lato = lungoX ? (i == 0 ? AllaSinistra : AllaDestra) : (i == 0 ? Su : Giu);
            if (muri.Ha(lungoX ? Posto{linea, cellaDi, lato} : Posto{cellaDi, linea, lato})) {
                attesi.push_back(bordo(i));
            }
        }
        const auto visti = TrattiDi(
            tavolo.Colore(RigaPareti), vista.Immagine(), static_cast<int>(mezzo * scala), lungoX,
            static_cast<int>(bordo(0) - penna - 1), static_cast<int>(bordo(bordi) + penna + 1));
        ASSERT_EQ(visti.size(), attesi.size()) << "line " << linea << " along x: " << lungoX;
        for (std::size_t i = 0; i < visti.size(); ++i) {
            ASSERT_EQ(visti[i].Lunghezza, penna) << "line " << linea;
            ASSERT_NEAR(visti[i].Inizio + visti[i].Lunghezza / 2.0, attesi[i], 1.0)
                << "line " << linea;
        }
    }
}

/// The finish picture stands before the finish opening, two thirds of a cell wide.
void HaLArrivoAlSuoPosto(const Tavolo& tavolo) {
    const Pianta& p = tavolo.Pianta_;
    const int muro = static_cast<int>(p.Lato / p.TwipsPerPixel) / DivisoreMuri;
    const int sesto = p.Lato / 6;
    const Posto arrivo = tavolo.Arrivo();
    const double cellaX = p.BordoX(arrivo.Colonna - 1) + sesto + muro / 2;
    const double cellaY = p.BordoY(arrivo.Riga - 1) + sesto + muro / 2;
    const double lato = 2 * ((p.Lato - muro) / 3);
    const std::array<Bounds, 4> attesi{{
        {cellaX, p.BordoY(0) - p.Lato + sesto - muro / 2, lato, lato},
        {p.BordoX(p.Colonne) + sesto + muro / 2, cellaY, lato, lato},
        {cellaX, p.BordoY(p.Righe) + muro / 2, lato, lato},
        {p.BordoX(0) - p.Lato, cellaY, lato, lato},
    }};
    const Bounds atteso = attesi.at(static_cast<std::size_t>(arrivo.Lato));
    const auto& immagine = Trova<Image>(tavolo.Form_, "Image2");
    EXPECT_EQ(immagine.Left(), atteso.Left);
    EXPECT_EQ(immagine.Top(), atteso.Top);
    EXPECT_EQ(immagine.Width(), lato);
    EXPECT_EQ(immagine.Height(), lato);

    // In the picture: figures fill their square, and nothing of them is seen outside of it.
    const Vista vista = tavolo.Guarda();
    const double scala = vista.PixelPerTwip();
    const QRect figura =
        MacchiaSenza(vista.Immagine(), {tavolo.Colore(RigaSfondo), tavolo.Colore(RigaPareti),
                                        tavolo.Colore(RigaSimbolo)})
            .Posto;
    const QRectF posto(QPointF(atteso.Left, atteso.Top) * scala, QSizeF(lato, lato) * scala);
    const QRectF visibile = posto & QRectF(vista.Immagine().rect());
    const double orlo = vista.Immagine().devicePixelRatio() > 1 ? 2 : 1;  // controls lie on pixels
    EXPECT_TRUE(visibile.adjusted(-orlo, -orlo, orlo, orlo).contains(QRectF(figura)));
    EXPECT_GT(figura.width(), visibile.width() * 0.6);
    EXPECT_GT(figura.height(), visibile.height() * 0.6);
}

/// The symbol: a round point on the line of the outside wall, in the middle of the opening.
void HaIlSimboloSullaLinea(const Tavolo& tavolo) {
    const Vista vista = tavolo.Guarda();
    const Pianta& p = vista.LaPianta();
    const double ratio = vista.Immagine().devicePixelRatio();
    const double penna =
        std::nearbyint(2 * (static_cast<int>(p.Lato / p.TwipsPerPixel) / DivisoreMuri) * ratio);
    const QRect simbolo = MacchiaDi(vista.Immagine(), tavolo.Colore(RigaSimbolo)).Posto;
    EXPECT_EQ(simbolo.width(), penna);
    EXPECT_EQ(simbolo.height(), penna);
    const Posto partenza = tavolo.Partenza();
    const auto lato = static_cast<std::size_t>(partenza.Lato);
    const double x =
        (p.BordoX(partenza.Colonna - 1) + p.Lato / 2 + ColonnaVerso.at(lato) * p.Lato / 2.0);
    const double y = (p.BordoY(partenza.Riga - 1) + p.Lato / 2 + RigaVerso.at(lato) * p.Lato / 2.0);
    EXPECT_NEAR(simbolo.x() + penna / 2, x * vista.PixelPerTwip(), 1.1);
    EXPECT_NEAR(simbolo.y() + penna / 2, y * vista.PixelPerTwip(), 1.1);
}

struct Scena {
    int Livello;
    PixelSize Schermo;
};

class Labirinto : public testing::TestWithParam<Scena> {};

TEST_P(Labirinto, IsDrawnAsLevelAndScreenSay) {
    const auto [livello, schermo] = GetParam();
    const Disco disco;
    disco.Scrivi("_predefinito", Colorato);
    Partita partita(disco, schermo, static_cast<std::uint64_t>(livello + 1));
    Form& form = partita.ApriLivello(livello);
    const Tavolo tavolo(form, MisureLivelli.at(static_cast<std::size_t>(livello)), Colorato);

    const auto& scatola = Trova<PictureBox>(form, "pictureTramelo");
    EXPECT_EQ(scatola.Left(), 0);
    EXPECT_EQ(scatola.Top(), 0);
    EXPECT_EQ(scatola.Width(), form.Width());
    HaDueApertureOpposte(tavolo);
    ASSERT_FALSE(HasFatalFailure());
    HaIMuriDelLivello(tavolo, livello);
    HaLineeAlLoroPosto(tavolo, true);
    HaLineeAlLoroPosto(tavolo, false);
    HaLArrivoAlSuoPosto(tavolo);
    HaIlSimboloSullaLinea(tavolo);
}

std::vector<Scena> Scene() {
    std::vector<Scena> scene;
    for (const int livello : {0, 1, 2, 3, 4, 8, 9, 10, 11, 12, 13, 14, 15}) {
        scene.push_back({livello, {1366, 768}});
    }
    for (const PixelSize schermo :
         {PixelSize{800, 600}, {1920, 1080}, {3840, 2160}, {1080, 1920}}) {
        for (const int livello : {1, 8, 15}) {
            scene.push_back({livello, schermo});
        }
    }
    return scene;
}

std::string NomeScena(const testing::TestParamInfo<Scena>& voce) {
    return "Level" + std::to_string(voce.param.Livello) + "On" +
           std::to_string(voce.param.Schermo.Width) + "x" +
           std::to_string(voce.param.Schermo.Height);
}

INSTANTIATE_TEST_SUITE_P(Scene, Labirinto, testing::ValuesIn(Scene()), NomeScena);

/// How many interior walls the levels of the first form leave on the average.
struct Resto {
    int Livello;
    int Muri;
};

class MuriRimasti : public testing::TestWithParam<Resto> {};

TEST_P(MuriRimasti, AreAboutAsManyAsTheLevelSays) {
    const Disco disco;
    Partita partita(disco);
    Form& form = partita.ApriLivello(GetParam().Livello);
    const Tavolo tavolo(form, {6, 9});
    constexpr int Quanti = 10;
    int somma = 0;
    std::set<int> diversi;
    for (int i = 0; i < Quanti; ++i) {
        const MuriVisti muri = tavolo.Muri();
        EXPECT_EQ(muri.Raggiungibili(), 54);
        somma += muri.Interni();
        EXPECT_NEAR(muri.Interni(), GetParam().Muri, 4);
        Tap(form, Qt::Key_N, Qt::ControlModifier);
    }
    EXPECT_NEAR(somma / static_cast<double>(Quanti), GetParam().Muri, 1.5);
}

INSTANTIATE_TEST_SUITE_P(Livelli, MuriRimasti,
                         testing::Values(Resto{1, 6}, Resto{2, 12}, Resto{3, 24}, Resto{4, 30}),
                         [](const auto& voce) {
                             return "Level" + std::to_string(voce.param.Livello);
                         });

class OgniAngolo : public testing::TestWithParam<int> {};

/// All eight ways of placing start and finish come up, and each has its picture and its symbol.
TEST_P(OgniAngolo, HasItsPlaces) {
    const int livello = GetParam();
    const Disco disco;
    disco.Scrivi("_predefinito", Colorato);
    Partita partita(disco, {800, 600});
    Form& form = partita.ApriLivello(livello);
    const Tavolo tavolo(form, MisureLivelli.at(static_cast<std::size_t>(livello)), Colorato);
    std::set<std::array<int, 3>> visti;
    for (int i = 0; i < 100 && visti.size() < 8; ++i) {
        const Posto p = tavolo.Partenza();
        if (visti.insert({p.Riga, p.Colonna, p.Lato}).second) {
            HaDueApertureOpposte(tavolo);
            HaLArrivoAlSuoPosto(tavolo);
            HaIlSimboloSullaLinea(tavolo);
        }
        Tap(form, Qt::Key_N, Qt::ControlModifier);
    }
    EXPECT_EQ(visti.size(), 8U);
}

INSTANTIATE_TEST_SUITE_P(Livelli, OgniAngolo, testing::Values(0, 8));

/// Draws from a script, and 0 once that is at its end.
class CasualeScritto final : public Casuale {
public:
    explicit CasualeScritto(std::vector<float> estratti) : estratti_(std::move(estratti)) {}
    float Estrai() override { return prossimo_ < estratti_.size() ? estratti_[prossimo_++] : 0.0F; }

private:
    std::vector<float> estratti_;
    std::size_t prossimo_ = 0;
};

TEST(Arrivo, IsTheSecondPictureDrawnInTheFirstForm) {
    // The empty box draws its corners, a picture with the maze, and another one that stays.
    const Disco disco;
    Partita partita(disco, {800, 600},
                    std::make_unique<CasualeScritto>(std::vector{0.0F, 0.0F, 0.999F}));
    Form& form = partita.ApriLivello(0);
    EXPECT_EQ(Trova<Image>(form, "Image2").Picture().Name, "arrivo/19.svg");
}

}  // namespace
}  // namespace trameli
