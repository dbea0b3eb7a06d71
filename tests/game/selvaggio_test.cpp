// A wild player: keys, clicks and menu entries in random order, through all windows, settings and
// languages, while screens come, change and go.
#include <gtest/gtest.h>
#include <private/qfont_p.h>
#include <qpa/qplatformnativeinterface.h>

#include <QAction>
#include <QApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QMenu>
#include <QPixmapCache>
#include <QTimer>
#include <fstream>
#include <random>

#include "game/partita.h"
#include "platform/combo_box.h"
#include "platform/command_button.h"
#include "platform/option_button.h"
#include "support/amount.h"

#include <malloc.h>

#ifdef __SANITIZE_ADDRESS__
// Not every compiler brings the header that declares it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace trameli {
namespace {

constexpr int Giocatori = 2;

/// Bytes that were allocated on the heap and not given back, by the libraries too.
std::int64_t LiveBytes() {
#ifdef __SANITIZE_ADDRESS__
    return static_cast<std::int64_t>(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = mallinfo2();
    return static_cast<std::int64_t>(info.uordblks + info.hblkhd);
#endif
}

/// What the process has in memory, in pages.
std::int64_t ResidentPages() {
    std::int64_t all = 0;
    std::int64_t resident = 0;
    std::ifstream("/proc/self/statm") >> all >> resident;
    return resident;
}

/// Makes the desktop one of these screens: the windows learn of it as of any other change.
void Collega(const QJsonArray& schermi) {
    using Imposta = void (*)(QJsonObject, QPlatformNativeInterface*);
    QPlatformNativeInterface* const sotto = QGuiApplication::platformNativeInterface();
    reinterpret_cast<Imposta>(sotto->nativeResourceForIntegration("setConfiguration"))(
        {{"screens", schermi}}, sotto);
    Pump();
}

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
    Selvaggio(const Disco& disco, unsigned seme) : disco_(disco), caso_(seme) {
        Ricomincia();
        stampa_.callOnTimeout([this] { NellaStampa(); });
        stampa_.start(0);
    }

    /// Plays for so long by the games' own clocks.
    void Gioca(double secondi) {
        for (const double fine = Ora() + secondi; Ora() < fine;) {
            if (partita_->Gioco.Forms().Ended() || partita_->Aperte().empty()) {
                Ricomincia();
            }
            chiesto_ = false;
            UnGesto(partita_->Finestra(Uno(partita_->Aperte())));
            // Nothing draws but mazes and the congratulations.
            (partita_->Aperta("FormFinale") ? Finali : Labirinti) += chiesto_ ? 1 : 0;
        }
    }

    /// Memory in use while no game is.
    std::int64_t Memoria() {
        Smetti();
        QPixmapCache::clear();
        QFontCache::instance()->clear();  // one for each size of a window
        const std::int64_t byte = LiveBytes();
        Ricomincia();
        return byte;
    }

    int Gesti = 0;
    int Labirinti = 0;  ///< that came up; two with one gesture count as one
    int Finali = 0;
    int Stampe = 0;

private:
    int Fino(int n) { return std::uniform_int_distribution<int>(0, n - 1)(caso_); }
    template <typename Lista>
    const typename Lista::value_type& Uno(const Lista& lista) {
        return lista[static_cast<std::size_t>(Fino(static_cast<int>(lista.size())))];
    }

    double Giocati() const { return partita_ ? partita_->Tempo.Now() - HandClock().Now() : 0; }
    double Ora() const { return prima_ + Giocati(); }

    void Smetti() {
        prima_ += Giocati();
        while (QWidget* aperto = QApplication::activePopupWidget()) {
            aperto->close();
        }
        Pump();
        partita_.reset();
        Pump();
    }
    void Ricomincia() {
        Smetti();
        constexpr PixelSize misura{800, 600};
        Collega({Schermo(0, 0, misura, 96)});
        partita_ = std::make_unique<Partita>(disco_, misura,
                                             std::make_unique<CasualeSpiato>(caso_(), chiesto_));
        partita_->ApriMenu(Fino(2) == 0);
    }

    void UnGesto(Form& form) {
        const int dado = Fino(100);
        ++Gesti;
        partita_->Messaggi.Chosen = static_cast<Colour>(Fino(1 << 24));
        if (form.Name() == "FormMenu" && dado < 25) {
            // Wild, but there to play.
            ClickOn(Trova<OptionButton>(form, "Option1", Fino(NumeroLivelliGioco)));
            ClickOn(Trova<CommandButton>(form, "Command1", 0));
        } else if (dado < 44) {
            UnTasto(form);
        } else if (dado < 52) {
            Tap(form, Qt::Key_N, Qt::ControlModifier);
        } else if (dado < 60) {
            UnaVoce(form);
        } else if (dado < 70) {
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
        } else if (dado == 86 && Fino(5) == 0) {
            Partita::Chiudi(form);
        } else if (dado == 87 && Fino(5) == 0) {
            CambiaSchermi();
        } else {
            Risolve(form);
        }
    }

    static QJsonObject Schermo(int quale, int sinistra, PixelSize misura, int punti) {
        return {{"name", QString::number(quale)},
                {"x", sinistra},
                {"y", 0},
                {"width", misura.Width},
                {"height", misura.Height},
                {"logicalBaseDpi", 96},
                {"logicalDpi", punti}};
    }

    /// One to three screens side by side, each with a size and a scale of its own. The first one
    /// only changes: real desktops never are without any.
    void CambiaSchermi() {
        constexpr std::array<PixelSize, 5> misure{
            {{100, 100}, {800, 600}, {1366, 768}, {600, 1024}, {1920, 1080}}};
        QJsonArray schermi;
        int sinistra = 0;
        for (int quanti = 1 + Fino(3); quanti > 0; --quanti) {
            const PixelSize misura = Uno(misure);
            schermi.append(
                Schermo(static_cast<int>(schermi.size()), sinistra, misura, 96 + 48 * Fino(3)));
            sinistra += misura.Width;
            partita_->Schermo.Size(misura);
        }
        Collega(schermi);
    }

    /// The print window keeps whoever opened it waiting: somebody else has to play there.
    void NellaStampa() {
        if (!partita_ || !partita_->Aperta("frmStampa")) {
            return;
        }
        stampa_.stop();
        ++Stampe;
        for (int gesti = Fino(20); gesti > 0 && partita_->Aperta("frmStampa"); --gesti) {
            Form& form = partita_->Finestra("frmStampa");
            Fino(2) == 0 ? UnTasto(form) : UnClic(form);
        }
        while (QWidget* aperto = QApplication::activePopupWidget()) {
            aperto->close();
        }
        if (partita_->Aperta("frmStampa")) {
            Partita::Chiudi(partita_->Finestra("frmStampa"));
        }
        partita_->Stampanti.Documents.clear();
        stampa_.start(0);
    }

    void UnTasto(Form& form) {
        constexpr std::array tasti{Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left, Qt::Key_Right,
                                   Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab,  Qt::Key_Escape,
                                   Qt::Key_8,     Qt::Key_A,      Qt::Key_F10};
        constexpr std::array gesti{Tap, Tap, Tap, Press, Release};
        Uno(gesti)(form, Uno(tasti), Qt::NoModifier);
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
        // The exit now and then only, or nothing is ever played.
        if (scelto.Name() != "Command1" || scelto.Index() != 1 || Fino(10) == 0) {
            ClickOn(scelto);
        }
    }

    /// Reads the maze, if there is one that can be read, and walks it to its end.
    void Risolve(Form& form) {
        const Stato& stato = partita_->Gioco.Stato();
        const std::string nome = form.Name();
        if ((nome != "frmTrm0" && nome != "frmTrm3") || !stato.TrameloDisegnato ||
            stato.ModoInput != 0) {
            return;
        }
        Tap(form, Qt::Key_R, Qt::ControlModifier);
        const Tavolo tavolo(form, stato.Livello,
                            FileUtente()
                                .Con(RigaPareti, Nearest(stato.ColorePareti))
                                .Con(RigaSfondo, Nearest(stato.ColoreSfondo))
                                .Con(RigaSimbolo, Nearest(stato.ColoreSimbolo)));
        if (tavolo.Risolto() || tavolo.Muri().Aperture().size() != 2) {
            return;
        }
        for (const int verso : Soluzione(tavolo)) {
            if (partita_->Gioco.Forms().Find(nome) != &form) {
                return;
            }
            tavolo.Passo(verso);
        }
    }

    /// No steps where the player's colours, or a window of another size, let nobody see them.
    static std::vector<int> Soluzione(const Tavolo& tavolo) {
        try {
            return tavolo.Soluzione();
        } catch (const std::runtime_error&) {
            return {};
        }
    }

    const Disco& disco_;
    std::mt19937 caso_;
    std::unique_ptr<Partita> partita_;
    bool chiesto_ = false;
    double prima_ = 0;  ///< seconds played in games that are over
    QTimer stampa_;
};

/// A window goes with its screen.
class AltraMisura : public ConTavolo, public testing::WithParamInterface<int> {};

TEST_P(AltraMisura, FitsTheMazeAndWhatWasWalkedIntoTheWindow) {
    const Tavolo prima = Apri(GetParam());
    const std::vector<int> passi = prima.Soluzione();
    const auto meta = passi.begin() + static_cast<std::ptrdiff_t>(passi.size() / 2);
    prima.Cammina({passi.begin(), meta});
    const MuriVisti muri = prima.Muri();
    for (const QSize misura : {QSize(300, 260), QSize(1200, 900)}) {
        WindowOf(prima.Form_).resize(misura);
        Pump();
        const Tavolo dopo(prima.Form_, GetParam());
        EXPECT_TRUE(dopo.Muri() == muri);
    }
    const Tavolo dopo(prima.Form_, GetParam());
    dopo.Cammina({meta, passi.end()});
    EXPECT_TRUE(dopo.Risolto());
}

INSTANTIATE_TEST_SUITE_P(Finestre, AltraMisura, testing::Values(4, 12));

class GiocatoreSelvaggio : public testing::TestWithParam<unsigned> {};

TEST_P(GiocatoreSelvaggio, BreaksNothingAndLeavesNothing) {
    const int secondi = Amount("TRAMELI_WILD_SECONDS", 60);
    // Fonts and other caches fill, and it takes a while until every window was seen in every state.
    const double riscaldamento = 2.0 * secondi / 3;
    constexpr int Tolleranza = 512 * 1024;  // bytes: caches of the toolkit's grow for long
    const Disco disco;
    disco.Scrivi("Anna", FileUtente().Con(RigaMaiuscolo, "True").Con(RigaLinee, "False"));
    disco.Scrivi("Bruno", FileUtente().Con(RigaModoInput, 1 + static_cast<int>(GetParam() % 2)));
    disco.Scrivi("_predefinito");
    Selvaggio giocatore(disco, GetParam());
    giocatore.Gioca(riscaldamento);
    const std::int64_t prima = giocatore.Memoria();
    const std::int64_t paginePrima = ResidentPages();
    giocatore.Gioca(secondi - riscaldamento);
    const std::int64_t dopo = giocatore.Memoria();
    Tell(secondi, " s of wild play: ", giocatore.Gesti, " gestures, ", giocatore.Labirinti,
         " mazes, ", giocatore.Finali, " levels, ", giocatore.Stampe, " prints; heap grown by ",
         dopo - prima, " bytes from ", prima, ", resident memory ",
         static_cast<double>(ResidentPages()) / static_cast<double>(paginePrima), " times");
    EXPECT_LT(dopo - prima, Tolleranza);
    EXPECT_GT(giocatore.Finali, 0);
    EXPECT_GT(giocatore.Stampe, 0);
}

INSTANTIATE_TEST_SUITE_P(Semi, GiocatoreSelvaggio, testing::Range(1U, 1U + Giocatori));

}  // namespace
}  // namespace trameli
