// The main menu: its highlight, its levels, and play without a mouse.
#include <gtest/gtest.h>

#include <QImage>
#include <map>

#include "game/partita.h"
#include "platform/combo_box.h"
#include "platform/command_button.h"
#include "platform/option_button.h"
#include "platform/shape.h"

namespace trameli {
namespace {

using Nomi = std::vector<std::string>;

constexpr QRgb Rosso = qRgb(255, 0, 0);
constexpr QRgb Arancione = qRgb(255, 128, 0);
constexpr QRgb Bianco = qRgb(255, 255, 255);
constexpr QRgb Grigio = qRgb(224, 224, 224);

/// The menu after its timer has run, with the saved settings.
class Menu : public testing::Test {
protected:
    Form& Apri(const FileUtente& file = {}) {
        disco_.Scrivi("_predefinito", file);
        return partita_.ApriMenu();
    }

    Form& Finestra() { return partita_.Finestra("FormMenu"); }
    OptionButton& Livello(int i) { return Trova<OptionButton>(Finestra(), "Option1", i); }
    CommandButton& Bottone(int i) { return Trova<CommandButton>(Finestra(), "Command1", i); }
    VisualControl& Cornice() { return Trova<VisualControl>(Finestra(), "Frame1"); }

    /// What the eye sees between outline and picture.
    static QRgb Tinta(const OptionButton& opzione) {
        const QImage immagine = Shot(opzione);
        return immagine.pixel(immagine.width() * 9 / 10, immagine.height() / 4);
    }
    static QRgb Tinta(const CommandButton& bottone) {
        const QImage immagine = Shot(bottone);
        return immagine.pixel(immagine.width() / 6, immagine.height() / 2);
    }
    std::vector<QRgb> TinteLivelli() {
        std::vector<QRgb> tinte;
        for (int i = 0; i < NumeroLivelliGioco; ++i) {
            tinte.push_back(Tinta(Livello(i)));
        }
        return tinte;
    }

    /// Moves the pointer to a point of a control, in parts of its size.
    static void Su(QWidget& widget, double x, double y) {
        MoveOver(widget,
                 {static_cast<int>(widget.width() * x), static_cast<int>(widget.height() * y)});
    }
    void SuSfondo() { Su(*WidgetOf(Cornice()).parentWidget(), 0.5, 0.75); }
    /// A place of the frame inside a band, right of its options.
    void SuCornice() { Su(WidgetOf(Cornice()), 0.9, 0.23); }

