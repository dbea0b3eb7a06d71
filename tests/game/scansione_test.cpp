// Playing with one key or two.
#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QWindow>
#include <string>
#include <tuple>

#include "game/partita.h"
#include "platform/command_button.h"
#include "platform/picture_box.h"
#include "platform/qt/form_window.h"
#include "play/scansione.h"

namespace trameli {
namespace {

constexpr int Manuale = 1;
constexpr int Automatica = 2;
constexpr int Velocita = 4;  // quarters of a second
constexpr double Giro = Velocita * 0.25;
constexpr double UnDecimo = 0.1;

constexpr int Blu = Rgb(0, 0, 255);

/// Strokes and symbol are blue, the symbol can have another colour.
FileUtente Utente(int modo, int simbolo) {
    return FileUtente()
        .Con(RigaModoInput, modo)
        .Con(RigaVelocita, Velocita)
        .Con(RigaSpessore, 0)
        .Con(RigaScansione, Blu)
        .Con(RigaSimbolo, simbolo);
}

/// The number of a direction of travel in the order of the offers.
int Offerta(int verso) {
    for (int i = 0; i < NumeroDirezioni; ++i) {
        if (static_cast<int>(DirezioniScansione.at(static_cast<std::size_t>(i))) == verso) {
            return i;
        }
    }
    return -1;
}

/// A player who has Space, with `Manuale` Enter too, and otherwise waits.
class ConInterruttori : public testing::Test {
protected:
    Tavolo Apri(int livello, int modo, int simbolo = Blu) {
        modo_ = modo;
        file_ = Utente(modo, simbolo);
        disco_.Scrivi("_predefinito", file_);
        return AlTavolo(partita_.ApriLivello(livello), livello);
    }
    Tavolo AlTavolo(Form& form, int livello) {
        // In the first tenth of a second the keyboard may still be elsewhere.
        if (modo_ == Manuale) {
            partita_.Tempo.Advance(UnDecimo);
        }
        return Tavolo(form, MisureLivelli.at(static_cast<std::size_t>(livello)), file_);
    }

    void Spazio(Form& form) { Tap(form, Qt::Key_Space); }
    void Invio(Form& form) { Tap(form, Qt::Key_Return); }
    void Tic(int quanti = 1) { partita_.Tempo.Advance(Giro * quanti); }

    /// The next direction, by key or by waiting.
    void Prossima(Form& form) {
        if (modo_ == Manuale) {
            Spazio(form);
        } else {
            Tic();
        }
    }
    void Conferma(Form& form) {
        if (modo_ == Manuale) {
            Invio(form);
        } else {
            Spazio(form);
        }
    }
    /// Goes on to the direction and takes it. `offerta` is the one on offer.
    void Vai(Form& form, int verso, int& offerta) {
        // Without a stroke on show, a player with one key waits for the next one.
        for (int passati = 0; passati == 0 || offerta != Offerta(verso); ++passati) {
            if (modo_ == Manuale && offerta == Offerta(verso)) {
                break;
            }
            Prossima(form);
            offerta = (offerta + 1) % NumeroDirezioni;
        }
        Conferma(form);
    }
    void Risolvi(const Tavolo& tavolo, int& offerta) {
        partenza_ = tavolo.Partenza();
        for (const int verso : tavolo.Soluzione()) {
            Vai(tavolo.Form_, verso, offerta);
        }
    }

    /// The directions whose strokes are to be seen round the head, by a pixel near their ends.
    /// `qui` is the cell where the head is, or an opening.
    std::vector<int> Tratti(const Tavolo& tavolo, const Posto& qui, bool inApertura) const {
        const Vista vista = tavolo.Guarda();
        const double fuori = inApertura ? 0.5 : 0;
        const auto lato = static_cast<std::size_t>(qui.Lato);
        std::vector<int> visti;
        for (int i = 0; i < NumeroDirezioni; ++i) {
            const auto verso =
                static_cast<std::size_t>(DirezioniScansione.at(static_cast<std::size_t>(i)));
            constexpr double parte = 0.35;
            if (vista.Fra(qui.Riga, qui.Colonna,
                          parte * ColonnaVerso.at(verso) + fuori * ColonnaVerso.at(lato),
                          parte * RigaVerso.at(verso) + fuori * RigaVerso.at(lato)) == Pixel(Blu)) {
                visti.push_back(i);
            }
        }
        return visti;
    }
    std::vector<int> TrattiAllInizio(const Tavolo& tavolo) const {
        return Tratti(tavolo, partenza_, true);
    }

    QWidget& ImmagineTasti(Form& form) const {
        return WidgetOf(Trova<PictureBox>(
            form, modo_ == Manuale ? "PictureScansioneManuale" : "PictureScansioneAutomatica"));
    }

