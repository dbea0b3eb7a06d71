// A wild player: keys, clicks and menu entries in random order, through all windows.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <random>

#include "game/partita.h"

namespace trameli {
namespace {

class Selvaggio {
public:
    Selvaggio(const Disco& disco, unsigned seme) : disco_(disco), caso_(seme) { Ricomincia(); }

    void Gioca(int eventi) {
        for (int i = 0; i < eventi; ++i) {
            if (partita_->Gioco.Forms().Ended() || partita_->Aperte().empty()) {
                Ricomincia();
            }
            UnGesto();
        }
    }

    /// To the menu, on whatever way is left.
    Partita& Torna() {
        ChiudiMenuAperti();
        if (partita_->Gioco.Forms().Ended() || !partita_->Aperta("FormMenu")) {
            Ricomincia();
        }
        return *partita_;
    }

    int Partite() const { return partite_; }
    int Labirinti() const { return labirinti_; }

private:
    int Fino(int n) { return std::uniform_int_distribution<int>(0, n - 1)(caso_); }
    template <typename T>
    const T& Uno(const std::vector<T>& lista) {
        return lista[static_cast<std::size_t>(Fino(static_cast<int>(lista.size())))];
    }

    void Ricomincia() {
        ChiudiMenuAperti();
        partita_.reset();
        partita_ = std::make_unique<Partita>(disco_, PixelSize{800, 600}, caso_());
        partita_->ApriMenu(Fino(2) == 0);
        ++partite_;
    }

    static void ChiudiMenuAperti() {
        while (QWidget* aperto = QApplication::activePopupWidget()) {
            aperto->close();
        }
        Pump();
    }

    void UnGesto() {
        Form& form = partita_->Finestra(Uno(partita_->Aperte()));
        const int dado = Fino(100);
        if (dado < 55) {
            UnTasto(form);
        } else if (dado < 65) {
            UnaVoce(form);
        } else if (dado < 75) {
            UnClic(form);
        } else if (dado < 82) {
            partita_->Tempo.Advance(Fino(5) * 0.1);
        } else if (dado < 86) {
            Partita::ViaERitorno(form);
        } else if (dado < 90) {
            // In the middle of some wait to come, or of none.
            partita_->Tempo.In(Fino(8) * 0.1, [this] {
                if (!partita_->Aperte().empty() && !partita_->Gioco.Forms().Ended()) {
                    UnaVoce(partita_->Finestra(Uno(partita_->Aperte())));
                }
            });
        } else if (dado < 97) {
            Risolve(form);
        } else if (dado == 99 && Fino(10) == 0) {
            Partita::Chiudi(form);
        }
    }

    void UnTasto(Form& form) {
        static const std::vector<int> tasti{
            Qt::Key_Up,   Qt::Key_Down,   Qt::Key_Left,    Qt::Key_Right, Qt::Key_Up,
            Qt::Key_Down, Qt::Key_Left,   Qt::Key_Right,   Qt::Key_Space, Qt::Key_Return,
            Qt::Key_Tab,  Qt::Key_Escape, Qt::Key_Backtab, Qt::Key_A,     Qt::Key_F10};
        static const std::vector<int> comandi{Qt::Key_N, Qt::Key_R, Qt::Key_C,
                                              Qt::Key_M, Qt::Key_L, Qt::Key_S};
        switch (Fino(8)) {
            case 0:
                Tap(form, Uno(comandi), Qt::ControlModifier);
                break;
            case 1:
                Press(form, Uno(tasti));
                break;
            case 2:
                Release(form, Uno(tasti));
                break;
            case 3:
                Tap(form, Tastierino.at(static_cast<std::size_t>(Fino(4))), Qt::KeypadModifier);
                break;
            default:
                Tap(form, Uno(tasti));
                break;
        }
    }

