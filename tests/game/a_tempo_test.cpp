// The levels with a clock: its pace, the steering, hits, suns, the pause, and the three seconds
// before it starts.
#include <functional>
#include <utility>

#include "game/partita.h"
#include "platform/menu.h"
#include "platform/scroll_bar.h"
#include "platform/timer.h"

namespace trameli {
namespace {

constexpr double TreSecondi = 3;
constexpr double UnIstante = 0.001;
constexpr const char* Via = "&Pausa";
constexpr const char* InPausa = "Ri&prendi";

/// Level 5 has no inner walls: there the symbol walks eight cells down before it meets a wall.
class ATempo : public ConTavolo {
protected:
    Form& Gioco() { return partita_.Finestra("frmTrm1"); }
    Tavolo IlTavolo() { return {Gioco(), 5}; }
    QImage Immagine() { return IlTavolo().Guarda().Immagine(); }
    int Passi() { return IlTavolo().Passi(); }
    int Urti() { return IlTavolo().Urti(); }
    int Soli() { return Visibili(Gioco(), "ImageSole", 5); }
    /// New starts from zero; none before the panel tells.
    int Ripartenze() { return IlTavolo().Pannello(5).empty() ? 0 : IlTavolo().NumeroPannello(5); }
    QRgb Centro(int riga, int colonna) { return IlTavolo().Guarda().Centro(riga, colonna); }
    Timer& Orologio() { return Trova<Timer>(Gioco(), "Timer1"); }
    std::string Pausa() { return Trova<MenuItem>(Gioco(), "mnuPausa").Caption(); }

    void Tasto(int verso) { IlTavolo().Passo(verso); }
    void CtrlN() { Tap(Gioco(), Qt::Key_N, Qt::ControlModifier); }
    void Scegli(const char* voce) { Partita::Scegli(Gioco(), voce); }

