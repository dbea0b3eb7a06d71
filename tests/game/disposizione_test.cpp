// Where the controls of the maze windows go, what a second activation does, and whose pointer is
// over the controls that matter.
#include <gtest/gtest.h>

#include "game/partita.h"
#include "platform/command_button.h"
#include "platform/image.h"
#include "platform/option_button.h"
#include "platform/picture_box.h"
#include "platform/status_bar.h"

namespace trameli {
namespace {

/// A level, and what its window has of its own.
struct Finestra {
    int Livello;
    const char* Nome;
    double AltezzaAvanti;      ///< twips
    double SottoIlBordoCoppa;  ///< from the button's upper edge down to the cups', twips
    bool Riscrive;             ///< a second activation writes the panels again
};

class Disposizione : public ConTavolo, public testing::WithParamInterface<Finestra> {};

INSTANTIATE_TEST_SUITE_P(Finestre, Disposizione,
                         testing::Values(Finestra{3, "frmTrm0", 660, 0, true},
                                         Finestra{8, "frmTrm3", 780, 307, false}),
                         [](const auto& voce) { return voce.param.Nome; });

TEST_P(Disposizione, ButtonAndCupsStandBelowTheMaze) {
    const Form& gioco = Apri(GetParam().Livello).Form_;
    const auto& tramelo = Trova<PictureBox>(gioco, "pictureTramelo");
    const double barra = Trova<StatusBar>(gioco, "StatusBar1").Height();
    const double alta = GetParam().AltezzaAvanti;
    const double sotto = GetParam().Livello == 3 ? alta + 2 * barra : 2 * alta;
    EXPECT_EQ(tramelo.Place(), (Bounds{0, 0, gioco.Width(), gioco.Height() - sotto}));
    EXPECT_EQ(Trova<CommandButton>(gioco, "BottoneAvanti").Place(),
              (Bounds{gioco.Width() - 2 * 1725, tramelo.Height(), 1725, alta}));
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(Trova<Image>(gioco, "Image1", i).Top(),
                  tramelo.Height() + GetParam().SottoIlBordoCoppa);
    }
}

TEST_P(Disposizione, ASecondActivationLeavesTheMazeAndWritesThePanelsOrNot) {
    const Tavolo tavolo = Apri(GetParam().Livello);
    tavolo.Passo(Contrario(tavolo.Partenza().Lato));
    const QImage prima = tavolo.Guarda().Immagine();
    const std::string livello = tavolo.Pannello(2);
    EXPECT_EQ(tavolo.Pannello(1), "_predefinito");
    EXPECT_EQ(livello, "Livello " + std::to_string(GetParam().Livello + 1));
    Trova<StatusBar>(tavolo.Form_, "StatusBar1").Panel(2, "altro");
    Partita::ViaERitorno(tavolo.Form_);
    EXPECT_EQ(tavolo.Pannello(2), GetParam().Riscrive ? livello : "altro");
    EXPECT_EQ(tavolo.Guarda().Immagine(), prima);
    EXPECT_EQ(tavolo.Passi(), 1);
}

class Puntatore : public testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(DelSistema, Puntatore, testing::Bool());

TEST_P(Puntatore, IsTheOneThatThePlayerChose) {
    const Disco disco;
    disco.Scrivi("_predefinito", FileUtente().Con(RigaPuntatore, GetParam() ? "True" : "False"));
    Partita partita(disco);
    const auto delSistema = [](const VisualControl& controllo) {
        return WidgetOf(controllo).cursor().shape() != Qt::BitmapCursor;
    };
    ASSERT_TRUE(partita.Avvia());
    const Form& avvio = partita.Finestra("FormAvvio");
    EXPECT_EQ(delSistema(Trova<CommandButton>(avvio, "Command1")), GetParam());
    EXPECT_EQ(delSistema(Trova<Image>(avvio, "Image1")), GetParam());  // the window's own

    ClickOn(Trova<CommandButton>(avvio, "Command1"));
    partita.Tempo.Advance(1);
    const Form& menu = partita.Finestra("FormMenu");
    for (int i = 0; i < NumeroLivelliGioco; ++i) {
        EXPECT_EQ(delSistema(Trova<OptionButton>(menu, "Option1", i)), GetParam()) << i;
    }
    for (const int i : {0, 1}) {
        EXPECT_EQ(delSistema(Trova<CommandButton>(menu, "Command1", i)), GetParam()) << i;
    }
    const Form& gioco = partita.ApriLivello(3);
    EXPECT_EQ(delSistema(Trova<CommandButton>(gioco, "BottoneAvanti")), GetParam());
}

}  // namespace
}  // namespace trameli
