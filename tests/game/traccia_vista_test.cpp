// The trace and the walls as pixels: colours forward and back, whole cells, thickness.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <utility>

#include "base/combinazioni_spessori.h"
#include "game/partita.h"

namespace trameli {
namespace {

/// Colours that no picture of the game has, each other than all the others.
const FileUtente Colorato = FileUtente()
                                .Con(RigaPareti, Rgb(11, 22, 33))
                                .Con(RigaAvanti, Rgb(3, 151, 77))
                                .Con(RigaSfondo, Rgb(201, 222, 233))
                                .Con(RigaSimbolo, Rgb(251, 7, 99))
                                .Con(RigaRitorno, Rgb(254, 190, 5));

class TracciaVista : public ConTavolo {
protected:
    /// How many pixels show a colour of the settings.
    static int Quanti(const Tavolo& tavolo, Riga colore) {
        return MacchiaDi(tavolo.Guarda().Immagine(), tavolo.Colore(colore)).Quanti;
    }
};

class Ritorno : public TracciaVista, public testing::WithParamInterface<bool> {};

TEST_P(Ritorno, IsAnotherColourIfThePlayerWantsIt) {
    const bool cambia = GetParam();
    const Tavolo tavolo = Apri(11, Colorato.Con(RigaRetrocedi, cambia ? "True" : "False"));
    const QRgb avanti = tavolo.Colore(RigaAvanti);
    const Posto partenza = tavolo.Partenza();
    const Posto arrivo = tavolo.Arrivo();
    const auto passi = tavolo.Soluzione();
    const std::vector<int> via(passi.begin() + 1, passi.end() - 1);
    std::vector<int> indietro(via.rbegin(), via.rend());
    std::transform(indietro.begin(), indietro.end(), indietro.begin(), Contrario);
    // A new start knows nothing of the way before it.
    tavolo.Cammina({passi[0], passi[1]});
    Comando(tavolo, Qt::Key_R);
    tavolo.Passo(passi[0]);
    for (int volta = 0; volta < 4; ++volta) {
        const bool avanza = volta % 2 == 0;
        tavolo.Cammina(avanza ? via : indietro);
        const Vista vista = tavolo.Guarda();
        Posto qui = partenza;
        for (const int verso : via) {
            EXPECT_EQ(vista.Muro(qui.Dopo({}, verso)),
                      avanza || !cambia ? avanti : tavolo.Colore(RigaRitorno));
            qui = qui.Dopo({verso});
        }
        EXPECT_EQ(vista.Muro(partenza), avanti);  // the half step in walks no passage
    }
    tavolo.Cammina({passi.begin() + 1, passi.end()});
    // Nor does the last step out.
    EXPECT_EQ(tavolo.Guarda().Muro(arrivo), avanti);
}

INSTANTIATE_TEST_SUITE_P(Impostazione, Ritorno, testing::Bool(), testing::PrintToStringParamName());

class CaselleIntere : public TracciaVista, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Livelli, CaselleIntere, testing::Values(4, 11), NomeLivello);

TEST_P(CaselleIntere, AreFilledFromWallToWallInTheNextWindowToo) {
    const Tavolo tavolo = Apri(GetParam(), Colorato);
    const MuriVisti muri = tavolo.Muri();
    const Posto partenza = tavolo.Partenza();
    const auto passi = tavolo.Soluzione();
    tavolo.Passo(passi[0]);
    Comando(tavolo, Qt::Key_C);
    EXPECT_EQ(tavolo.Passi(), 1);  // the counters stay, the trace does not
    EXPECT_EQ(Quanti(tavolo, RigaAvanti), 0);

    const QRgb avanti = tavolo.Colore(RigaAvanti);
    const QRgb sfondo = tavolo.Colore(RigaSfondo);
    tavolo.Passo(passi[0]);
    Posto qui = partenza;
    for (std::size_t i = 1; i + 1 < passi.size(); ++i) {
        SCOPED_TRACE(i);
        tavolo.Passo(passi[i]);
        const Vista vista = tavolo.Guarda();
        const Posto lasciata = qui;
        qui = lasciata.Dopo({passi[i]});
        for (const double x : {-0.3, 0.3}) {
            for (const double y : {-0.3, 0.3}) {
                EXPECT_EQ(vista.Fra(lasciata.Riga, lasciata.Colonna, x, y), avanti);
                // Half of the new cell: the half that the player came through.
                const bool dietro = x * ColonnaVerso.at(static_cast<std::size_t>(passi[i])) +
                                        y * RigaVerso.at(static_cast<std::size_t>(passi[i])) <
                                    0;
                EXPECT_EQ(vista.Fra(qui.Riga, qui.Colonna, x, y), dietro ? avanti : sfondo);
            }
        }
        // Up to the faces of the walls and no further.
        for (std::size_t lato = 0; lato < ColonnaVerso.size(); ++lato) {
            if (muri.Ha({lasciata.Riga, lasciata.Colonna, static_cast<int>(lato)})) {
                EXPECT_EQ(vista.Fra(lasciata.Riga, lasciata.Colonna, 0.45 * ColonnaVerso.at(lato),
                                    0.45 * RigaVerso.at(lato)),
                          tavolo.Colore(RigaPareti));
            }
        }
    }
    EXPECT_TRUE(tavolo.Muri() == muri);

    // They outlast the window.
    Partita::Scegli(tavolo.Form_, "mnuEsci");
    const Tavolo dopo = Apri(GetParam(), Colorato);
    const Posto prima = dopo.Partenza();
    const auto nuovi = dopo.Soluzione();
    dopo.Cammina({nuovi[0], nuovi[1]});
    EXPECT_EQ(dopo.Guarda().Fra(prima.Riga, prima.Colonna, 0.3, 0.3), avanti);
    Comando(dopo, Qt::Key_C);
    dopo.Cammina({nuovi[0], nuovi[1]});
    EXPECT_EQ(dopo.Guarda().Fra(prima.Riga, prima.Colonna, 0.3, 0.3), sfondo);
}

class Spessore : public TracciaVista, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Livelli, Spessore, testing::Values(3, 12), NomeLivello);

TEST_P(Spessore, ComesBackAfterAllChangesThatLeaveNothingBehind) {
    const Tavolo tavolo = Apri(GetParam(), Colorato);
    const auto passi = tavolo.Soluzione();
    for (const bool intere : {false, true}) {
        const QImage prima = tavolo.Guarda().Immagine();
        std::set<std::pair<int, int>> aspetti;
        for (int volta = 0; volta < NumeroSpessori; ++volta) {
            SCOPED_TRACE(volta);
            const int simbolo = Quanti(tavolo, RigaSimbolo);
            const int pareti = Quanti(tavolo, RigaPareti);
            aspetti.insert({simbolo, pareti});
            for (const int verso : {passi[0], passi[1], Contrario(passi[1])}) {
                tavolo.Passo(verso);
                EXPECT_EQ(Quanti(tavolo, RigaSimbolo), simbolo);
                EXPECT_TRUE(intere || Quanti(tavolo, RigaPareti) == pareti);
            }
            Comando(tavolo, Qt::Key_L);
            EXPECT_EQ(Quanti(tavolo, RigaAvanti) + Quanti(tavolo, RigaRitorno), 0);
        }
        EXPECT_EQ(aspetti.size(), std::size_t{NumeroSpessori});
        EXPECT_EQ(tavolo.Guarda().Immagine(), prima);
        EXPECT_EQ(tavolo.Passi(), (intere ? 6 : 3) * NumeroSpessori);
        Comando(tavolo, Qt::Key_C);
    }
}

}  // namespace
}  // namespace trameli
