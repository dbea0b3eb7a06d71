// The trace and the walls as pixels: colours forward and back, whole cells, thickness.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>

#include "game/partita.h"
#include "platform/menu.h"

namespace trameli {
namespace {

/// Colours that no picture of the game has, each other than all the others.
const FileUtente Colorato = FileUtente()
                                .Con(RigaPareti, Rgb(11, 22, 33))
                                .Con(RigaAvanti, Rgb(3, 151, 77))
                                .Con(RigaSfondo, Rgb(201, 222, 233))
                                .Con(RigaSimbolo, Rgb(251, 7, 99))
                                .Con(RigaRitorno, Rgb(254, 190, 5));

class TracciaVista : public testing::Test {
protected:
    Tavolo Apri(int livello, const FileUtente& file = Colorato) {
        disco_.Scrivi("_predefinito", file);
        Form& form = partita_.ApriLivello(livello);
        return Tavolo(form, MisureLivelli.at(static_cast<std::size_t>(livello)), file);
    }
    static void Comando(const Tavolo& tavolo, int lettera) {
        Tap(tavolo.Form_, lettera, Qt::ControlModifier);
    }

    Disco disco_;
    Partita partita_{disco_, {800, 600}, 5};
};

int QuantiPixel(const QImage& immagine, QRgb colore) {
    return MacchiaDi(immagine, colore).Quanti;
}

/// Pixels of a colour in one piece across the middle of a wall's place, along the wall or across.
int Larghezza(const Vista& vista, const Posto& posto, QRgb colore, bool lungoX) {
    const double scala = vista.PixelPerTwip();
    const Pianta& p = vista.LaPianta();
    const auto lato = static_cast<std::size_t>(posto.Lato);
    const int x0 = static_cast<int>(
        (p.BordoX(posto.Colonna - 1) + p.Lato * (0.5 + 0.5 * ColonnaVerso.at(lato))) * scala + 0.5);
    const int y0 = static_cast<int>(
        (p.BordoY(posto.Riga - 1) + p.Lato * (0.5 + 0.5 * RigaVerso.at(lato))) * scala + 0.5);
    int quanti = 0;
    for (const int passo : {-1, 1}) {
        for (int i = passo < 0 ? 0 : 1;; ++i) {
            const QPoint qui(x0 + (lungoX ? i * passo : 0), y0 + (lungoX ? 0 : i * passo));
            if (!vista.Immagine().valid(qui) || vista.Immagine().pixel(qui) != colore) {
                break;
            }
            ++quanti;
        }
    }
    return quanti;
}

class Ritorno : public TracciaVista, public testing::WithParamInterface<bool> {};

TEST_P(Ritorno, IsAnotherColourIfThePlayerWantsIt) {
    const bool cambia = GetParam();
    const Tavolo tavolo = Apri(11, Colorato.Con(RigaRetrocedi, cambia ? "True" : "False"));
    const QRgb avanti = tavolo.Colore(RigaAvanti);
    const Posto partenza = tavolo.Partenza();
    const auto passi = tavolo.Soluzione();
    const int simbolo = QuantiPixel(tavolo.Guarda().Immagine(), tavolo.Colore(RigaSimbolo));
    tavolo.Passo(passi[0]);
    const Posto primo = partenza.Dopo({}, passi[1]);
    const Posto secondo = partenza.Dopo({passi[1]}, passi[2]);
    for (int volta = 0; volta < 4; ++volta) {
        const bool via = volta % 2 == 0;
        tavolo.Passo(via ? passi[1] : Contrario(passi[2]));
        // The symbol is in one place only, and whole.
        EXPECT_EQ(QuantiPixel(tavolo.Guarda().Immagine(), tavolo.Colore(RigaSimbolo)), simbolo);
        tavolo.Passo(via ? passi[2] : Contrario(passi[1]));
        const Vista vista = tavolo.Guarda();
        const QRgb atteso = via || !cambia ? avanti : tavolo.Colore(RigaRitorno);
        EXPECT_EQ(vista.Muro(primo), atteso) << volta;
        EXPECT_EQ(vista.Muro(secondo), atteso) << volta;
        EXPECT_EQ(vista.Muro(partenza), avanti);  // the half step in walks no passage
        EXPECT_EQ(QuantiPixel(vista.Immagine(), tavolo.Colore(RigaSimbolo)), simbolo);
    }
    EXPECT_EQ(tavolo.Passi(), 9);
    tavolo.Cammina({passi.begin() + 1, passi.end()});
    const Vista vista = tavolo.Guarda();
    EXPECT_EQ(vista.Muro(primo), avanti);
    const Posto fine = partenza.Dopo({passi.begin() + 1, passi.end() - 1}, passi.back());
    EXPECT_EQ(vista.Muro(fine), avanti);  // nor does the last step out
}

INSTANTIATE_TEST_SUITE_P(Impostazione, Ritorno, testing::Bool(), testing::PrintToStringParamName());

TEST_F(TracciaVista, SecondTimeRoundALoopIsAWayBackToo) {
    const Tavolo tavolo = Apri(0);
    const Posto partenza = tavolo.Partenza();
    tavolo.Passo(Contrario(partenza.Lato));
    const int oltre = partenza.Colonna == 1 ? AllaDestra : AllaSinistra;
    const int lungo = partenza.Riga == 1 ? Giu : Su;
    const std::vector<int> giro{oltre, lungo, Contrario(oltre), Contrario(lungo)};
    for (const Riga riga : {RigaAvanti, RigaRitorno, RigaAvanti}) {
        tavolo.Cammina(giro);
        const Vista vista = tavolo.Guarda();
        for (std::size_t i = 0; i < giro.size(); ++i) {
            const auto fin = giro.begin() + static_cast<std::ptrdiff_t>(i);
            EXPECT_EQ(vista.Muro(partenza.Dopo({giro.begin(), fin}, giro[i])), tavolo.Colore(riga))
                << i;
        }
    }
    EXPECT_EQ(tavolo.Urti(), 0);
}

class CaselleIntere : public TracciaVista, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Livelli, CaselleIntere, testing::Values(4, 11),
                         [](const auto& voce) { return "Level" + std::to_string(voce.param); });

TEST_P(CaselleIntere, AreFilledFromWallToWall) {
    const Tavolo tavolo = Apri(GetParam());
    const MuriVisti muri = tavolo.Muri();
    const Posto partenza = tavolo.Partenza();
    const auto passi = tavolo.Soluzione();
    tavolo.Passo(passi[0]);
    Comando(tavolo, Qt::Key_C);
    EXPECT_EQ(tavolo.Passi(), 1);  // the counters stay, the trace does not
    EXPECT_EQ(QuantiPixel(tavolo.Guarda().Immagine(), tavolo.Colore(RigaAvanti)), 0);
    EXPECT_TRUE(tavolo.Muri() == muri);

    const QRgb avanti = tavolo.Colore(RigaAvanti);
    const QRgb sfondo = tavolo.Colore(RigaSfondo);
    tavolo.Passo(passi[0]);
    const Vista inizio = tavolo.Guarda();
    const double fuoriX = ColonnaVerso.at(static_cast<std::size_t>(partenza.Lato));
    const double fuoriY = RigaVerso.at(static_cast<std::size_t>(partenza.Lato));
    // Half a cell less half a wall is a pen of 0.4 cells behind the opening.
    EXPECT_EQ(inizio.Fra(partenza.Riga, partenza.Colonna, fuoriX * 0.85, fuoriY * 0.85), avanti);
    EXPECT_EQ(inizio.Fra(partenza.Riga, partenza.Colonna, fuoriX * 0.96, fuoriY * 0.96), sfondo);

    for (std::size_t i = 1; i + 1 < passi.size(); ++i) {
        tavolo.Passo(passi[i]);
        const Vista vista = tavolo.Guarda();
        const std::vector<int> fatti(passi.begin() + 1, passi.begin() + static_cast<int>(i));
        const Posto lasciata = partenza.Dopo(fatti, 0);
        const Posto qui = lasciata.Dopo({passi[i]}, 0);
        for (const double x : {-0.3, 0.3}) {
            for (const double y : {-0.3, 0.3}) {
                EXPECT_EQ(vista.Fra(lasciata.Riga, lasciata.Colonna, x, y), avanti)
                    << "step " << i << ": " << x << ", " << y;
                // Half of the new cell: the half that the player came through.
                const bool dietro = x * ColonnaVerso.at(static_cast<std::size_t>(passi[i])) +
                                        y * RigaVerso.at(static_cast<std::size_t>(passi[i])) <
                                    0;
                EXPECT_EQ(vista.Fra(qui.Riga, qui.Colonna, x, y), dietro ? avanti : sfondo)
                    << "step " << i << ": " << x << ", " << y;
            }
        }
    }
    EXPECT_TRUE(tavolo.Muri() == muri);
}

TEST_P(CaselleIntere, OutlastTheWindowButItsMarkDoesNot) {
    {
        const Tavolo tavolo = Apri(GetParam());
        const QImage sottile = tavolo.Guarda().Immagine();
        EXPECT_FALSE(Trova<MenuItem>(tavolo.Form_, "mnuColora").Checked());
        Comando(tavolo, Qt::Key_C);
        EXPECT_TRUE(Trova<MenuItem>(tavolo.Form_, "mnuColora").Checked());
        Comando(tavolo, Qt::Key_C);
        EXPECT_FALSE(Trova<MenuItem>(tavolo.Form_, "mnuColora").Checked());
        EXPECT_EQ(tavolo.Guarda().Immagine(), sottile);
        Partita::Scegli(tavolo.Form_, "mnuColora");
        Partita::Scegli(tavolo.Form_, "mnuEsci");
    }
    const Tavolo tavolo = Apri(GetParam());
    EXPECT_FALSE(Trova<MenuItem>(tavolo.Form_, "mnuColora").Checked());
    const Posto partenza = tavolo.Partenza();
    const auto passi = tavolo.Soluzione();
    tavolo.Cammina({passi[0], passi[1]});
    EXPECT_EQ(tavolo.Guarda().Fra(partenza.Riga, partenza.Colonna, 0.3, 0.3),
              tavolo.Colore(RigaAvanti));
    Comando(tavolo, Qt::Key_C);
    EXPECT_FALSE(Trova<MenuItem>(tavolo.Form_, "mnuColora").Checked());
    tavolo.Cammina({passi[0], passi[1]});
    EXPECT_EQ(tavolo.Guarda().Fra(partenza.Riga, partenza.Colonna, 0.3, 0.3),
              tavolo.Colore(RigaSfondo));
}

/// By how much a cell is divided: half the trace, and the walls.
constexpr std::array<std::array<int, 2>, 7> Divisori{
    {{10, 10}, {5, 5}, {3, 3}, {3, 7}, {5, 10}, {7, 3}, {10, 5}}};

class Spessore : public TracciaVista, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Livelli, Spessore, testing::Values(3, 12),
                         [](const auto& voce) { return "Level" + std::to_string(voce.param); });