    Disco disco_;
    Partita partita_{disco_, {800, 600}, 11};
    FileUtente file_;
    int modo_ = 0;
    Posto partenza_;  ///< of the last maze that was looked at
};

struct Caso {
    int Livello;
    int Modo;
};

std::string NomeCaso(const testing::TestParamInfo<Caso>& voce) {
    return "Level" + std::to_string(voce.param.Livello) +
           (voce.param.Modo == Manuale ? "TwoKeys" : "OneKey");
}

class LivelloIntero : public ConInterruttori, public testing::WithParamInterface<Caso> {};

INSTANTIATE_TEST_SUITE_P(Livelli, LivelloIntero,
                         testing::Values(Caso{0, Manuale}, Caso{0, Automatica}, Caso{3, Manuale},
                                         Caso{3, Automatica}, Caso{8, Manuale}, Caso{8, Automatica},
                                         Caso{12, Manuale}, Caso{12, Automatica}),
                         NomeCaso);

TEST_P(LivelloIntero, FiveMazesAndBothAnswersWithTheSwitchesAlone) {
    const auto [livello, modo] = GetParam();
    const std::string nome = Apri(livello, modo).Form_.Name();
    for (const bool resta : {true, false}) {
        const Tavolo tavolo = AlTavolo(partita_.Finestra(nome), livello);
        int offerta = 0;
        for (int labirinto = 0; labirinto < 5; ++labirinto) {
            ASSERT_FALSE(tavolo.Risolto());
            Risolvi(tavolo, offerta);
            if (labirinto < 4) {
                ASSERT_TRUE(tavolo.Risolto()) << "maze " << labirinto;
                EXPECT_EQ(tavolo.Urti(), 0);
                Spazio(tavolo.Form_);
            }
        }
        ASSERT_EQ(partita_.Aperte(), std::vector<std::string>{"FormFinale"});
        Form& finale = partita_.Finestra("FormFinale");
        if (!resta) {
            Prossima(finale);
        }
        Conferma(finale);
        ASSERT_EQ(partita_.Aperte(), std::vector<std::string>{nome});
        EXPECT_EQ(partita_.Gioco.Stato().Livello, resta ? livello : livello + 1);
    }
}

class OgniModo : public ConInterruttori, public testing::WithParamInterface<Caso> {};

INSTANTIATE_TEST_SUITE_P(Casi, OgniModo,
                         testing::Values(Caso{1, Manuale}, Caso{1, Automatica}, Caso{9, Manuale},
                                         Caso{9, Automatica}),
                         NomeCaso);

TEST_P(OgniModo, OffersGoRoundClockwiseOneAtATime) {
    const auto [livello, modo] = GetParam();
    const Tavolo tavolo = Apri(livello, modo);
    partenza_ = tavolo.Partenza();
    const QImage vuoto = tavolo.Guarda().Immagine();
    EXPECT_EQ(TrattiAllInizio(tavolo), modo == Manuale ? std::vector{0} : std::vector<int>{});
    std::vector<QImage> primoGiro;
    for (int i = 1; i <= 12; ++i) {
        Prossima(tavolo.Form_);
        EXPECT_EQ(TrattiAllInizio(tavolo), std::vector{i % 4}) << i;
        const QImage vista = tavolo.Guarda().Immagine();
        if (i <= 4) {
            primoGiro.push_back(vista);
        } else {
            EXPECT_EQ(vista, primoGiro.at(static_cast<std::size_t>((i - 1) % 4))) << i;
        }
    }
    EXPECT_EQ(tavolo.Urti(), 0);
    EXPECT_EQ(tavolo.Passi(), 0);
}

TEST_P(OgniModo, AWalkLooksAsWithTheKeyboard) {
    const auto [livello, modo] = GetParam();
    const Tavolo tavolo = Apri(livello, modo);
    const auto passi = tavolo.Soluzione();
    // The same maze in another game, since both draw the same numbers.
    Disco altroDisco;
    altroDisco.Scrivi("_predefinito", Utente(0, Blu));
    Partita altra(altroDisco, {800, 600}, 11);
    const Tavolo modello(altra.ApriLivello(livello),
                         MisureLivelli.at(static_cast<std::size_t>(livello)), file_);
    int offerta = 0;
    for (std::size_t i = 0; i + 1 < passi.size(); ++i) {
        Vai(tavolo.Form_, passi[i], offerta);
        modello.Passo(passi[i]);
        EXPECT_EQ(tavolo.Passi(), modello.Passi());
        QImage vista = tavolo.Guarda().Immagine();
        if (modo == Automatica) {
            ASSERT_EQ(vista, modello.Guarda().Immagine()) << "step " << i;
        }
    }
}

class OgniSpessore : public ConInterruttori, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Spessori, OgniSpessore, testing::Range(0, 7));

TEST_P(OgniSpessore, NeitherSymbolNorStrokesTakeFromAWall) {
    for (const int modo : {0, Manuale, Automatica}) {
        for (const PixelSize schermo : {PixelSize{800, 600}, PixelSize{1366, 768}}) {
            Disco disco;
            const FileUtente file = Utente(modo, Blu).Con(RigaSpessore, GetParam());
            disco.Scrivi("_predefinito", file);
            Partita partita(disco, schermo, 5);
            const Tavolo tavolo(partita.ApriLivello(9), MisureLivelli.at(9), file);
            const auto pareti = [&] {
                return MacchiaDi(tavolo.Guarda().Immagine(), tavolo.Colore(RigaPareti)).Quanti;
            };
            const int prima = pareti();
            for (int i = 0; i < 12; ++i) {
                if (modo == 0) {
                    tavolo.Passo(i % 4);
                } else {
                    partita.Tempo.Advance(Giro);
                    Spazio(tavolo.Form_);
                    Invio(tavolo.Form_);
                }
            }
            EXPECT_EQ(pareti(), prima) << "input " << modo << " width " << schermo.Width;
            EXPECT_GE(tavolo.Passi(), 1);
        }
    }
}

class DueTasti : public ConInterruttori {};
class UnTasto : public ConInterruttori {};

TEST_F(DueTasti, OnAStepTheOfferStaysAndARestartShowsNone) {
    const Tavolo tavolo = Apri(9, Manuale);
    partenza_ = tavolo.Partenza();
    const int dentro = Offerta(Contrario(partenza_.Lato));
    for (int i = 0; i < dentro; ++i) {
        Spazio(tavolo.Form_);
    }
    Invio(tavolo.Form_);
    EXPECT_EQ(tavolo.Passi(), 1);
    EXPECT_EQ(Tratti(tavolo, partenza_, false), std::vector{dentro});

    Partita::Scegli(tavolo.Form_, "mnuRicomincia");
    EXPECT_TRUE(TrattiAllInizio(tavolo).empty());
    Spazio(tavolo.Form_);
    EXPECT_EQ(TrattiAllInizio(tavolo), std::vector{(dentro + 1) % 4});

    // The next maze begins with what is on offer.
    Partita::Scegli(tavolo.Form_, "mnuNuovo");
    partenza_ = tavolo.Partenza();
    EXPECT_EQ(TrattiAllInizio(tavolo), std::vector{(dentro + 1) % 4});
}

TEST_F(DueTasti, AWallIsAHitAndMovesNothing) {
    const Tavolo tavolo = Apri(9, Manuale);
    const int fuori = Offerta(tavolo.Partenza().Lato);
    for (int i = 0; i < fuori; ++i) {
        Spazio(tavolo.Form_);
    }
    const QImage prima = tavolo.Guarda().Immagine();
    Invio(tavolo.Form_);
    Invio(tavolo.Form_);
    EXPECT_EQ(tavolo.Urti(), 2);
    EXPECT_EQ(tavolo.Passi(), 0);
    EXPECT_EQ(tavolo.Guarda().Immagine(), prima);
}

TEST_F(UnTasto, NothingIsOnShowAfterAStepOrAHitUntilTheNextTick) {
    const Tavolo tavolo = Apri(9, Automatica);
    partenza_ = tavolo.Partenza();
    const int dentro = Offerta(Contrario(partenza_.Lato));
    const int fuori = Offerta(partenza_.Lato);
    Tic(fuori == 0 ? 4 : fuori);
    Spazio(tavolo.Form_);
    EXPECT_EQ(tavolo.Urti(), 1);
    EXPECT_TRUE(TrattiAllInizio(tavolo).empty());
    Tic(2);
    EXPECT_EQ(TrattiAllInizio(tavolo), std::vector{dentro});
    Spazio(tavolo.Form_);
    EXPECT_EQ(tavolo.Passi(), 1);
    EXPECT_TRUE(Tratti(tavolo, partenza_, false).empty());
    Tic();
    EXPECT_EQ(Tratti(tavolo, partenza_, false), std::vector{(dentro + 1) % 4});
}

TEST_F(UnTasto, BeforeTheFirstTickASpaceReachesNobody) {
    const Tavolo tavolo = Apri(9, Automatica);
    Spazio(tavolo.Form_);
    EXPECT_EQ(tavolo.Urti() + tavolo.Passi(), 0);
    Tic();
    EXPECT_TRUE(ImmagineTasti(tavolo.Form_).hasFocus());
    Spazio(tavolo.Form_);
    EXPECT_EQ(tavolo.Urti() + tavolo.Passi(), 1);
}

TEST_P(OgniModo, OtherKeysDoNothing) {
    const auto [livello, modo] = GetParam();
    const Tavolo tavolo = Apri(livello, modo);
    Tic();
    const QImage prima = tavolo.Guarda().Immagine();
    for (const int tasto : {int(Qt::Key_Left), int(Qt::Key_Up), int(Qt::Key_Right),
                            int(Qt::Key_Down), int(Qt::Key_A), int(Qt::Key_Escape)}) {
        Tap(tavolo.Form_, tasto);
    }
    if (modo == Automatica) {
        Invio(tavolo.Form_);
    }
    EXPECT_EQ(tavolo.Urti() + tavolo.Passi(), 0);
    EXPECT_EQ(tavolo.Guarda().Immagine(), prima);
}

TEST_P(OgniModo, AHeldSwitchIsOneStroke) {
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

TEST_P(OgniModo, TheKeyboardComesBackFromAClick) {
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

TEST_P(OgniModo, NoMenuLosesTheKeyboardToTheTimer) {
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

TEST_P(OgniModo, AnotherProgramKeepsTheKeyboard) {
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
