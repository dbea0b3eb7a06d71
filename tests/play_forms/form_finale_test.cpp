// The congratulations: what can be pressed when, by hand and by switch, and where it leads.
#include <QAbstractButton>
#include <QKeyEvent>
#include <QTest>
#include <QWindow>

#include "base/griglie.h"
#include "base/rounding.h"
#include "play_forms/finale.h"

namespace trameli {
namespace {

using Richieste = std::vector<std::string>;

const Richieste MusicaAvviata = {"close", "open P:\\suoni\\coppa.mid", "play"};

class FormFinaleTest : public FinaleTest {};

TEST_F(FormFinaleTest, TellsThePlayerAndTheLevel) {
    FormFinale& form = AvviaEMostra();
    EXPECT_EQ(form.LabelNome.Caption(), "Giulia");
    EXPECT_EQ(form.Label1.Caption(), "Complimenti!");
    EXPECT_EQ(form.Label2.Caption(), "4\r\n");
    EXPECT_EQ(form.Command1.Caption(), "Resta a questo livello");
    EXPECT_EQ(form.Command2.Caption(), "Vai al prossimo livello");
}

TEST_F(FormFinaleTest, KeepsItsLayoutWholeInTheMiddleOfEveryScreen) {
    for (const QSize schermo : {QSize(800, 600), QSize(1366, 768), QSize(1920, 1080),
                                QSize(3840, 2160), QSize(1080, 1920)}) {
        SCOPED_TRACE(testing::Message() << schermo.width() << " x " << schermo.height());
        Avvia(schermo.width(), schermo.height());
        FormFinale& form = Mostra();
        const double pixel = Programma().Screen().TwipsPerPixelX();
        const double left = form.Image1.Left() - 2520;
        const double top = form.Image1.Top() - 1080;
        EXPECT_NEAR(left, (form.Width() - 9915) / 2, pixel);
        EXPECT_NEAR(top, (form.Height() - 7680) / 2, pixel);
        EXPECT_EQ(form.LabelNome.Place(), (Bounds{3000 + left, 5760 + top, 3375, 495}));
        EXPECT_EQ(form.Label1.Place(), (Bounds{360 + left, 3120 + top, 2415, 855}));
        EXPECT_EQ(form.Label2.Place(), (Bounds{360 + left, 3960 + top, 3855, 3135}));
        EXPECT_EQ(form.Image1.Place(), (Bounds{2520 + left, 1080 + top, 4515, 5475}));
        EXPECT_EQ(form.Command1.Place(), (Bounds{7440 + left, 5040 + top, 1935, 735}));
        EXPECT_EQ(form.Command2.Place(), (Bounds{7440 + left, 5880 + top, 1935, 735}));
        for (const VisualControl* controllo : std::initializer_list<const VisualControl*>{
                 &form.Image1, &form.Label1, &form.Label2, &form.Command1, &form.Command2}) {
            EXPECT_TRUE(WindowOf(form).rect().contains(WidgetOf(*controllo).geometry()));
        }
    }
}

// The first second.

TEST_F(FormFinaleTest, CannotBeAnsweredInTheFirstSecond) {
    for (const int modo : {0, 1, 2}) {
        Stato.ModoInput = Saturated(modo);
        Uditi.Asked.clear();
        Avvia();
        int controlli = 0;
        for (const double quando : {0.0, 0.5, 0.99}) {
            Tempo.In(quando, [&] {
                FormFinale& form = Finale();
                EXPECT_TRUE(form.Command1.Visible());
                EXPECT_EQ(Uditi.Asked, MusicaAvviata);
                Tap(form, Qt::Key_Space);
                Tap(form, Qt::Key_Return);
                ClickOn(form.Command1);
                ClickOn(form.Command2);
                EXPECT_FALSE(form.Command1.Enabled());
                EXPECT_FALSE(form.Command2.Enabled());
                EXPECT_EQ(Evidenziato(), 0);
                EXPECT_EQ(Tempo.TimersRunning(), 0);
                ++controlli;
            });
        }
        FormFinale& form = Mostra();
        EXPECT_EQ(controlli, 3);
        EXPECT_TRUE(form.Command1.Enabled());
        EXPECT_TRUE(form.Command2.Enabled());
        EXPECT_EQ(Evidenziato(), 1);
        EXPECT_FALSE(Aperto("frmTrm0"));
    }
}

TEST_F(FormFinaleTest, StrokeBegunInTheFirstSecondAnswersNothing) {
    for (const int modo : {0, 2}) {
        Stato.ModoInput = Saturated(modo);
        for (const int tasto : {Qt::Key_Space, Qt::Key_Return}) {
            Avvia();
            Tempo.In(0.9, [&] { Press(Finale(), tasto); });
            Release(Mostra(), tasto);
            EXPECT_TRUE(Aperto("FormFinale"));
            Tap(Finale(), tasto);
            EXPECT_FALSE(Aperto("FormFinale"));
        }
    }
}

TEST_F(FormFinaleTest, ClosedInTheFirstSecondIsGone) {
    Avvia();
    Programma().Show("Altro");
    Pump();
    Tempo.In(0.5, [&] { WindowOf(Finale()).close(); });
    Programma().Show("FormFinale");
    Pump();
    EXPECT_FALSE(Aperto("FormFinale"));
    EXPECT_EQ(Uditi.Asked.back(), "close");
    EXPECT_EQ(Tempo.TimersRunning(), 0);
    EXPECT_FALSE(Programma().Ended());
    Tempo.Advance(3);
}

TEST_F(FormFinaleTest, ProgramEndedInTheFirstSecondRunsNothingMore) {
    Avvia();
    Tempo.In(0.5, [&] { Programma().End(); });
    FormFinale& form = Mostra();
    EXPECT_FALSE(form.Command1.Enabled());
    EXPECT_EQ(Uditi.Asked, MusicaAvviata);
}

TEST_F(FormFinaleTest, ComingBackToTheFrontStartsNothingAnew) {
    Avvia();
    const auto vaiEVieni = [&] {
        Programma().Show("Altro");
        Pump();
        Programma().Show("FormFinale");
        Pump();
        EXPECT_TRUE(WindowOf(Finale()).isActiveWindow());
    };
    double inizio = 0;
    Tempo.In(0, [&] { inizio = Tempo.Now(); });
    Tempo.In(0.6, [&] {
        vaiEVieni();
        EXPECT_EQ(Tempo.WaitsUnderWay(), 1);
        EXPECT_FALSE(Finale().Command1.Enabled());
    });
    FormFinale& form = Mostra();
    EXPECT_DOUBLE_EQ(Tempo.Now(), inizio + AttesaIniziale);
    EXPECT_TRUE(form.Command1.Enabled());
    Tab();
    ASSERT_EQ(Evidenziato(), 2);
    vaiEVieni();
    EXPECT_EQ(Evidenziato(), 2);
    EXPECT_EQ(Uditi.Asked, MusicaAvviata);
    EXPECT_TRUE(form.Command1.Enabled());
}

// Where the buttons lead.

TEST_F(FormFinaleTest, StaysAtTheLevelOrGoesToTheNextWithItsGrid) {
    constexpr DimensioniGriglia prima{33, 44};
    for (std::int16_t livello = 0; livello < NumeroLivelli; ++livello) {
        for (const bool avanti : {false, true}) {
            if (avanti && livello == NumeroLivelli - 1) {
                continue;
            }
            SCOPED_TRACE(testing::Message() << livello << (avanti ? ", on" : ", stay"));
            Stato.Livello = livello;
            Stato.RigheGriglia = prima.Righe;
            Stato.ColonneGriglia = prima.Colonne;
            Stato.TrameloDisegnato = true;
            Uditi.Asked.clear();
            FormFinale& form = AvviaEMostra();
            ClickOn(avanti ? form.Command2 : form.Command1);
            EXPECT_FALSE(Aperto("FormFinale"));
            EXPECT_EQ(Uditi.Asked.size(), MusicaAvviata.size() + 1);
            EXPECT_EQ(Uditi.Asked.back(), "close");

            const int dopo = livello + (avanti ? 1 : 0);
            EXPECT_EQ(Stato.Livello, dopo);
            EXPECT_TRUE(Aperto(dopo < 5 ? "frmTrm0" : dopo < 8 ? "frmTrm1" : "frmTrm3"));
            EXPECT_EQ(Stato.TrameloDisegnato, !avanti);
            EXPECT_EQ((DimensioniGriglia{Stato.RigheGriglia, Stato.ColonneGriglia}),
                      avanti && dopo >= 8 ? DimensioniDi(dopo) : prima);
        }
    }
}

TEST_F(FormFinaleTest, OffersNothingAfterTheLastLevelAndStillEnds) {
    for (const int modo : {0, 1, 2}) {
        Stato.ModoInput = Saturated(modo);
        Stato.Livello = 15;
        Avvia();
        Tempo.In(0.5, [&] { EXPECT_TRUE(Finale().Command2.Visible()); });
        FormFinale& form = Mostra();
        EXPECT_FALSE(form.Command2.Visible());
        Tab();
        Tempo.Advance(7.3);
        if (modo == 1) {
            Tap(form, Qt::Key_Space);
        }
        EXPECT_EQ(Evidenziato(), 1) << modo;
        Tap(form, Qt::Key_Return);
        EXPECT_TRUE(Aperto("frmTrm3")) << modo;
        EXPECT_EQ(Stato.Livello, 15);
    }
}

// Keyboard and switches.

TEST_F(FormFinaleTest, WithTheKeyboardNothingMovesByItself) {
    FormFinale& form = AvviaEMostra();
    EXPECT_EQ(Tempo.TimersRunning(), 0);
    Tempo.Advance(60);
    EXPECT_EQ(Evidenziato(), 1);
    Tab();
    EXPECT_EQ(Evidenziato(), 2);
    Tap(form, Qt::Key_Space);
    EXPECT_EQ(Stato.Livello, 4);
}

TEST_F(FormFinaleTest, WithTwoSwitchesSpaceMovesAndEnterPresses) {
    Stato.ModoInput = 1;
    for (int colpi = 0; colpi < 5; ++colpi) {
        Stato.Livello = 2;
        FormFinale& form = AvviaEMostra();
        EXPECT_EQ(Tempo.TimersRunning(), 0);
        for (int colpo = 0; colpo < colpi; ++colpo) {
            EXPECT_EQ(Evidenziato(), 1 + colpo % 2);
            Press(form, Qt::Key_Space);
            EXPECT_EQ(Evidenziato(), 1 + colpo % 2) << "it is the release that moves";
            Release(form, Qt::Key_Space);
            EXPECT_EQ(Evidenziato(), 2 - colpo % 2);
        }
        Tap(form, Qt::Key_Return);
        EXPECT_FALSE(Aperto("FormFinale"));
        EXPECT_EQ(Stato.Livello, 2 + colpi % 2);
    }
}

TEST_F(FormFinaleTest, SpaceThatMovesNeverReachesTheButtonAndMovesOnceHoweverLong) {
    Stato.ModoInput = 1;
    FormFinale& form = AvviaEMostra();
    int viste = 0;
    form.Command1.KeyUp = [&](int, int) { ++viste; };
    form.Command2.KeyUp = form.Command1.KeyUp;
    Press(form, Qt::Key_Space);
    for (int i = 0; i < 20; ++i) {
        for (const QEvent::Type tipo : {QEvent::KeyRelease, QEvent::KeyPress}) {
            QKeyEvent ripetuto(tipo, Qt::Key_Space, Qt::NoModifier, " ", true);
            QCoreApplication::sendEvent(static_cast<QObject*>(WindowOf(form).windowHandle()),
                                        &ripetuto);
        }
    }
    EXPECT_EQ(Evidenziato(), 1);
    EXPECT_FALSE(dynamic_cast<QAbstractButton&>(WidgetOf(form.Command1)).isDown());
    Release(form, Qt::Key_Space);
    EXPECT_EQ(Evidenziato(), 2);
    EXPECT_EQ(viste, 0);
    Tap(form, Qt::Key_A);
    EXPECT_EQ(viste, 1);
}

TEST_F(FormFinaleTest, WithOneSwitchTheFocusMovesAndSpacePresses) {
    Stato.ModoInput = 2;
    for (const int velocita : {2, 4, 60}) {
        Stato.VelocitaScansione = Saturated(velocita);
        const double passo = velocita * 0.25;
        for (int passi = 0; passi < 4; ++passi) {
            Stato.Livello = 2;
            FormFinale& form = AvviaEMostra();
            for (int i = 0; i < passi; ++i) {
                EXPECT_EQ(Evidenziato(), 1 + i % 2);
                Tempo.Advance(passo - 0.01);
                EXPECT_EQ(Evidenziato(), 1 + i % 2);
                Tempo.Advance(0.01);
                EXPECT_EQ(Evidenziato(), 2 - i % 2);
            }
            Tap(form, Qt::Key_Space);
            EXPECT_FALSE(Aperto("FormFinale"));
            EXPECT_EQ(Stato.Livello, 2 + passi % 2);
            EXPECT_EQ(Tempo.TimersRunning(), 0);
        }
    }
}

TEST_F(FormFinaleTest, PressesWhatWasOfferedWhenTheSwitchWentDown) {
    Stato.ModoInput = 2;
    FormFinale& form = AvviaEMostra();
    Tempo.Advance(1);
    ASSERT_EQ(Evidenziato(), 2);
    Press(form, Qt::Key_Space);
    Tempo.Advance(10);
    EXPECT_EQ(Evidenziato(), 2);
    Release(form, Qt::Key_Space);
    EXPECT_EQ(Stato.Livello, 4);
}

TEST_F(FormFinaleTest, GoesOnOfferingAfterAStrokeThatWasLost) {
    Stato.ModoInput = 2;
    FormFinale& form = AvviaEMostra();
    Press(form, Qt::Key_Space);
    Programma().Show("Altro");
    Pump();
    Release(*Programma().Find("Altro"), Qt::Key_Space);
    Programma().Show("FormFinale");
    Pump();
    EXPECT_EQ(Evidenziato(), 1);
    Tempo.Advance(1);
    EXPECT_EQ(Evidenziato(), 2);
    EXPECT_EQ(Stato.Livello, 3);
}

}  // namespace
}  // namespace trameli