TEST_P(Spessore, ComesBackAfterSevenChanges) {
    const Tavolo tavolo = Apri(GetParam());
    const QImage prima = tavolo.Guarda().Immagine();
    const Posto partenza = tavolo.Partenza();
    const int dentro = Contrario(partenza.Lato);
    // The wall beyond the corner that the start opening lies next to.
    const bool verticale = partenza.Lato == AllaDestra || partenza.Lato == AllaSinistra;
    const Posto muro{partenza.Riga, partenza.Colonna,
                     verticale ? (partenza.Riga == 1 ? Su : Giu)
                               : (partenza.Colonna == 1 ? AllaSinistra : AllaDestra)};
    for (int volta = 1; volta <= 7; ++volta) {
        tavolo.Passo(dentro);
        Comando(tavolo, Qt::Key_L);
        EXPECT_EQ(QuantiPixel(tavolo.Guarda().Immagine(), tavolo.Colore(RigaAvanti)), 0);
        const auto& [traccia, muri] = Divisori.at(static_cast<std::size_t>((1 + volta) % 7));
        tavolo.Passo(dentro);
        const Vista vista = tavolo.Guarda();
        const Pianta& p = vista.LaPianta();
        const int cella = static_cast<int>(p.Lato / p.TwipsPerPixel);
        const double ratio = vista.Immagine().devicePixelRatio();
        EXPECT_EQ(Larghezza(vista, muro, tavolo.Colore(RigaPareti), !verticale),
                  std::nearbyint(cella / muri * ratio))
            << volta;
        EXPECT_EQ(Larghezza(vista, partenza, tavolo.Colore(RigaAvanti), !verticale),
                  std::nearbyint(2 * (cella / traccia) * ratio))
            << volta;
        Comando(tavolo, Qt::Key_R);
    }
    EXPECT_EQ(tavolo.Guarda().Immagine(), prima);
    EXPECT_EQ(tavolo.Passi(), 14);
}

