// What the menus and panels of the maze windows say, and whose pointer is over the controls that
// matter.
#include <gtest/gtest.h>

#include <QMenu>
#include <QMenuBar>

#include "game/partita.h"
#include "platform/command_button.h"
#include "platform/image.h"
#include "platform/option_button.h"
#include "platform/qt/form_window.h"

namespace trameli {
namespace {

/// A level, and the menus of its window: the entries of the first title, then the further titles.
struct Finestra {
    int Livello;
    const char* Nome;
    QStringList Menu;
};

class Disposizione : public ConTavolo, public testing::WithParamInterface<Finestra> {};

const QStringList VociComuni{"Nuovo\tCtrl+N", "Ricomincia\tCtrl+R",
                             "Colora l'intera casella\tCtrl+C", "-"};
const QStringList VociUltime{"Modifica spessore linee\tCtrl+L", "-", "Stampa\tCtrl+S"};

INSTANTIATE_TEST_SUITE_P(
    Finestre, Disposizione,
    testing::Values(Finestra{3, "frmTrm0",
                             VociComuni + QStringList{"Usa muri\tCtrl+M"} + VociUltime +
                                 QStringList{"Torna al menù"}},
                    Finestra{6, "frmTrm1",
                             VociComuni + VociUltime + QStringList{"&Pausa", "Torna al menù"}},
                    Finestra{8, "frmTrm3", VociComuni + VociUltime + QStringList{"Torna al menù"}}),
    [](const auto& voce) { return voce.param.Nome; });

TEST_P(Disposizione, MenusAndPanelsSayWhatThereIs) {
    const Tavolo tavolo = Apri(GetParam().Livello);
    EXPECT_EQ(tavolo.Pannello(1), "_predefinito");
    EXPECT_EQ(tavolo.NumeroPannello(2), GetParam().Livello + 1);
    const Form& gioco = tavolo.Form_;
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
