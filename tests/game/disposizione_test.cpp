// Where the controls of the maze windows go, what their menus say, what a second activation does,
// and whose pointer is over the controls that matter.
#include <gtest/gtest.h>

#include <QMenu>
#include <QMenuBar>

#include "game/partita.h"
#include "platform/command_button.h"
#include "platform/frame.h"
#include "platform/image.h"
#include "platform/option_button.h"
#include "platform/picture_box.h"
#include "platform/qt/form_window.h"
#include "platform/status_bar.h"

namespace trameli {
namespace {

/// A level, and what its window has of its own.
struct Finestra {
    int Livello;
    const char* Nome;
    double SottoIlTramelo;  ///< twips from the maze's lower edge to the window's, less status bars
    int Barre;              ///< how many of those
    Bounds Avanti;          ///< its left from the window's right edge, its top from the maze's
    double TopCoppe;        ///< from where the button's top is counted
    bool Riscrive;          ///< a second activation writes the panels again
    QStringList Menu;       ///< of the bar's first title, then the further titles
};

class Disposizione : public ConTavolo, public testing::WithParamInterface<Finestra> {};

const QStringList VociComuni{"Nuovo\tCtrl+N", "Ricomincia\tCtrl+R",
                             "Colora l'intera casella\tCtrl+C", "-"};
const QStringList VociUltime{"Modifica spessore linee\tCtrl+L", "-", "Stampa\tCtrl+S"};

INSTANTIATE_TEST_SUITE_P(
    Finestre, Disposizione,
    testing::Values(Finestra{3,
                             "frmTrm0",
                             660,
                             2,
                             {-3450, 0, 1725, 660},
                             0,
                             true,
                             VociComuni + QStringList{"Usa muri\tCtrl+M"} + VociUltime +
                                 QStringList{"Torna al menù"}},
                    Finestra{6,
                             "frmTrm1",
                             1455,
                             2,
                             {-3450, 240, 1725, 780},
                             720,
                             true,
                             VociComuni + VociUltime + QStringList{"&Pausa", "Torna al menù"}},
                    Finestra{8,
                             "frmTrm3",
                             1560,
                             0,
                             {-3450, 0, 1725, 780},
                             307,
                             false,
                             VociComuni + VociUltime + QStringList{"Torna al menù"}}),
    [](const auto& voce) { return voce.param.Nome; });

TEST_P(Disposizione, ButtonAndCupsStandBelowTheMaze) {
    const Form& gioco = Apri(GetParam().Livello).Form_;
    const auto& tramelo = Trova<PictureBox>(gioco, "pictureTramelo");
    const double barre = GetParam().Barre * Trova<StatusBar>(gioco, "StatusBar1").Height();
    EXPECT_EQ(tramelo.Place(),
              (Bounds{0, 0, gioco.Width(), gioco.Height() - GetParam().SottoIlTramelo - barre}));
    // In the timed levels they lie on a band of their own.
    const bool banda = GetParam().Livello == 6;
    if (banda) {
        EXPECT_EQ(Trova<Frame>(gioco, "FrameSotto").Place(),
                  (Bounds{120, tramelo.Height(), gioco.Width(), 1455}));
    }
    const double alto = banda ? 0 : tramelo.Height();
    Bounds avanti = GetParam().Avanti;
    avanti.Left += gioco.Width();
    avanti.Top += alto;
    EXPECT_EQ(Trova<CommandButton>(gioco, "BottoneAvanti").Place(), avanti);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(Trova<Image>(gioco, "Image1", i).Top(), alto + GetParam().TopCoppe);
    }
}

TEST_P(Disposizione, MenusSayWhatThereIsAndSeparatorsCannotBeChosen) {
    const Form& gioco = Apri(GetParam().Livello).Form_;
    const QMenuBar* barra = dynamic_cast<FormWindow&>(WindowOf(gioco)).menuBar();
    QStringList voci;
    for (const QAction* voce : barra->actions().first()->menu()->actions()) {
        const bool separa = voce->text().startsWith("---");
        EXPECT_FALSE(separa && voce->isEnabled());
        voci << (separa ? QString("-") : voce->text() + "\t" + voce->shortcut().toString());
    }
    for (const QAction* titolo : barra->actions().mid(1)) {
        voci << titolo->text();
    }
    EXPECT_EQ(voci, GetParam().Menu);
}

TEST_P(Disposizione, ASecondActivationLeavesTheMazeAndWritesThePanelsOrNot) {
    const Tavolo tavolo = Apri(GetParam().Livello);
    tavolo.Passo(Contrario(tavolo.Partenza().Lato));
    const QImage prima = tavolo.Guarda().Immagine();
    EXPECT_EQ(tavolo.Pannello(1), "_predefinito");
    EXPECT_EQ(tavolo.NumeroPannello(2), GetParam().Livello + 1);
    Trova<StatusBar>(tavolo.Form_, "StatusBar1").Panel(2, "0");
    Partita::ViaERitorno(tavolo.Form_);
    EXPECT_EQ(tavolo.NumeroPannello(2), GetParam().Riscrive ? GetParam().Livello + 1 : 0);
    EXPECT_EQ(tavolo.Guarda().Immagine(), prima);
}

TEST_F(ConTavolo, PointerIsTheOneThatThePlayerChose) {
    for (const bool scelta : {false, true}) {
        disco_.Scrivi("_predefinito", FileUtente().Con(RigaPuntatore, scelta ? "True" : "False"));
        Partita partita(disco_);
        const auto delSistema = [](const InteractiveControl& controllo) {
            return WidgetOf(controllo).cursor().shape() != Qt::BitmapCursor;
        };
        ASSERT_TRUE(partita.Avvia());
        const Form& avvio = partita.Finestra("FormAvvio");
        EXPECT_EQ(delSistema(Trova<CommandButton>(avvio, "Command1")), scelta);
        EXPECT_EQ(delSistema(Trova<Image>(avvio, "Image1")), scelta);  // the window's own

        ClickOn(Trova<CommandButton>(avvio, "Command1"));
        partita.Tempo.Advance(1);
        const Form& menu = partita.Finestra("FormMenu");
        EXPECT_EQ(delSistema(Trova<OptionButton>(menu, "Option1", 15)), scelta);
        EXPECT_EQ(delSistema(Trova<CommandButton>(menu, "Command1", 1)), scelta);
        const Form& gioco = partita.ApriLivello(3);
        EXPECT_EQ(delSistema(Trova<CommandButton>(gioco, "BottoneAvanti")), scelta);
    }
}

}  // namespace
}  // namespace trameli
