// Where the controls of the maze windows go, what a second activation writes, and whose pointer is
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

class Disposizione : public testing::TestWithParam<Finestra> {
protected:
    Disposizione() { partita_.ApriLivello(GetParam().Livello); }
    Form& Gioco() { return partita_.Finestra(GetParam().Nome); }

    Disco disco_;
    Partita partita_{disco_};
};

INSTANTIATE_TEST_SUITE_P(Finestre, Disposizione,
                         testing::Values(Finestra{3, "frmTrm0", 660, 0, true},
                                         Finestra{8, "frmTrm3", 780, 307, false}),
                         [](const auto& voce) { return voce.param.Nome; });

TEST_P(Disposizione, ButtonAndCupsStandBelowTheMaze) {
    const auto& tramelo = Trova<PictureBox>(Gioco(), "pictureTramelo");
    const double barra = Trova<StatusBar>(Gioco(), "StatusBar1").Height();
    const double alta = GetParam().AltezzaAvanti;
    const double sotto = GetParam().Livello == 3 ? alta + 2 * barra : 2 * alta;
    EXPECT_EQ(tramelo.Place(), (Bounds{0, 0, Gioco().Width(), Gioco().Height() - sotto}));
    EXPECT_EQ(Trova<CommandButton>(Gioco(), "BottoneAvanti").Place(),
              (Bounds{Gioco().Width() - 2 * 1725, tramelo.Height(), 1725, alta}));
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(Trova<Image>(Gioco(), "Image1", i).Top(),
                  tramelo.Height() + GetParam().SottoIlBordoCoppa);
    }
}

TEST_P(Disposizione, ASecondActivationWritesThePanelsOrLeavesThem) {
    auto& stato = Trova<StatusBar>(Gioco(), "StatusBar1");
    const std::string prima = stato.Panel(2);
    stato.Panel(2, "altro");
    Partita::ViaERitorno(Gioco());
    EXPECT_EQ(stato.Panel(2), GetParam().Riscrive ? prima : "altro");
}

class Puntatore : public testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(DelSistema, Puntatore, testing::Bool());

TEST_P(Puntatore, IsTheOneThatThePlayerChose) {
    const Disco disco;
    disco.Scrivi("_predefinito", FileUtente().Con(RigaPuntatore, GetParam() ? "True" : "False"));
    Partita partita(disco);
    const auto proprio = [](const VisualControl& controllo) {
        return WidgetOf(controllo).cursor().shape() == Qt::BitmapCursor;
    };
    ASSERT_TRUE(partita.Avvia());
    const Form& avvio = partita.Finestra("FormAvvio");
    EXPECT_EQ(proprio(Trova<CommandButton>(avvio, "Command1")), !GetParam());
    EXPECT_EQ(proprio(Trova<Image>(avvio, "Image1")), !GetParam());  // the window's own

    ClickOn(Trova<CommandButton>(avvio, "Command1"));
    partita.Tempo.Advance(1);
    const Form& menu = partita.Finestra("FormMenu");
    for (int i = 0; i < NumeroLivelliGioco; ++i) {
        EXPECT_EQ(proprio(Trova<OptionButton>(menu, "Option1", i)), !GetParam()) << i;
    }
    EXPECT_EQ(proprio(Trova<CommandButton>(menu, "Command1", 0)), !GetParam());
    EXPECT_EQ(proprio(Trova<CommandButton>(menu, "Command1", 1)), !GetParam());

    const Form& gioco = partita.ApriLivello(3);
    EXPECT_EQ(proprio(Trova<CommandButton>(gioco, "BottoneAvanti")), !GetParam());
}

}  // namespace
}  // namespace trameli