    /// An entry by its action: at once, as a mouse would, only without opening the menu.
    void UnaVoce(Form& form) {
        std::vector<QAction*> voci;
        for (QAction* voce : WindowOf(form).findChildren<QAction*>()) {
            if (voce->isEnabled() && !voce->menu()) {
                voci.push_back(voce);
            }
        }
        if (!voci.empty()) {
            Uno(voci)->trigger();
            Pump();
        }
    }

    void UnClic(Form& form) {
        std::vector<const VisualControl*> visibili;
        for (const Control* control : form.Controls()) {
            const auto* visual = dynamic_cast<const VisualControl*>(control);
            if (visual && WidgetOf(*visual).isVisible()) {
                visibili.push_back(visual);
            }
        }
        const VisualControl& scelto = *Uno(visibili);
        MoveOver(scelto);
        // The exit now and then only, or nothing is ever played.
        if (scelto.Name() != "Command1" || scelto.Index() != 1 || Fino(10) == 0) {
            ClickOn(scelto);
        }
    }

    /// Reads the maze, if there is one, and walks it to its end.
    void Risolve(Form& form) {
        const Stato& stato = partita_->Gioco.Stato();
        const std::string nome = form.Name();
        const bool passi = nome == "frmTrm0" || nome == "frmTrm3";
        if (!passi || !stato.TrameloDisegnato || stato.ModoInput != 0) {
            return;
        }
        Tap(form, Qt::Key_R, Qt::ControlModifier);
        const Tavolo tavolo(form, MisureLivelli.at(static_cast<std::size_t>(stato.Livello)));
        // Walls of bars stand elsewhere, and are not read here.
        if (tavolo.Risolto() || tavolo.Muri().Aperture().size() != 2) {
            return;
        }
        ++labirinti_;
        for (const int verso : tavolo.Soluzione()) {
            if (partita_->Gioco.Forms().Find(nome) != &form) {
                return;
            }
            tavolo.Passo(verso);
        }
    }

    const Disco& disco_;
    std::mt19937 caso_;
    std::unique_ptr<Partita> partita_;
    int partite_ = 0;
    int labirinti_ = 0;
};

class GiocatoreSelvaggio : public testing::TestWithParam<unsigned> {};

TEST_P(GiocatoreSelvaggio, BreaksNothingAndLeavesNothing) {
    const Disco disco;
    disco.Scrivi("Anna", FileUtente().Con(RigaMaiuscolo, "True").Con(RigaLivello, 8));
    disco.Scrivi("Bruno", FileUtente().Con(RigaModoInput, static_cast<int>(GetParam() % 3)));
    disco.Scrivi("_predefinito");
    const auto prima = QApplication::allWidgets().size();
    {
        Selvaggio giocatore(disco, GetParam());
        giocatore.Gioca(5000);
        EXPECT_GT(giocatore.Labirinti(), 10);
        EXPECT_GT(giocatore.Partite(), 3);
        // And after all that the game is still the game.
        const Tavolo tavolo(giocatore.Torna().ApriLivello(8), {3, 4});
        EXPECT_EQ(tavolo.Muri().Aperture().size(), 2U);
    }
    // One the toolkit makes at some time and keeps for itself.
    EXPECT_LE(QApplication::allWidgets().size(), prima + 1);
}

INSTANTIATE_TEST_SUITE_P(Semi, GiocatoreSelvaggio, testing::Values(1U, 2U, 3U, 4U));

TEST(MolteVisite, LeaveNoWidgetsBehind) {
    const Disco disco;
    Partita partita(disco, {800, 600});
    qsizetype prima = 0;
    for (int visita = 0; visita < 12; ++visita) {
        for (const int livello : {2, 9}) {
            Form& form = partita.ApriLivello(livello);
            Tap(form, Qt::Key_N, Qt::ControlModifier);
            Partita::Scegli(form, "mnuEsci");
        }
        partita.Tempo.Advance(0.3);
        prima = visita == 1 ? QApplication::allWidgets().size() : prima;
    }
    EXPECT_EQ(QApplication::allWidgets().size(), prima);
    EXPECT_EQ(partita.Tempo.TimersRunning(), 0);
}

}  // namespace
}  // namespace trameli