TEST_P(Spessore, LeavesNothingOfTheSymbolBehind) {
    const Tavolo tavolo = Apri(GetParam());
    const auto passi = tavolo.Soluzione();
    const auto simboli = [&] {
        return QuantiPixel(tavolo.Guarda().Immagine(), tavolo.Colore(RigaSimbolo));
    };
    for (const bool intere : {false, true}) {
        for (int volta = 0; volta < 7; ++volta) {
            SCOPED_TRACE(volta);
            const int prima = simboli();
            EXPECT_GT(prima, 0);
            tavolo.Passo(passi[0]);
            EXPECT_EQ(simboli(), prima);
            tavolo.Passo(passi[1]);
            EXPECT_EQ(simboli(), prima);
            tavolo.Passo(Contrario(passi[1]));
            EXPECT_EQ(simboli(), prima);
            Comando(tavolo, Qt::Key_L);
        }
        if (!intere) {
            Comando(tavolo, Qt::Key_C);
        }
    }
}

/// A wall from the left that ends in the open, with no other wall at its right end.
std::optional<Posto> MuroCheFinisce(const MuriVisti& muri) {
    for (int r = 1; r < muri.Righe(); ++r) {
        for (int c = 1; c < muri.Colonne(); ++c) {
            if (muri.Ha({r, c, Giu}) && !muri.Ha({r, c + 1, Giu}) && !muri.Ha({r, c, AllaDestra}) &&
                !muri.Ha({r + 1, c, AllaDestra})) {
                return Posto{r, c, Giu};
            }
        }
    }
    return std::nullopt;
}

