// The congratulations: what can be pressed when, by hand and by switch, where it leads, and the
// ground they stand on.
#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "game/interruttori.h"
#include "platform/command_button.h"
#include "platform/label.h"
#include "platform/qt/surface_native.h"

namespace trameli {
namespace {

using Richieste = std::vector<std::string>;

class Finale : public testing::Test {
protected:
    /// A new run of the program, for a player who has just finished level 4.
    void Avvia(std::int16_t modo = Tastiera) {
        partita_.emplace(disco_, PixelSize{1024, 768});
        Stato().Livello = 3;
        Stato().NomeGiocatore = "Giulia";
        Stato().ModoInput = modo;
    }
    /// Shows the window and lets its first second pass.
    Form& Mostra() {
        partita_->Gioco.Forms().Show("FormFinale");
        Pump();
        return Finestra();
    }
    /// The same in a new run, until switches are listened to as well.
    Form& AvviaEMostra() {
        Avvia();
        Mostra();
        Tempo().Advance(DopoUnaNovita);
        return Finestra();
    }

    trameli::Stato& Stato() { return partita_->Gioco.Stato(); }
    HandClock& Tempo() { return partita_->Tempo; }
    Richieste& Chiesti() { return partita_->Suoni.Asked; }
    Form& Finestra() { return partita_->Finestra("FormFinale"); }
    bool Aperta() { return partita_->Aperta("FormFinale"); }
    CommandButton& Bottone(int quale) {
        return Trova<CommandButton>(Finestra(), "Command" + std::to_string(quale));
    }
    /// Which button has the keyboard and shows it: 1, 2, or 0 for neither.
    int Evidenziato() {
        int evidenziato = 0;
        for (const int quale : {1, 2}) {
            const bool ha = WidgetOf(Bottone(quale)).hasFocus();
            EXPECT_EQ(ha, Bottone(quale).BackColor() != ButtonFace);
            evidenziato = ha ? quale : evidenziato;
        }
        return evidenziato;
    }

    Disco disco_;
    std::optional<Partita> partita_;
};

TEST_F(Finale, TellsPlayerAndLevelInTheMiddleOfTheWindowWhateverItsSize) {
    const Form& form = AvviaEMostra();
    EXPECT_EQ(Trova<Label>(form, "LabelNome").Caption(), "Giulia");
    EXPECT_NE(Trova<Label>(form, "Label2").Caption().find('4'), std::string::npos);
    const double pixel = form.Forms().Screen().TwipsPerPixelX();
    for (const QSize misura : {QSize(1366, 768), QSize(801, 601), QSize(1080, 1920)}) {
        WindowOf(form).resize(misura);
        Pump();
        const double scala = std::min(form.Width() / 9915, form.Height() / 7680);
        const double left = (form.Width() - scala * 9915) / 2 + scala * 7440;
        const double top = (form.Height() - scala * 7680) / 2 + scala * 5880;
        EXPECT_NEAR(Bottone(2).Left(), left, pixel);
        EXPECT_NEAR(Bottone(2).Top(), top, pixel);
        EXPECT_NEAR(Bottone(2).Width(), scala * 1935, pixel);
    }
}

TEST_F(Finale, CannotBeAnsweredInTheFirstSecond) {
    for (const std::int16_t modo : {Tastiera, ScansioneManuale, ScansioneAutomatica}) {
        Avvia(modo);
        for (const double quando : {0.0, 0.99}) {
            Tempo().In(quando, [&] {
                EXPECT_EQ(Chiesti(), Richieste{"music P:\\suoni\\coppa.mid"});
                Tap(Finestra(), Qt::Key_Space);
                Tap(Finestra(), Qt::Key_Return);
                ClickOn(Bottone(1));
                ClickOn(Bottone(2));
                EXPECT_EQ(Evidenziato(), 0);
            });
        }
        // Begun too early, a stroke answers nothing.
        Tempo().In(0.995, [&] { Press(Finestra(), Qt::Key_Return); });
        Release(Mostra(), Qt::Key_Return);
        ASSERT_TRUE(Aperta());
        EXPECT_EQ(Evidenziato(), 1);
        Tempo().Advance(DopoUnaNovita);
        Tap(Finestra(), Qt::Key_Return);
        EXPECT_FALSE(Aperta());
    }
    Avvia(ScansioneAutomatica);
    Tempo().In(0.5, [&] { Partita::Chiudi(Finestra()); });
    partita_->Gioco.Forms().Show("FormFinale");
    Pump();
    EXPECT_EQ(Chiesti().back(), "stop");
}

TEST_F(Finale, ComingBackToTheFrontStartsNothingAnew) {
    Avvia(ScansioneAutomatica);
    const double inizio = Tempo().Now();
    Tempo().In(0.6, [&] { Partita::ViaERitorno(Finestra()); });
    Mostra();
    EXPECT_DOUBLE_EQ(Tempo().Now(), inizio + 1);
    // A switch that was let go in another window.
    Press(Finestra(), Qt::Key_Space);
    Partita::ViaERitorno(Finestra());
    Tempo().Advance(Giro);
    EXPECT_EQ(Evidenziato(), 2);
    EXPECT_EQ(Chiesti().size(), 1U);
}

TEST_F(Finale, WithOneSwitchTheFocusMovesAndSpacePressesWhatWasOfferedWhenItWentDown) {
    Avvia(ScansioneAutomatica);
    Stato().VelocitaScansione = 60;
    Form& form = Mostra();
    for (const int offerto : {1, 2, 1}) {
        Tempo().Advance(15 - 0.01);
        EXPECT_EQ(Evidenziato(), offerto);
        Tempo().Advance(0.01);
    }
    Press(form, Qt::Key_Space);
    Tempo().Advance(100);
    EXPECT_EQ(Evidenziato(), 2);
    Release(form, Qt::Key_Space);
    EXPECT_EQ(Stato().Livello, 4);
}

TEST_F(Finale, StandsOnAnEllipseThatFillsTheWindow) {
    Form& form = AvviaEMostra();
    for (const QSize misura : {QSize(800, 600), QSize(481, 853)}) {
        // A window may still change its size after it came up.
        WindowOf(form).resize(misura);
        Pump();
        const QImage visto = form.Canvas().SurfaceNative().Image();
        ASSERT_EQ(visto.size(), misura);
        EXPECT_EQ(visto.pixel(0, 0), qRgb(0, 0, 32));
        // From an eighth of the full brightness at the edge to nearly all of it in the middle.
        for (int i = 1; i < 50; ++i) {
            const int atteso = 255 - 223 * std::abs(i - 25) / 25;
            const QPoint lungo(misura.width() * i / 50, misura.height() / 2);
            const QPoint attraverso(misura.width() / 2, misura.height() * i / 50);
            EXPECT_NEAR(QColor(visto.pixel(lungo)).value(), atteso, 8) << i;
            EXPECT_NEAR(QColor(visto.pixel(attraverso)).value(), atteso, 8) << i;
        }
    }
}

}  // namespace
}  // namespace trameli
