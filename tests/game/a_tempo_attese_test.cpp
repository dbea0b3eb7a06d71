// The three seconds before the clock starts, and everything that can happen in them.
#include <utility>

#include "game/a_tempo.h"

namespace trameli {
namespace {

/// What the player waits after.
enum class Dopo { Apertura, TrameloNuovo, Bottone, Ripartenza };
constexpr std::array<const char*, 4> NomiDopo{"Opening", "NewMaze", "Button", "NewStart"};

class Attese : public ATempo {
protected:
    /// Brings such a wait about, with `azione` so many seconds after its beginning.
    void Aspetta(Dopo dopo, double secondi, std::function<void()> azione) {
        if (dopo == Dopo::Apertura) {
            ApriDaSolo([&] { Fra(secondi, std::move(azione)); });
            return;
        }
        Apri();
        switch (dopo) {
            case Dopo::Bottone:
                Guida(IlTavolo().Soluzione());
                Fra(secondi, std::move(azione));
                Tap(Gioco(), Qt::Key_Space);
                break;
            case Dopo::Ripartenza:
                Sbaglia(5);
                Tasto(Su);
                Fra(1.8 + secondi, std::move(azione));
                Scatto();
                break;
            default:
                Scatti(2);
                Fra(secondi, std::move(azione));
                CtrlN();
                break;
        }
    }
};

class OgniAttesa : public Attese, public testing::WithParamInterface<Dopo> {};

INSTANTIATE_TEST_SUITE_P(Tutte, OgniAttesa,
                         testing::Values(Dopo::Apertura, Dopo::TrameloNuovo, Dopo::Bottone,
                                         Dopo::Ripartenza),
                         [](const auto& voce) {
                             return NomiDopo.at(static_cast<std::size_t>(voce.param));
                         });

TEST_P(OgniAttesa, CanBeLeftAtAnyMoment) {
    for (const double quando : {UnIstante, 1.5, TreSecondi - UnIstante}) {
        Aspetta(GetParam(), quando, [&] { Scegli("mnuEsci"); });
        EXPECT_FALSE(Aperto()) << quando;
        EXPECT_EQ(partita_.Tempo.WaitsUnderWay(), 0);
        EXPECT_EQ(partita_.Aperte(), std::vector<std::string>{"FormMenu"});
        partita_.Tempo.Advance(20);
        Apri();
        EXPECT_EQ(Soli(), 5);
        EXPECT_EQ(Coppe(), 0);
        Scatto();
        EXPECT_EQ(Passi(), 1);
        Scegli("mnuEsci");
    }
}

TEST_P(OgniAttesa, CanEndWithTheWindow) {
    Aspetta(GetParam(), 1.5, [&] { Partita::Chiudi(Gioco()); });
    EXPECT_TRUE(partita_.Gioco.Forms().Ended());
    EXPECT_EQ(partita_.Tempo.WaitsUnderWay(), 0);
    partita_.Tempo.Advance(20);
}

TEST_P(OgniAttesa, EndsWithTheClockStartedWhateverElseHappens) {
    double fine = 0;
    Aspetta(GetParam(), 1, [&] {
        fine = partita_.Tempo.Now() + TreSecondi - 1;
        Fra(TreSecondi - 1 - UnIstante, [&] { EXPECT_FALSE(Orologio().Enabled()); });
        const QImage prima = Immagine();
        CtrlR();
        Scegli("mnuColora");
        Scegli("mnuColora");
        Partita::ViaERitorno(Gioco());  // which makes no new maze
        EXPECT_EQ(Immagine(), prima);
        EXPECT_EQ(partita_.Tempo.WaitsUnderWay(), 1);
        Scegli("mnuPausa");
        EXPECT_TRUE(Orologio().Enabled());
        EXPECT_EQ(Pausa().Caption(), "&Pausa");
        Scegli("mnuPausa");
    });
    EXPECT_NEAR(partita_.Tempo.Now(), fine, 1e-6);
    EXPECT_TRUE(Orologio().Enabled());
    EXPECT_EQ(Pausa().Caption(), "Ri&prendi");  // left behind
    EXPECT_EQ(Soli(), 5);
    const int passi = Passi();
    Scatto();
    EXPECT_EQ(Passi(), passi + 1);
}

TEST_P(OgniAttesa, EachNewMazeBeginsItAnew) {
    double inizio = 0;
    Aspetta(GetParam(), 2, [&] {
        inizio = partita_.Tempo.Now();
        for (const double quando : {0.0, 2.0, 4.5}) {
            Fra(quando, [&] {
                CtrlN();
                EXPECT_EQ(partita_.Tempo.WaitsUnderWay(), 1);
            });
        }
        for (const double quando : {1.1, 3.1, 5.1, 7.4}) {
            Fra(quando, [&] { EXPECT_FALSE(Orologio().Enabled()); });
        }
    });
    EXPECT_NEAR(partita_.Tempo.Now() - inizio, 7.5, 1e-6);
    EXPECT_TRUE(Orologio().Enabled());
}

TEST_P(OgniAttesa, PauseOnceStartsTheClockBeforeItsEnd) {
    Aspetta(GetParam(), 1, [&] { Scegli("mnuPausa"); });
    // The first wait has the short first tick, and no tick comes inside another one.
    const bool prima = GetParam() == Dopo::Apertura;
    const int passi = prima ? 2 : GetParam() == Dopo::Ripartenza ? 0 : 1;
    EXPECT_EQ(Passi(), passi);
    partita_.Tempo.Advance((prima ? 1.7 : 1.6) - UnIstante);
    EXPECT_EQ(Passi(), passi);
    partita_.Tempo.Advance(2 * UnIstante);
    EXPECT_EQ(Passi(), passi + 1);
}

TEST_F(Attese, AnArrowLeadsTheFirstStepAndNoneAfterIt) {
    for (const Dopo dopo : {Dopo::TrameloNuovo, Dopo::Ripartenza}) {
        for (const bool nuovo : {false, true}) {  // a new maze comes before the key
            Aspetta(dopo, 1, [&] {
                if (nuovo) {
                    CtrlN();
                }
                Tasto(AllaDestra);
            });
            const int urti = Urti();
            Scatti(3);
            EXPECT_EQ(Urti(), urti + 1);
            EXPECT_EQ(Passi(), 2);
            Scegli("mnuEsci");
        }
    }
}

}  // namespace
}  // namespace trameli
