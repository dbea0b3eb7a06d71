// From the first window to the last with nothing but switches.
#include "game/interruttori.h"
#include "platform/combo_box.h"
#include "platform/command_button.h"
#include "platform/option_button.h"
#include "platform/shape.h"

namespace trameli {
namespace {

class SoliInterruttori : public ConInterruttori, public testing::WithParamInterface<int> {
protected:
    /// Goes on until the frame of the menu's offers stands round a control, and takes it.
    void Prendi(const PlacedControl& controllo) {
        Form& menu = partita_.Finestra("FormMenu");
        partita_.Tempo.Advance(DopoUnaNovita);
        for (int i = 0; i < 20 && !Offerto(menu, controllo); ++i) {
            Prossima(menu);
        }
        ASSERT_TRUE(Offerto(menu, controllo)) << controllo.Name();
        partita_.Tempo.Advance(DopoUnTasto);
        Conferma(menu);
        Pump();
    }

    /// Whether the frame is seen and stands close round it, on all sides.
    static bool Offerto(const Form& menu, const PlacedControl& controllo) {
        const QWidget& widget = WidgetOf(controllo);
        for (const char* nome : {"CorniceForm", "CorniceFrame"}) {
            const QWidget& cornice = WidgetOf(Trova<Shape>(menu, nome));
            const QRect intorno = cornice.geometry();
            if (cornice.isVisible() && cornice.parentWidget() == widget.parentWidget() &&
                intorno.contains(widget.geometry()) && intorno.width() < widget.width() + 40 &&
                intorno.height() < widget.height() + 40) {
                return true;
            }
        }
        return false;
    }

    Form& Menu() {
        partita_.Tempo.Advance(0.3 + DopoUnaNovita);
        return partita_.Finestra("FormMenu");
    }

    void GiocaIlLivello(const char* finestra, int livello) {
        int offerta = 0;
        for (int tramelo = 0; tramelo < 5; ++tramelo) {
            partita_.Tempo.Advance(DopoUnaNovita);
            const Tavolo tavolo = AlTavolo(partita_.Finestra(finestra), livello);
            if (modo_ == Automatica) {
                Tic();  // brings the first stroke
                offerta = (offerta + 1) % NumeroDirezioni;
            }
            Risolvi(tavolo, offerta);
            partita_.Tempo.Advance(DopoUnaNovita);
            if (tramelo < 4) {
                Spazio(tavolo.Form_);
            }
        }
    }

    /// Does nothing until the way out is on offer; tells how many directions were.
    int AspettaLUscita(const char* finestra) {
        Form& form = partita_.Finestra(finestra);
        partita_.Tempo.Advance(DopoUnaNovita);
        int offerte = modo_ == Manuale ? 1 : 0;
        while (offerte < 40 && !WidgetOf(Trova<CommandButton>(form, "BottoneMenu")).isVisible()) {
            Prossima(form);
            ++offerte;
        }
        partita_.Tempo.Advance(DopoUnaNovita);
        return offerte - 1;
    }
};

INSTANTIATE_TEST_SUITE_P(Modi, SoliInterruttori, testing::Values(Manuale, Automatica));

TEST_P(SoliInterruttori, PlayFromTheSplashThroughTwoLevelsToAnotherOneAndOut) {
    modo_ = GetParam();
    file_ = Utente(modo_).Con(RigaLivello, 0);
    disco_.Scrivi("_predefinito", file_);
    // Between two who play in one way, some who do not.
    disco_.Scrivi("Anna", Utente(Tastiera));
    disco_.Scrivi("Bea", Utente(modo_ == Manuale ? Automatica : Manuale));
    disco_.Scrivi("Carlo", Utente(modo_));
    partita_.Avvia();
    partita_.Tempo.Advance(DopoUnaNovita);
    Spazio(partita_.Finestra("FormAvvio"));
    Prendi(Trova<CommandButton>(Menu(), "Command1", 0));

    GiocaIlLivello("frmTrm0", 0);
    Form& finale = partita_.Finestra("FormFinale");
    partita_.Tempo.Advance(1 + DopoUnaNovita);
    Prossima(finale);
    Conferma(finale);
    GiocaIlLivello("frmTrm0", 1);
    partita_.Tempo.Advance(1 + DopoUnaNovita);
    Conferma(partita_.Finestra("FormFinale"));  // stays at the level

    EXPECT_EQ(AspettaLUscita("frmTrm0"), 16);
    Conferma(partita_.Finestra("frmTrm0"));
    EXPECT_EQ(partita_.Gioco.Stato().Livello, 1);

    Form& menu = Menu();
    Prendi(Trova<ComboBox>(menu, "Combo1"));
    EXPECT_EQ(partita_.Gioco.Stato().NomeUtente, "Carlo");
    Prendi(Trova<Shape>(menu, "Shape3"));
    Prendi(Trova<OptionButton>(menu, "Option1", 9));
    Prendi(Trova<CommandButton>(menu, "Command1", 0));
    EXPECT_EQ(partita_.Gioco.Stato().Livello, 9);
    AspettaLUscita("frmTrm3");
    Conferma(partita_.Finestra("frmTrm3"));

    const auto& uscita = Trova<CommandButton>(Menu(), "Command1", 1);
    Prendi(uscita);
    EXPECT_NE(uscita.Caption(), "");
    partita_.Tempo.Advance(DopoUnaNovita);
    Prossima(partita_.Finestra("FormMenu"));
    Tic(10);  // thought better of it
    EXPECT_FALSE(partita_.Gioco.Forms().Ended());
    Prendi(uscita);
    partita_.Tempo.Advance(DopoUnTasto);
    Conferma(partita_.Finestra("FormMenu"));  // too quick to be meant
    EXPECT_FALSE(partita_.Gioco.Forms().Ended());
    partita_.Tempo.Advance(DopoUnaNovita);
    Conferma(partita_.Finestra("FormMenu"));
    EXPECT_TRUE(partita_.Gioco.Forms().Ended());
}

TEST_P(SoliInterruttori, RestInATimedLevelAndLeaveIt) {
    const Tavolo tavolo = Apri(4, GetParam());
    // Only the congratulations lead there.
    partita_.Gioco.Stato().Livello = 5;
    partita_.Gioco.Forms().HandOver(tavolo.Form_, "frmTrm1");
    Form& form = partita_.Finestra("frmTrm1");
    partita_.Tempo.Advance(3 + DopoUnaNovita);
    const Tavolo gioco{form, 5, file_};
    Spazio(form);
    const int passi = gioco.Passi();
    partita_.Tempo.Advance(DopoUnaNovita);
    if (modo_ == Automatica) {
        Tic(5);
    }
    EXPECT_EQ(gioco.Passi() + gioco.Urti(), passi);
    const auto& continua = Trova<CommandButton>(form, "BottoneContinua");
    const auto& menu = Trova<CommandButton>(form, "BottoneMenu");
    while (!WidgetOf(continua).hasFocus()) {
        Prossima(form);
    }
    Conferma(form);
    EXPECT_FALSE(WidgetOf(continua).isVisible() || WidgetOf(menu).isVisible());
    partita_.Tempo.Advance(10);
    EXPECT_GT(gioco.Passi() + gioco.Urti(), passi);

    Spazio(form);
    partita_.Tempo.Advance(DopoUnaNovita);
    while (!WidgetOf(menu).hasFocus()) {
        Prossima(form);
    }
    Conferma(form);
    EXPECT_TRUE(partita_.Aperta("FormMenu"));
}

}  // namespace
}  // namespace trameli
