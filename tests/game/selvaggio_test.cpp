// A wild player: keys, clicks and menu entries in random order, through all windows, for thousands
// of mazes.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPixmapCache>
#include <random>

#include "game/partita.h"
#include "platform/combo_box.h"
#include "platform/command_button.h"
#include "platform/option_button.h"
#include "support/live_memory.h"

namespace trameli {
namespace {

// The sanitizers see most.
#ifdef __SANITIZE_ADDRESS__
constexpr int LabirintiInTutto = 10000;
#else
constexpr int LabirintiInTutto = 2000;
#endif
constexpr int Giocatori = 4;

/// The game's chance, and whether it was asked for anything lately.
class CasualeSpiato final : public Casuale {
public:
    CasualeSpiato(std::uint64_t seme, bool& chiesto) : casuale_(seme), chiesto_(chiesto) {}
    float Estrai() override {
        chiesto_ = true;
        return casuale_.Estrai();
    }

private:
    CasualeConSeme casuale_;
    bool& chiesto_;
};

class Selvaggio {
public:
    Selvaggio(const Disco& disco, unsigned seme) : disco_(disco), caso_(seme) { Ricomincia(); }

    /// Plays until so many mazes more have come up.
    void Gioca(int labirinti) {
        for (const int fine = labirinti_ + labirinti; labirinti_ < fine;) {
            if (partita_->Gioco.Forms().Ended() || partita_->Aperte().empty()) {
                Ricomincia();
            }
            chiesto_ = false;
            UnGesto();
            // Nothing draws but mazes and the congratulations.
            (partita_->Aperta("FormFinale") ? finali_ : labirinti_) += chiesto_ ? 1 : 0;
        }
    }

    /// Memory in use while no game is.
    std::int64_t Memoria() {
        ChiudiMenuAperti();
        partita_.reset();
        Pump();
        QPixmapCache::clear();
        const std::int64_t byte = LiveBytes();
        Ricomincia();
        return byte;
    }

    /// The game, at its menu.
    Partita& Torna() {
        Ricomincia();
        return *partita_;
    }

    int Partite() const { return partite_; }
    int Finali() const { return finali_; }

private:
    int Fino(int n) { return std::uniform_int_distribution<int>(0, n - 1)(caso_); }
    template <typename Lista>
    auto& Uno(const Lista& lista) {
        return lista[static_cast<std::size_t>(Fino(static_cast<int>(lista.size())))];
    }

    void Ricomincia() {
        ChiudiMenuAperti();
        partita_.reset();
        partita_ = std::make_unique<Partita>(disco_, PixelSize{800, 600},
                                             std::make_unique<CasualeSpiato>(caso_(), chiesto_));
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
        if (form.Name() == "FormMenu" && Fino(4) == 0) {
            // Wild, but there to play; as somebody else now and then.
            auto& utenti = Trova<ComboBox>(form, "Combo1");
            if (utenti.ListCount() > 0 && Fino(3) == 0) {
                utenti.ListIndex(Fino(utenti.ListCount()));
            }
            ClickOn(Trova<OptionButton>(form, "Option1", Fino(NumeroLivelliGioco)));
            ClickOn(Trova<CommandButton>(form, "Command1", 0));
            return;
        }
        const int dado = Fino(100);
        if (dado < 46) {
            UnTasto(form);
        } else if (dado < 54) {
            Tap(form, Qt::Key_N, Qt::ControlModifier);
        } else if (dado < 62) {
            UnaVoce(form);
        } else if (dado < 71) {
            UnClic(form);
        } else if (dado < 78) {
            partita_->Tempo.Advance(Fino(5) * 0.1);
        } else if (dado < 82) {
            Partita::ViaERitorno(form);
        } else if (dado < 86) {
            // In the middle of some wait to come, or of none.
            partita_->Tempo.In(Fino(8) * 0.1, [this] {
                if (!partita_->Aperte().empty() && !partita_->Gioco.Forms().Ended()) {
                    UnaVoce(partita_->Finestra(Uno(partita_->Aperte())));
                }
            });
        } else if (dado < 95) {
            Risolve(form);
        } else if (dado == 99 && Fino(5) == 0) {
            Partita::Chiudi(form);
        }
    }

