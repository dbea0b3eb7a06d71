// The congratulations: what can be pressed when, by hand and by switch, and where it leads.
#include <QAbstractButton>
#include <QKeyEvent>
#include <QTest>
#include <QWindow>

#include "play_forms/finale.h"

namespace trameli {
namespace {

using Richieste = std::vector<std::string>;

const Richieste MusicaAvviata = {"music P:\\suoni\\coppa.mid"};

class FormFinaleTest : public FinaleTest {};

TEST_F(FormFinaleTest, TellsPlayerAndLevelInTheMiddleOfTheWindowWhateverItsSize) {
    Avvia(1366, 768);
    FormFinale& form = Mostra();
    EXPECT_EQ(form.LabelNome.Caption(), "Giulia");
    EXPECT_EQ(form.Label2.Caption(), "4\r\n");
    const double pixel = Programma().Screen().TwipsPerPixelX();
    for (const QSize misura : {QSize(1366, 768), QSize(801, 601), QSize(1080, 1920)}) {
        WindowOf(form).resize(misura);
        Pump();
        const double left = form.Image1.Left() - 2520;
        const double top = form.Image1.Top() - 1080;
        EXPECT_NEAR(left, (form.Width() - 9915) / 2, pixel);
        EXPECT_NEAR(top, (form.Height() - 7680) / 2, pixel);
        EXPECT_EQ(form.LabelNome.Place(), (Bounds{3000 + left, 5760 + top, 3375, 495}));
        EXPECT_EQ(form.Label1.Place(), (Bounds{360 + left, 3120 + top, 2415, 855}));
        EXPECT_EQ(form.Label2.Place(), (Bounds{360 + left, 3960 + top, 3855, 3135}));
        EXPECT_EQ(form.Command1.Place(), (Bounds{7440 + left, 5040 + top, 1935, 735}));
        EXPECT_EQ(form.Command2.Place(), (Bounds{7440 + left, 5880 + top, 1935, 735}));
        EXPECT_EQ(WidgetOf(form.Command2).size(), QSize(129, 49));  // in whole pixels
    }
}

// The first second.

TEST_F(FormFinaleTest, CannotBeAnsweredInTheFirstSecond) {
    for (const ModiInput modo : {Tastiera, ScansioneManuale, ScansioneAutomatica}) {
        Stato.ModoInput = modo;
        Uditi.Asked.clear();
        Avvia();
        for (const double quando : {0.0, 0.99}) {
            Tempo.In(quando, [&] {
                FormFinale& form = Finale();
                EXPECT_EQ(Uditi.Asked, MusicaAvviata);
                Tap(form, Qt::Key_Space);
                Tap(form, Qt::Key_Return);
                ClickOn(form.Command1);
                ClickOn(form.Command2);
                EXPECT_EQ(Evidenziato(), 0);
                EXPECT_EQ(Tempo.TimersRunning(), 0);
            });
        }
        // Begun too early, a stroke answers nothing.
        Tempo.In(0.995, [&] { Press(Finale(), Qt::Key_Return); });
        Release(Mostra(), Qt::Key_Return);
        ASSERT_TRUE(Aperto("FormFinale"));
        EXPECT_EQ(Evidenziato(), 1);
        Tap(Finale(), Qt::Key_Return);
        EXPECT_FALSE(Aperto("FormFinale"));
    }
}

TEST_F(FormFinaleTest, ClosedInTheFirstSecondIsGone) {
    Stato.ModoInput = ScansioneAutomatica;
    Avvia();
    Programma().Show("Altro");
    Pump();
    Tempo.In(0.5, [&] { WindowOf(Finale()).close(); });
    Programma().Show("FormFinale");
    Pump();
    EXPECT_FALSE(Aperto("FormFinale"));
    EXPECT_EQ(Uditi.Asked.back(), "stop");
    EXPECT_EQ(Tempo.TimersRunning(), 0);
    EXPECT_FALSE(Programma().Ended());
}

TEST_F(FormFinaleTest, ProgramEndedInTheFirstSecondRunsNothingMore) {
    Avvia();
    Tempo.In(0.5, [&] { Programma().End(); });
    EXPECT_FALSE(Mostra().Command1.Enabled());
}

TEST_F(FormFinaleTest, ComingBackToTheFrontStartsNothingAnew) {
    Stato.ModoInput = ScansioneAutomatica;
    Avvia();
    double inizio = 0;
    Tempo.In(0, [&] { inizio = Tempo.Now(); });
    Tempo.In(0.6, [&] {
        VaiEVieni();
        EXPECT_EQ(Tempo.WaitsUnderWay(), 1);
        EXPECT_EQ(Tempo.TimersRunning(), 0);
        EXPECT_FALSE(Finale().Command1.Enabled());
    });
    Mostra();
    EXPECT_DOUBLE_EQ(Tempo.Now(), inizio + 1);
    Tempo.Advance(1);
    ASSERT_EQ(Evidenziato(), 2);
    VaiEVieni();
    EXPECT_EQ(Evidenziato(), 2);
    EXPECT_EQ(Uditi.Asked, MusicaAvviata);
}

// Where the buttons lead.

TEST_F(FormFinaleTest, GoesToANewMazeOrBackToTheOldOneAndEndsTheMusic) {
    for (const bool avanti : {false, true}) {
        Stato.Livello = 8;
        Stato.TrameloDisegnato = true;
        FormFinale& form = AvviaEMostra();
        Stato.SuoniAttivi = avanti;  // they may have been on when the piece began
        Uditi.Asked.clear();
        ClickOn(avanti ? form.Command2 : form.Command1);
        EXPECT_FALSE(Aperto("FormFinale"));
        EXPECT_TRUE(Aperto("frmTrm3"));
        EXPECT_EQ(Uditi.Asked, Richieste{"stop"});
        EXPECT_EQ(Stato.Livello, avanti ? 9 : 8);
        EXPECT_EQ(Stato.TrameloDisegnato, !avanti);
    }
}

TEST_F(FormFinaleTest, OffersNothingAfterTheLastLevelAndStillEnds) {
    for (const ModiInput modo : {Tastiera, ScansioneManuale, ScansioneAutomatica}) {
        Stato.ModoInput = modo;
        Stato.Livello = 15;
        FormFinale& form = AvviaEMostra();
        EXPECT_FALSE(form.Command2.Visible());
        Tap(form, modo == ScansioneManuale ? Qt::Key_Space : Qt::Key_Tab);
        Tempo.Advance(7.3);
        EXPECT_EQ(Evidenziato(), 1) << modo;
        Tap(form, Qt::Key_Return);
        EXPECT_TRUE(Aperto("frmTrm3")) << modo;
        EXPECT_EQ(Stato.Livello, 15);
    }
}

// Keyboard and switches.

TEST_F(FormFinaleTest, WithTheKeyboardNothingMovesByItself) {
    FormFinale& form = AvviaEMostra();
    Tempo.Advance(60);
    EXPECT_EQ(Evidenziato(), 1);
    Tap(form, Qt::Key_Tab);
    EXPECT_EQ(Evidenziato(), 2);
    Tap(form, Qt::Key_Space);
    EXPECT_EQ(Stato.Livello, 4);
}

TEST_F(FormFinaleTest, WithTwoSwitchesTheReleaseOfSpaceMovesOnceHoweverLong) {
    Stato.ModoInput = ScansioneManuale;
    FormFinale& form = AvviaEMostra();
    int viste = 0;
    form.Command1.KeyUp = [&](int, int) { ++viste; };
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
    Tap(form, Qt::Key_Space);
    EXPECT_EQ(Evidenziato(), 1);
    Tap(form, Qt::Key_Return);
    EXPECT_FALSE(Aperto("FormFinale"));
    EXPECT_EQ(Stato.Livello, 3);
}

TEST_F(FormFinaleTest, WithOneSwitchTheFocusMovesAndSpacePresses) {
    Stato.ModoInput = ScansioneAutomatica;
    for (const std::int16_t velocita : std::initializer_list<std::int16_t>{2, 60}) {
        Stato.VelocitaScansione = velocita;
        Stato.Livello = 2;
        FormFinale& form = AvviaEMostra();
        for (const int offerto : {1, 2, 1}) {
            EXPECT_EQ(Evidenziato(), offerto);
            Tempo.Advance(velocita * 0.25 - 0.01);
            EXPECT_EQ(Evidenziato(), offerto);
            Tempo.Advance(0.01);
        }
        // What is pressed is what was offered when the switch went down.
        Press(form, Qt::Key_Space);
        Tempo.Advance(100);
        EXPECT_EQ(Evidenziato(), 2);
        Release(form, Qt::Key_Space);
        EXPECT_EQ(Stato.Livello, 3);
        EXPECT_EQ(Tempo.TimersRunning(), 0);
    }
}

TEST_F(FormFinaleTest, GoesOnOfferingAfterAStrokeThatWasLost) {
    Stato.ModoInput = ScansioneAutomatica;
    FormFinale& form = AvviaEMostra();
    Press(form, Qt::Key_Space);
    VaiEVieni([](Form& altro) { Release(altro, Qt::Key_Space); });
    EXPECT_EQ(Evidenziato(), 1);
    Tempo.Advance(1);
    EXPECT_EQ(Evidenziato(), 2);
    EXPECT_EQ(Stato.Livello, 3);
}

}  // namespace
}  // namespace trameli
