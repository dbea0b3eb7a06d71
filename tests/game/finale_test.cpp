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

constexpr int NumeroSchemi = 7;

/// First draws the colour scheme.
class CasualeConSchema final : public Casuale {
public:
    explicit CasualeConSchema(int schema)
        : numero_((static_cast<float>(schema) + 0.5F) / NumeroSchemi) {}
    float Estrai() override { return std::exchange(numero_, altri_.Estrai()); }

private:
    float numero_;
    CasualeConSeme altri_{1};
};

class Finale : public testing::Test {
protected:
    /// A new run of the program, for a player who has just finished level 4.
    void Avvia(std::int16_t modo = Tastiera, int schema = 0) {
        partita_.emplace(disco_, PixelSize{1024, 768}, std::make_unique<CasualeConSchema>(schema));
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
    Form& AvviaEMostra(std::int16_t modo = Tastiera, int schema = 0) {
        Avvia(modo, schema);
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
    const std::pair<const char*, Bounds> disegno[] = {
        {"Image1", {2520, 1080, 4515, 5475}},  {"LabelNome", {3000, 5760, 3375, 495}},
        {"Label1", {360, 3120, 2415, 855}},    {"Label2", {360, 3960, 3855, 3135}},
        {"Command1", {7440, 5040, 1935, 735}}, {"Command2", {7440, 5880, 1935, 735}}};
    const Form& form = AvviaEMostra();
    EXPECT_EQ(Trova<Label>(form, "LabelNome").Caption(), "Giulia");
    EXPECT_NE(Trova<Label>(form, "Label2").Caption().find('4'), std::string::npos);
    const double pixel = form.Forms().Screen().TwipsPerPixelX();
    for (const QSize misura : {QSize(1366, 768), QSize(801, 601), QSize(1080, 1920)}) {
        WindowOf(form).resize(misura);
        Pump();
        for (const auto& [nome, posto] : disegno) {
            const Bounds qui = Trova<PlacedControl>(form, nome).Place();
            EXPECT_NEAR(qui.Left, posto.Left + (form.Width() - 9915) / 2, pixel) << nome;
            EXPECT_NEAR(qui.Top, posto.Top + (form.Height() - 7680) / 2, pixel) << nome;
            EXPECT_EQ(qui.Width, posto.Width);
            EXPECT_EQ(qui.Height, posto.Height);
        }
        EXPECT_EQ(WidgetOf(Bottone(2)).size(), QSize(129, 49));  // in whole pixels
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
                EXPECT_EQ(Tempo().TimersRunning(), 0);
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
    EXPECT_EQ(Tempo().TimersRunning(), 0);
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

TEST_F(Finale, GoesToANewMazeOrBackToTheOldOneAndEndsTheMusic) {
    for (const bool avanti : {false, true}) {
        AvviaEMostra();
        Stato().Livello = 8;
        Stato().RigheGriglia = 3;
        Stato().ColonneGriglia = 4;
        Stato().SuoniAttivi = avanti;  // they may have been on when the piece began
        Chiesti().clear();
        ClickOn(Bottone(avanti ? 2 : 1));
        EXPECT_EQ(partita_->Aperte(), Richieste{"frmTrm3"});
        EXPECT_EQ(Chiesti(), Richieste{"stop"});
        EXPECT_EQ(Stato().Livello, avanti ? 9 : 8);
        EXPECT_EQ(Stato().RigheGriglia, avanti ? 4 : 3);
    }
}

TEST_F(Finale, WithTwoSwitchesTheReleaseOfSpaceMovesOnceHoweverLong) {
    Form& form = AvviaEMostra(ScansioneManuale);
    Press(form, Qt::Key_Space);
    Tempo().Advance(10);
    EXPECT_EQ(Evidenziato(), 1);
    Release(form, Qt::Key_Space);
    EXPECT_EQ(Evidenziato(), 2);
    Tempo().Advance(DopoUnTasto);
    Tap(form, Qt::Key_Return);
    EXPECT_FALSE(Aperta());
    EXPECT_EQ(Stato().Livello, 4);
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

struct SchemaAtteso {
    bool Rosso, Verde, Blu;
    Colour Scritte;
};

constexpr SchemaAtteso Attesi[NumeroSchemi] = {
    {false, false, true, Rgb(255, 192, 128)}, {false, true, false, Rgb(255, 255, 0)},
    {true, false, false, Rgb(0, 0, 255)},     {false, true, true, Rgb(0, 0, 255)},
    {true, false, true, Rgb(255, 255, 0)},    {true, true, false, Rgb(255, 0, 0)},
    {true, true, true, Rgb(255, 0, 0)},
};

TEST_F(Finale, StandsOnEllipsesInOneOfSevenColours) {
    constexpr std::array<QSize, 3> misure{QSize(800, 600), QSize(481, 853), QSize(512, 512)};
    for (int schema = 0; schema < NumeroSchemi; ++schema) {
        Form& form = AvviaEMostra(Tastiera, schema);
        // A window may still change its size after it came up.
        const QSize misura = misure.at(static_cast<std::size_t>(schema) % misure.size());
        WindowOf(form).resize(misura);
        Pump();
        const QImage visto = form.Canvas().SurfaceNative().Image();
        ASSERT_EQ(visto.size(), misura);
        const auto& [rosso, verde, blu, scritte] = Attesi[schema];
        // From corner to corner: the bare ground, an eighth of the full brightness at the edge of
        // the largest ellipse, and nearly all of it in the middle.
        for (int i = 0; i < 100; ++i) {
            const double raggio = std::abs(i - 49.5) / 50 * std::sqrt(2.0);
            if (std::abs(raggio - 1) < 0.02) {
                continue;
            }
            const int luce = static_cast<int>(255 - 223 * raggio);
            const QRgb atteso = raggio > 1
                                    ? qRgb(0, 0, 32)
                                    : qRgb(rosso ? luce : 0, verde ? luce : 0, blu ? luce : 0);
            const QRgb qui = visto.pixel(misura.width() * i / 100, misura.height() * i / 100);
            EXPECT_NEAR(qRed(qui), qRed(atteso), 8) << schema << ", " << i;
            EXPECT_NEAR(qGreen(qui), qGreen(atteso), 8) << schema << ", " << i;
            EXPECT_NEAR(qBlue(qui), qBlue(atteso), 8) << schema << ", " << i;
        }
        EXPECT_EQ(Trova<Label>(form, "Label1").ForeColor(), scritte);
    }
}

}  // namespace
}  // namespace trameli