    void UnTasto(Form& form) {
        constexpr std::array tasti{Qt::Key_Up,      Qt::Key_Down,   Qt::Key_Left, Qt::Key_Right,
                                   Qt::Key_Up,      Qt::Key_Down,   Qt::Key_Left, Qt::Key_Right,
                                   Qt::Key_Space,   Qt::Key_Return, Qt::Key_Tab,  Qt::Key_Escape,
                                   Qt::Key_Backtab, Qt::Key_A,      Qt::Key_F10};
        constexpr std::array comandi{Qt::Key_R, Qt::Key_C, Qt::Key_M, Qt::Key_L, Qt::Key_S};
        const int dado = Fino(8);
        if (dado == 0) {
            Tap(form, Uno(comandi), Qt::ControlModifier);
        } else if (dado == 1) {
            Tap(form, Uno(Tastierino), Qt::KeypadModifier);
        } else if (dado == 2) {
            Release(form, Uno(tasti));
        } else if (dado == 3) {
            Press(form, Uno(tasti));
        } else {
            Tap(form, Uno(tasti));
        }
    }

    /// An entry by its action: at once, as a mouse would, only without opening the menu.
    void UnaVoce(Form& form) {
        auto voci = WindowOf(form).findChildren<QAction*>();
        voci.removeIf([](const QAction* voce) { return !voce->isEnabled() || voce->menu(); });
        if (!voci.empty()) {
            Uno(voci)->trigger();
            Pump();
        }
    }

    void UnClic(Form& form) {
        auto controlli = form.Controls();
        std::erase_if(controlli, [](const Control* control) {
            const auto* visual = dynamic_cast<const VisualControl*>(control);
            return !visual || !WidgetOf(*visual).isVisible();
        });
        const auto& scelto = dynamic_cast<const VisualControl&>(*Uno(controlli));
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
    bool chiesto_ = false;
    int partite_ = 0;
    int labirinti_ = 0;  ///< that came up; two with one gesture count as one
    int finali_ = 0;
};

class GiocatoreSelvaggio : public testing::TestWithParam<unsigned> {};

TEST_P(GiocatoreSelvaggio, BreaksNothingAndLeavesNothing) {
    constexpr int Labirinti = LabirintiInTutto / Giocatori;
    // Fonts and other caches fill, and it takes a while until every window was seen in every state.
    constexpr int Riscaldamento = Labirinti / 2;
    constexpr int Tolleranza = 64 * 1024;  // bytes: less than 40 for a maze
    const Disco disco;
    disco.Scrivi("Anna", FileUtente().Con(RigaMaiuscolo, "True").Con(RigaLinee, "False"));
    disco.Scrivi("Bruno", FileUtente().Con(RigaModoInput, 1 + static_cast<int>(GetParam() % 2)));
    disco.Scrivi("_predefinito");
    Selvaggio giocatore(disco, GetParam());
    giocatore.Gioca(Riscaldamento);
    const std::int64_t prima = giocatore.Memoria();
    giocatore.Gioca(Labirinti - Riscaldamento);
    const std::int64_t dopo = giocatore.Memoria();
    RecordProperty("grown", std::to_string(dopo - prima));
    EXPECT_LT(dopo - prima, Tolleranza);
    EXPECT_GT(giocatore.Partite(), Labirinti / 250);
    EXPECT_GT(giocatore.Finali(), Labirinti / 250);
    // And after all that the game is still the game.
    const Tavolo tavolo(giocatore.Torna().ApriLivello(8), {3, 4});
    EXPECT_EQ(tavolo.Muri().Aperture().size(), 2U);
}

INSTANTIATE_TEST_SUITE_P(Semi, GiocatoreSelvaggio, testing::Range(1U, 1U + Giocatori));

/// What stays within one game, from visit to visit.
TEST(MolteVisite, LeaveNothingBehind) {
    const Disco disco;
    Partita partita(disco, {800, 600});
    const auto visita = [&](int volte) {
        for (int i = 0; i < volte; ++i) {
            for (const int livello : {2, 6, 9}) {
                Form& form = partita.ApriLivello(livello);
                Tap(form, Qt::Key_N, Qt::ControlModifier);
                Partita::Scegli(form, "mnuEsci");
            }
            partita.Tempo.Advance(0.3);
            partita.Suoni.Asked.clear();
        }
        QPixmapCache::clear();
        return LiveBytes();
    };
    const std::int64_t prima = visita(20);
    const auto finestre = QApplication::allWidgets().size();
    // Bytes; the allocator of the C library counts what it keeps at hand as well.
    EXPECT_LT(visita(40) - prima, 48 * 1024);
    EXPECT_EQ(QApplication::allWidgets().size(), finestre);
    EXPECT_EQ(partita.Tempo.TimersRunning(), 0);
}

}  // namespace
}  // namespace trameli