TEST_F(TracciaVista, WallsEndSquareWithWholeCellsAndRoundWithout) {
    const Tavolo tavolo = Apri(2, Colorato.Con(RigaSpessore, 2));
    const auto muro = MuroCheFinisce(tavolo.Muri());
    ASSERT_TRUE(muro);
    const Pianta& p = tavolo.Pianta_;
    const double mezzo = static_cast<int>(p.Lato / p.TwipsPerPixel) / 3 * p.TwipsPerPixel / 2;
    const double poco = 2 * p.TwipsPerPixel;
    const double x = p.BordoX(muro->Colonna);
    const double y = p.BordoY(muro->Riga);
    for (const bool quadri : {false, true}) {
        const Vista vista = tavolo.Guarda();
        const QRgb muri = tavolo.Colore(RigaPareti);
        const QRgb sfondo = tavolo.Colore(RigaSfondo);
        EXPECT_EQ(vista.A(x + mezzo - poco, y), muri);
        EXPECT_EQ(vista.A(x + mezzo + poco, y), sfondo);
        for (const double verso : {-1.0, 1.0}) {
            EXPECT_EQ(vista.A(x + mezzo - poco, y + verso * (mezzo - poco)),
                      quadri ? muri : sfondo);
        }
        // So do corners of two outside walls.
        EXPECT_EQ(vista.A(p.BordoX(0) - mezzo + poco, p.BordoY(p.Righe) + mezzo - poco),
                  quadri ? muri : sfondo);
        Comando(tavolo, Qt::Key_C);
    }
}

}  // namespace
}  // namespace trameli
