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
    int Soli() { return Visibili(Gioco(), "ImageSole", 5); }
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
    for (int soli = 4; soli >= 0; --soli) {
        Sbaglia(1);  // and the next step leads down again
        EXPECT_EQ(Soli(), soli);
        EXPECT_EQ(IlTavolo().Pannello(5), "");
    }
    Fra(1.8 + TreSecondi - UnIstante, [&] { EXPECT_FALSE(Orologio().Enabled()); });
    Sbaglia(1);
    EXPECT_EQ(Soli(), 5);
    EXPECT_EQ(IlTavolo().Urti(), 6);
    EXPECT_EQ(IlTavolo().NumeroPannello(5), 1);
    EXPECT_EQ(Immagine(), prima);
    Scatti(1);
    EXPECT_EQ(Passi(), 1);
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
}

TEST_F(ATempo, FirstWaitEndsWithTheClockStartedWhateverElseHappens) {
    partita_.ApriMenu();
    double fine = 0;
    Fra(0.3 + 1, [&] {
        fine = partita_.Tempo.Now() + TreSecondi - 1;
        Fra(TreSecondi - 1 - UnIstante, [&] { EXPECT_FALSE(Orologio().Enabled()); });
        const QImage prima = Immagine();
        Scegli("mnuRicomincia");
        Partita::ViaERitorno(Gioco());  // which makes no new maze
        EXPECT_EQ(Immagine(), prima);
        Scegli("mnuPausa");
        EXPECT_TRUE(Orologio().Enabled());
        Scegli("mnuPausa");
        Tasto(AllaDestra);
    });
    partita_.AvviaLivello(5);
    EXPECT_NEAR(partita_.Tempo.Now(), fine, 1e-6);
    EXPECT_TRUE(Orologio().Enabled());
    EXPECT_EQ(Soli(), 5);
    Scatti(2);  // the arrow leads the first step, into a wall, and none after it
    EXPECT_EQ(Soli(), 4);
}

TEST_F(ATempo, ANewMazeHasAllSunsAndAWaitOfItsOwn) {
    Apri(5);
    Sbaglia(2);
    const double inizio = partita_.Tempo.Now();
    Fra(2, [&] { CtrlN(); });
    Fra(4, [&] { EXPECT_FALSE(Orologio().Enabled()); });
    CtrlN();
    EXPECT_NEAR(partita_.Tempo.Now(), inizio + 2 + TreSecondi, 1e-6);
    EXPECT_EQ(Soli(), 5);
    EXPECT_EQ(IlTavolo().Urti(), 0);
    EXPECT_TRUE(Orologio().Enabled());
}

}  // namespace
}  // namespace trameli