    Disco disco_;
    Partita partita_{disco_};
};

/// All white but for some.
std::vector<QRgb> Bianchi(const std::map<int, QRgb>& tranne) {
    std::vector<QRgb> tinte(NumeroLivelliGioco, Bianco);
    for (const auto& [livello, tinta] : tranne) {
        tinte[static_cast<std::size_t>(livello)] = tinta;
    }
    return tinte;
}

TEST_F(Menu, OptionStaysOrangeUntilThePointerCrossesTheFrameOrAnotherIsChosen) {
    Apri(FileUtente().Con(RigaLivello, 3));
    MoveOver(Livello(1));
    EXPECT_EQ(TinteLivelli(), Bianchi({{3, Rosso}, {1, Arancione}}));
    MoveOver(Livello(3));  // the chosen one too, and straight to the next: both stay
    const auto accesi = Bianchi({{1, Arancione}, {3, Arancione}});
    EXPECT_EQ(TinteLivelli(), accesi);
    SuSfondo();
    MoveOver(Bottone(0));
    EXPECT_EQ(TinteLivelli(), accesi);
    SuCornice();
    EXPECT_EQ(TinteLivelli(), Bianchi({{3, Rosso}}));

    MoveOver(Livello(15));
    ClickOn(Livello(14));
    EXPECT_EQ(TinteLivelli(), Bianchi({{14, Rosso}}));
}

TEST_F(Menu, ButtonStaysRedUntilThePointerCrossesOtherButtonFormOrFrame) {
    Apri();
    const auto bottoni = [this] { return std::vector<QRgb>{Tinta(Bottone(0)), Tinta(Bottone(1))}; };
    const std::vector<QRgb> spenti{Grigio, Grigio};
    EXPECT_EQ(bottoni(), spenti);
    MoveOver(Bottone(0));
    EXPECT_EQ(bottoni(), (std::vector<QRgb>{Rosso, Grigio}));
    MoveOver(Bottone(1));
    MoveOver(Livello(8));  // an option does not put a button out
    EXPECT_EQ(bottoni(), (std::vector<QRgb>{Grigio, Rosso}));
    SuCornice();
    EXPECT_EQ(bottoni(), spenti);
    MoveOver(Bottone(0));
    SuSfondo();
    EXPECT_EQ(bottoni(), spenti);
}

TEST_F(Menu, IsPlayedWithTheKeyboardAlone) {
    disco_.Scrivi("Anna");
    Apri(FileUtente().Con(RigaLivello, 8));
    EXPECT_TRUE(WidgetOf(Livello(8)).hasFocus());
    Tap(Finestra(), Qt::Key_Right);
    EXPECT_EQ(partita_.Gioco.Stato().Livello, 9);
    EXPECT_EQ(TinteLivelli(), Bianchi({{9, Rosso}}));
    for (const VisualControl* prossimo : std::initializer_list<const VisualControl*>{
             &Bottone(0), &Trova<ComboBox>(Finestra(), "Combo1"), &Bottone(1)}) {
        Tap(Finestra(), Qt::Key_Tab);
        EXPECT_TRUE(WidgetOf(*prossimo).hasFocus()) << prossimo->Name();
    }
    Tap(Finestra(), Qt::Key_Backtab);
    Tap(Finestra(), Qt::Key_Backtab);
    Tap(Finestra(), Qt::Key_Space);
    EXPECT_EQ(partita_.Aperte(), Nomi{"frmTrm3"});
}

TEST_F(Menu, TheKeyboardIsAtTheCurrentLevelFromTheFirstKeyOn) {
    disco_.Scrivi("_predefinito", FileUtente().Con(RigaLivello, 8));
    Tap(partita_.ApriMenu(false), Qt::Key_Space);
    EXPECT_EQ(partita_.Gioco.Stato().Livello, 8);
}

TEST_F(Menu, StartedBeforeItsTimerHasRunItIsAsAfterIt) {
    disco_.Scrivi("_predefinito", FileUtente().Con(RigaLivello, 15));
    partita_.ApriMenu(false);
    ClickOn(Bottone(0));
    ASSERT_EQ(partita_.Aperte(), Nomi{"frmTrm3"});
    EXPECT_EQ(Tavolo(partita_.Finestra("frmTrm3"), 15).Muri().Interni(), 565 - 299);
    partita_.Tempo.Advance(1);  // the menu's timer went with the menu
    EXPECT_EQ(partita_.Aperte(), Nomi{"frmTrm3"});
}

TEST_F(Menu, TimedLevelsAreOnlyForTheKeyboard) {
    struct {
        int ModoInput, Salvato, Mostrato;
    } const casi[] = {{0, 6, 6}, {0, 9, 9}, {1, 5, 4}, {2, 7, 4}, {2, 8, 8}};
    for (const auto& [modo, salvato, mostrato] : casi) {
        for (const bool pronto : {true, false}) {  // or started before the timer has run
            SCOPED_TRACE(testing::Message() << modo << ", " << salvato << ", " << pronto);
            const FileUtente file = FileUtente().Con(RigaModoInput, modo);
            disco_.Scrivi("_predefinito", file.Con(RigaLivello, salvato));
            Partita partita(disco_);
            Form& menu = partita.ApriMenu(pronto);
            if (pronto) {
                EXPECT_TRUE(Trova<OptionButton>(menu, "Option1", mostrato).Value());
                for (int i = 0; i < NumeroLivelliGioco; ++i) {
                    const QWidget& opzione = WidgetOf(Trova<OptionButton>(menu, "Option1", i));
                    EXPECT_EQ(opzione.isEnabled(), modo == 0 || i < 5 || i > 7) << i;
                }
                EXPECT_EQ(Trova<Shape>(menu, "Shape2").BorderColor(),
                          modo == 0 ? Rgb(255, 128, 128) : White);
            }
            ClickOn(Trova<CommandButton>(menu, "Command1", 0));
            EXPECT_EQ(partita.Gioco.Stato().Livello, mostrato);
            if (pronto) {  // the changed level is what is saved
                EXPECT_EQ(disco_.Leggi("_predefinito"), file.Con(RigaLivello, mostrato).Bytes());
            }
        }
    }
}

}  // namespace
}  // namespace trameli