    /// The time of a step passes.
    void Scatti(int quanti) {
        for (int i = 0; i < quanti; ++i) {
            partita_.Tempo.Advance(Orologio().Interval() / 1000.0);
        }
    }
    /// The next step comes after so many seconds and not before.
    void FaUnPassoDopo(double secondi) {
        const int passi = Passi();
        partita_.Tempo.Advance(secondi - UnIstante);
        EXPECT_EQ(Passi(), passi);
        partita_.Tempo.Advance(UnIstante);
        EXPECT_EQ(Passi(), passi + 1);
    }
    /// Steers before each tick.
    void Guida(const std::vector<int>& passi) {
        for (const int verso : passi) {
            Tasto(verso);
            Scatti(1);
        }
    }
    /// So many hits, each by a wrong first step.
    void Sbaglia(int volte) { Guida(std::vector<int>(static_cast<std::size_t>(volte), Su)); }
    /// `azione` in the middle of whatever waits then.
    void Fra(double secondi, std::function<void()> azione) {
        partita_.Tempo.In(secondi, std::move(azione));
    }
};

TEST_F(ATempo, PaceFollowsTheBarFromTheNextTickOn) {
    Apri(5);
    auto& velocita = Trova<HScrollBar>(Gioco(), "HScroll1");
    EXPECT_EQ(velocita.Value(), 12);
    FaUnPassoDopo(0.1);  // as laid out on the form
    FaUnPassoDopo(1.8);
    velocita.Value(1);
    FaUnPassoDopo(1.8);
    FaUnPassoDopo(2.9);
    velocita.Value(25);
    FaUnPassoDopo(2.9);
    FaUnPassoDopo(0.5);
}

TEST_F(ATempo, WalksDownAndBackAndAHitLeadsToTheStart) {
    const Tavolo tavolo = Apri(5);
    const QImage prima = Immagine();
    Scatti(4);
    EXPECT_EQ(Centro(4, 1), tavolo.Colore(RigaSimbolo));
    // The last arrow before the tick counts, and keys of the speed's bar do not.
    ClickOn(Trova<HScrollBar>(Gioco(), "HScroll1"));
    for (const int tasto : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Space, Qt::Key_Home, Qt::Key_4}) {
        Tap(Gioco(), tasto);
    }
    EXPECT_EQ(Passi(), 4);
    Scatti(1);
    Guida({Su});
    EXPECT_EQ(Passi(), 6);
    EXPECT_EQ(tavolo.Guarda().Muro({3, 1, Giu}), tavolo.Colore(RigaRitorno));
    EXPECT_EQ(tavolo.Guarda().Muro({1, 1, Giu}), tavolo.Colore(RigaAvanti));
    Guida({AllaSinistra});
    EXPECT_EQ(Soli(), 4);
    EXPECT_EQ(Immagine(), prima);
    Scatti(1);
    EXPECT_EQ(Passi(), 7);
    EXPECT_EQ(Centro(1, 1), tavolo.Colore(RigaSimbolo));
}

TEST_F(ATempo, HitsTakeTheSunsAndTheSixthStartsTheMazeAgainFromZero) {
    Apri(7);
    const QImage prima = Immagine();
    for (int volte = 1; volte <= 2; ++volte) {
        for (int soli = 4; soli >= 0; --soli) {
            Sbaglia(1);  // and the next step leads down again
            EXPECT_EQ(Soli(), soli);
            EXPECT_EQ(Ripartenze(), volte - 1);
            EXPECT_TRUE(Orologio().Enabled());
        }
        Fra(1.8 + TreSecondi - UnIstante, [&] { EXPECT_FALSE(Orologio().Enabled()); });
        Sbaglia(1);
        EXPECT_TRUE(Orologio().Enabled());
        EXPECT_EQ(Soli(), 5);
        EXPECT_EQ(Urti(), 6 * volte);
        EXPECT_EQ(Ripartenze(), volte);
        EXPECT_EQ(Immagine(), prima);
        Scatti(1);
        EXPECT_EQ(Passi(), volte);
    }
}

TEST_F(ATempo, RestartsCostNoSunAndLeaveClockAndDirectionAlone) {
    Apri(5);
    Scatti(2);
    for (const char* voce : {"mnuColora", "mnuLinee", "mnuColora", "mnuRicomincia"}) {
        Scegli(voce);
    }
    FaUnPassoDopo(1.8);  // downward still
    Guida({AllaDestra});
    Scegli("mnuRicomincia");
    EXPECT_EQ(Soli(), 5);
    Scatti(1);  // to the right still
    EXPECT_EQ(Soli(), 4);
    FaUnPassoDopo(1.8);
}

TEST_F(ATempo, PauseStopsTheClockAndKeysStillSteer) {
    Apri(5);
    Scatti(2);
    partita_.Tempo.Advance(1.7);
    Scegli("mnuPausa");
    EXPECT_EQ(Pausa(), InPausa);
    Tasto(AllaDestra);
    partita_.Tempo.Advance(100);
    EXPECT_EQ(Passi(), 2);
    Scegli("mnuPausa");
    EXPECT_EQ(Pausa(), Via);
    FaUnPassoDopo(1.8);  // a whole step's time again
    EXPECT_EQ(Centro(2, 2), IlTavolo().Colore(RigaSimbolo));

    // A new maze ends the pause, and the entry lags behind.
    Scegli("mnuPausa");
    CtrlN();
    for (const bool acceso : {true, false}) {
        EXPECT_EQ(Orologio().Enabled(), acceso);
        EXPECT_EQ(Pausa(), InPausa);
        Scegli("mnuPausa");
    }
    EXPECT_EQ(Pausa(), Via);
}

TEST_F(ATempo, ThoseWhoScanSteerWithArrowsAndWithTwoSwitchesSeeTheLeftStroke) {
    for (const std::int16_t modo : {ScansioneManuale, ScansioneAutomatica}) {
        // The menu does not offer these levels to those who scan, but a finished level leads here.
        disco_.Scrivi("_predefinito", FileUtente().Con(RigaScansione, Rgb(0, 0, 255)));
        Partita partita(disco_, {800, 600}, 7);
        partita.ApriMenu();
        partita.Gioco.Stato().ModoInput = modo;
        const Tavolo tavolo(partita.ApriLivello(5), 5);
        const bool tratto = modo == ScansioneManuale;
        EXPECT_EQ(MacchiaDi(tavolo.Guarda().Immagine(), qRgb(0, 0, 255)).Quanti > 0, tratto);
        partita.Tempo.Advance(2);
        tavolo.Passo(AllaDestra);
        partita.Tempo.Advance(1.8);
        EXPECT_EQ(tavolo.Guarda().Fra(2, 2, -0.35, 0) == qRgb(0, 0, 255), tratto);
        EXPECT_EQ(tavolo.Passi(), 3);
    }
}

/// What the player waits after.
enum class Dopo { Apertura, TrameloNuovo, Bottone, Ripartenza };

class OgniAttesa : public ATempo, public testing::WithParamInterface<Dopo> {
protected:
    /// Brings such a wait about, with `azione` so many seconds after its beginning.
    void Aspetta(double secondi, std::function<void()> azione) {
        if (GetParam() == Dopo::Apertura) {
            if (!partita_.Aperta("FormMenu")) {
                partita_.ApriMenu();
            }
            Fra(0.3 + secondi, std::move(azione));
            partita_.AvviaLivello(5);
            return;
        }
        Apri(5);
        if (GetParam() == Dopo::Bottone) {
            Guida(IlTavolo().Soluzione());
            Fra(secondi, std::move(azione));
            Tap(Gioco(), Qt::Key_Space);
        } else if (GetParam() == Dopo::Ripartenza) {
            Sbaglia(5);
            Fra(1.8 + secondi, std::move(azione));
            Sbaglia(1);
        } else {
            Scatti(2);
            Fra(secondi, std::move(azione));
            CtrlN();
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Tutte, OgniAttesa,
                         testing::Values(Dopo::Apertura, Dopo::TrameloNuovo, Dopo::Bottone,
                                         Dopo::Ripartenza));

TEST_P(OgniAttesa, CanBeLeftAtAnyMoment) {
    for (const double quando : {UnIstante, 1.5, TreSecondi - UnIstante}) {
        Aspetta(quando, [&] { Scegli("mnuEsci"); });
        EXPECT_EQ(partita_.Tempo.WaitsUnderWay(), 0);
        EXPECT_EQ(partita_.Aperte(), std::vector<std::string>{"FormMenu"});
        partita_.Tempo.Advance(20);
    }
    Aspetta(1.5, [&] { Partita::Chiudi(Gioco()); });
    EXPECT_TRUE(partita_.Gioco.Forms().Ended());
    EXPECT_EQ(partita_.Tempo.WaitsUnderWay(), 0);
}

TEST_P(OgniAttesa, EndsWithTheClockStartedWhateverElseHappens) {
    double fine = 0;
    Aspetta(1, [&] {
        fine = partita_.Tempo.Now() + TreSecondi - 1;
        Fra(TreSecondi - 1 - UnIstante, [&] { EXPECT_FALSE(Orologio().Enabled()); });
        const QImage prima = Immagine();
        Scegli("mnuRicomincia");
        Partita::ViaERitorno(Gioco());  // which makes no new maze
        EXPECT_EQ(Immagine(), prima);
        EXPECT_EQ(partita_.Tempo.WaitsUnderWay(), 1);
        Scegli("mnuPausa");
        EXPECT_TRUE(Orologio().Enabled());
        Scegli("mnuPausa");
    });
    EXPECT_NEAR(partita_.Tempo.Now(), fine, 1e-6);
    EXPECT_TRUE(Orologio().Enabled());
    EXPECT_EQ(Pausa(), InPausa);  // left behind
    EXPECT_EQ(Soli(), 5);
}

TEST_P(OgniAttesa, BeginsAnewWithEachNewMaze) {
    double inizio = 0;
    Aspetta(2, [&] {
        inizio = partita_.Tempo.Now();
        for (const double quando : {0.0, 2.0, 4.5}) {
            Fra(quando, [&] {
                CtrlN();
                EXPECT_EQ(partita_.Tempo.WaitsUnderWay(), 1);
            });
            Fra(quando + 1.1, [&] { EXPECT_FALSE(Orologio().Enabled()); });
        }
    });
    EXPECT_NEAR(partita_.Tempo.Now() - inizio, 4.5 + TreSecondi, 1e-6);
    EXPECT_TRUE(Orologio().Enabled());
}

TEST_P(OgniAttesa, AnArrowLeadsTheFirstStepAndNoneAfterIt) {
    for (const bool nuovo : {false, true}) {  // a new maze comes before the key
        Aspetta(1, [&] {
            if (nuovo) {
                CtrlN();
            }
            Tasto(AllaDestra);
        });
        const int urti = Urti();
        const int passi = Passi();
        Scatti(3);
        EXPECT_EQ(Urti(), urti + 1);
        EXPECT_EQ(Passi(), passi + 2);
        Scegli("mnuEsci");
    }
}

}  // namespace
}  // namespace trameli
