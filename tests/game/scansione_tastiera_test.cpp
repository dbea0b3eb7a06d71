// Where the keyboard is while a player has one key or two, and that it is never lost.
#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QWindow>
#include <string>
#include <tuple>

#include "game/interruttori.h"
#include "platform/command_button.h"
#include "platform/qt/form_window.h"

namespace trameli {
namespace {

class OgniTastiera : public ConInterruttori, public testing::WithParamInterface<Caso> {};

INSTANTIATE_TEST_SUITE_P(Casi, OgniTastiera, testing::ValuesIn(CasiDiScansione), NomeCaso);

TEST_P(OgniTastiera, AHeldSwitchIsOneStroke) {
    const auto [livello, modo] = GetParam();
    const Tavolo tavolo = Apri(livello, modo);
    Tic();
    const int tasto = modo == Manuale ? Qt::Key_Return : Qt::Key_Space;
    QWindow* const finestra = WindowOf(tavolo.Form_).windowHandle();
    Press(tavolo.Form_, tasto);
    for (int i = 0; i < 30; ++i) {
        for (const QEvent::Type tipo : {QEvent::KeyRelease, QEvent::KeyPress}) {
            QKeyEvent ripetuto(tipo, tasto, Qt::NoModifier, QString(), true);
            QApplication::sendEvent(finestra, &ripetuto);
        }
    }
    EXPECT_EQ(tavolo.Urti() + tavolo.Passi(), 0);
    Release(tavolo.Form_, tasto);
    EXPECT_EQ(tavolo.Urti() + tavolo.Passi(), 1);
}

TEST_P(OgniTastiera, TheKeyboardComesBackFromAClick) {
    const auto [livello, modo] = GetParam();
    const Tavolo tavolo = Apri(livello, modo);
    Tic();
    auto& labirinto = Trova<PictureBox>(tavolo.Form_, "pictureTramelo");
    ClickOn(labirinto);
    EXPECT_TRUE(WidgetOf(labirinto).hasFocus());
    Tic();
    EXPECT_TRUE(ImmagineTasti(tavolo.Form_).hasFocus());
    // And a key that comes before the timer counts too.
    ClickOn(labirinto);
    Conferma(tavolo.Form_);
    EXPECT_EQ(tavolo.Urti() + tavolo.Passi(), 1);
}

TEST_P(OgniTastiera, NoMenuLosesTheKeyboardToTheTimer) {
    const auto [livello, modo] = GetParam();
    const Tavolo tavolo = Apri(livello, modo);
    Tic();
    QMenuBar* const barra = dynamic_cast<FormWindow&>(WindowOf(tavolo.Form_)).menuBar();
    barra->setFocus(Qt::MenuBarFocusReason);
    Tic(2);
    EXPECT_TRUE(barra->hasFocus());
    barra->setActiveAction(barra->actions().front());  // opens its menu
    Pump();
    QWidget* const menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    Tic(2);
    EXPECT_EQ(QApplication::activePopupWidget(), menu);
    EXPECT_FALSE(ImmagineTasti(tavolo.Form_).hasFocus());
    menu->close();
    barra->clearFocus();
    Tic();
    EXPECT_TRUE(ImmagineTasti(tavolo.Form_).hasFocus());
}

TEST_P(OgniTastiera, AnotherProgramKeepsTheKeyboard) {
    const auto [livello, modo] = GetParam();
    const Tavolo tavolo = Apri(livello, modo);
    Tic();
    QWidget altro;
    altro.show();
    altro.activateWindow();
    Pump();
    ASSERT_TRUE(altro.isActiveWindow());
    Tic(3);
    EXPECT_TRUE(altro.isActiveWindow());
    EXPECT_EQ(QApplication::activeWindow(), &altro);
    WindowOf(tavolo.Form_).activateWindow();
    Pump();
    Tic();
    EXPECT_TRUE(ImmagineTasti(tavolo.Form_).hasFocus());
}

TEST_P(OgniTastiera, AMenuOpenedWithTheMouseKeepsTheKeyboardToo) {
    const auto [livello, modo] = GetParam();
    const Tavolo tavolo = Apri(livello, modo);
    Tic();
    auto& labirinto = Trova<PictureBox>(tavolo.Form_, "pictureTramelo");
    ClickOn(labirinto);
    QMenu menu(&WindowOf(tavolo.Form_));
    menu.addAction("Voce");
    menu.popup({10, 10});
    Pump();
    ASSERT_EQ(QApplication::activePopupWidget(), &menu);
    Tic(2);
    EXPECT_EQ(QApplication::activePopupWidget(), &menu);
    EXPECT_TRUE(WidgetOf(labirinto).hasFocus());
    menu.close();
    Tic();
    EXPECT_TRUE(ImmagineTasti(tavolo.Form_).hasFocus());
}

/// What can be done to a solved maze by somebody who helps.
using Disturbo = void (*)(const Tavolo&);

struct Guaio {
    const char* Nome;
    Disturbo Fai;
    bool ConNuovo;  ///< the maze is not solved any more
};

CommandButton& Avanti(const Tavolo& tavolo) {
    return Trova<CommandButton>(tavolo.Form_, "BottoneAvanti");
}

const std::vector<Guaio> Guai{
    {"Click", [](const Tavolo& t) { ClickOn(Trova<PictureBox>(t.Form_, "pictureTramelo")); },
     false},
    {"TabAwayAndBack",
     [](const Tavolo& t) {
         ClickOn(Trova<PictureBox>(t.Form_, "pictureTramelo"));
         Avanti(t).SetFocus();
     },
     false},
    {"Restart", [](const Tavolo& t) { Partita::Scegli(t.Form_, "mnuRicomincia"); }, false},
    {"OtherWindow", [](const Tavolo& t) { Partita::ViaERitorno(t.Form_); }, false},
    {"NewMaze", [](const Tavolo& t) { Partita::Scegli(t.Form_, "mnuNuovo"); }, true},
};

class NessunoRestaFermo : public ConInterruttori,
                          public testing::WithParamInterface<std::tuple<int, int, std::size_t>> {};

std::string NomeGuaio(const testing::TestParamInfo<std::tuple<int, int, std::size_t>>& voce) {
    const auto& [livello, modo, guaio] = voce.param;
    return NomeCaso({{livello, modo}, 0}) + Guai.at(guaio).Nome;
}

INSTANTIATE_TEST_SUITE_P(Casi, NessunoRestaFermo,
                         testing::Combine(testing::Values(1, 9),
                                          testing::Values(Manuale, Automatica),
                                          testing::Range(std::size_t{0}, Guai.size())),
                         NomeGuaio);

TEST_P(NessunoRestaFermo, AfterASolvedMazeTheGameGoesOnWithTheSwitches) {
    const auto [livello, modo, quale] = GetParam();
    const Tavolo tavolo = Apri(livello, modo);
    int offerta = 0;
    Risolvi(tavolo, offerta);
    ASSERT_TRUE(tavolo.Risolto());
    const Guaio& guaio = Guai.at(quale);
    guaio.Fai(tavolo);
    Tic(2);
    if (!guaio.ConNuovo) {
        ASSERT_TRUE(tavolo.Risolto());
        Spazio(tavolo.Form_);
        // The timer runs again, and holds the keyboard.
        ClickOn(Trova<PictureBox>(tavolo.Form_, "pictureTramelo"));
        Tic();
        EXPECT_TRUE(ImmagineTasti(tavolo.Form_).hasFocus());
        offerta = (offerta + (modo == Automatica ? 1 : 0)) % NumeroDirezioni;
    } else if (modo == Automatica) {
        offerta = (offerta + 2) % NumeroDirezioni;
    }
    ASSERT_FALSE(tavolo.Risolto());
    Risolvi(tavolo, offerta);
    EXPECT_TRUE(tavolo.Risolto());
    EXPECT_EQ(tavolo.Urti(), 0);
}

}  // namespace
}  // namespace trameli
