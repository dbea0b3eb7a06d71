// The print window on a machine with printers of its own.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QLineEdit>

#include <QTimer>

#include "game/partita.h"
#include "printing/frm_stampa.h"

namespace trameli {
namespace {

/// What there is to print: a red square on white.
class Disegnata : public Form {
public:
    explicit Disegnata(trameli::Forms& forms) : Form(forms, "Disegnata", {3000, 3000}) {
        Disegno.BackColor(White);
        Disegno.FillBox(300, 300, 1200, 1200, Rgb(255, 0, 0));
    }
    PictureBox Disegno{*this, "Disegno", {0, 0, 1500, 1500}};
    Label Scritta{*this, "Scritta", {0, 0, 1500, 1500}, ""};
};

using Gesti = std::function<void(frmStampa&)>;

class StampaTest : public testing::Test {
protected:
    StampaTest() {
        Gioco().Register("Disegnata",
                         [](Forms& forms) { return std::make_unique<Disegnata>(forms); });
        partita_.ApriMenu();
        sorgente_ = dynamic_cast<Disegnata*>(&Gioco().Load("Disegnata"));
        cosa_ = &sorgente_->Disegno;
    }

    Forms& Gioco() { return partita_.Gioco.Forms(); }
    frmStampa* Finestra() { return dynamic_cast<frmStampa*>(Gioco().Find("frmStampa")); }

    /// Opens the window, does something in it once it is seen, and closes it if that has not.
    /// Returns whether it was ever seen.
    bool Apri(const Gesti& gesti, int lato = 100) {
        bool vista = false;
        QTimer attesa;
        attesa.callOnTimeout([&] {
            if (frmStampa* const finestra = Finestra();
                finestra && WindowOf(*finestra).isVisible()) {
                attesa.stop();
                vista = true;
                gesti(*finestra);
                Pump();
                if (Finestra()) {
                    Gioco().Unload(*Finestra());
                }
            }
        });
        attesa.start(0);
        dynamic_cast<frmStampa&>(Gioco().Load("frmStampa"))
            .StampaFPB(cosa_, 10, 20, lato, lato, PrinterSettings::Landscape, "Trameli");
        return vista;
    }
    /// In the window: prints.
    static void Stampa(const frmStampa& finestra) { ClickOn(finestra.cmdStampa); }

    /// The messages since the last time, a line each: title, text with bars for line ends.
    std::string Messaggi() {
        std::string tutti;
        for (const NotedDialogs::Noted& uno : partita_.Messaggi.Messages) {
            tutti += uno.Title + ": " +
                     QString::fromStdString(uno.Text).replace("\r\n", "|").toStdString();
            EXPECT_EQ(uno.Icon, uno.Buttons == Buttons::Ok ? Icon::Critical : Icon::Question);
            tutti += "\n";
        }
        partita_.Messaggi.Messages.clear();
        return tutti;
    }

    std::vector<NotedPrinters::Document>& Documenti() { return partita_.Stampanti.Documents; }

    Disco disco_;
    Partita partita_{disco_};
    Disegnata* sorgente_;
    frmStampa::Sorgente cosa_;
};

const std::string Fine482 =
    "La stampa non è riuscita.|Codice di errore = 482|Errore della stampante\n";

/// Whether the middle of what was printed is.
bool Rosso(const NotedPrinters::Document& documento) {
    const PixelBlock& immagine = documento.Picture;
    const int mezzo = immagine.BytesPerRow * (immagine.Height / 2) + 3 * (immagine.Width / 2);
    const std::uint8_t* const pixel = documento.Bits.data() + mezzo;
    return pixel[0] == 0 && pixel[1] == 0 && pixel[2] == 255;
}

TEST_F(StampaTest, SendsOneDocumentForEachCopy) {
    EXPECT_TRUE(Apri([](frmStampa& finestra) {
        finestra.txtNCopies.Text("3");
        Tap(finestra, Qt::Key_Return);
    }));
    EXPECT_EQ(Messaggi(), "");
    EXPECT_EQ(Finestra(), nullptr);
    ASSERT_EQ(Documenti().size(), 3U);
    for (const NotedPrinters::Document& documento : Documenti()) {
        EXPECT_EQ(documento.Name + " on " + documento.Printer, "Trameli on Colori");
        EXPECT_EQ(documento.Settings.Orientation, PrinterSettings::Landscape);
        EXPECT_EQ(documento.Settings.Copies, 1);
        EXPECT_TRUE(documento.Ended && documento.Pages == 1);
        ASSERT_EQ(documento.Pictures.size(), 1U);
        const PixelRectangle& dove = documento.Pictures[0];
        EXPECT_EQ((std::array{dove.Left, dove.Top, dove.Width, dove.Height}),
                  (std::array{100, 200, 1000, 1000}));
        EXPECT_EQ(documento.Picture.Width, sorgente_->Disegno.DevicePixels().Width);
        EXPECT_TRUE(Rosso(documento));
    }
    // The number is offered again, and a change of it is taken back with the button alone.
    Apri([](frmStampa& finestra) {
        EXPECT_EQ(finestra.txtNCopies.Text(), "3");
        finestra.txtNCopies.Text("7");
        Tap(finestra, Qt::Key_Escape);
    });
    Apri([](frmStampa& finestra) {
        EXPECT_EQ(finestra.txtNCopies.Text(), "3");
        finestra.txtNCopies.Text("8");
        Partita::Chiudi(finestra);
    });
    Apri([](const frmStampa& finestra) { EXPECT_EQ(finestra.txtNCopies.Text(), "8"); });
    EXPECT_EQ(Documenti().size(), 3U);
}

TEST_F(StampaTest, TellsWhichStepFailedAndCanBeTriedAgain) {
    using Risposte = NotedPrinters::Answers;
    struct Caso {
        Risposte Passi;
        std::string Messaggi;
    };
    const std::string R = "Trameli: Stampa interrotta.|";
    for (const Caso& caso :
         std::vector<Caso>{{{.Context = false}, "Trameli: prhDC = 0|" + Fine482},
                           {{.StartDocument = -1}, "Trameli: Errore di StartDoc.|" + Fine482},
                           {{.StartPage = 0}, R + "R1 = 0|R2 = 1|R3 = 1|R4 = 1|" + Fine482},
                           {{.Stretch = 0}, R + "R1 = 1|R2 = 0|R3 = 1|R4 = 1|" + Fine482},
                           {{.EndPage = -1}, R + "R1 = 1|R2 = 1|R3 = -1|R4 = 0|" + Fine482},
                           {{.EndDocument = 0}, R + "R1 = 1|R2 = 1|R3 = 1|R4 = 0|" + Fine482}}) {
        SCOPED_TRACE(caso.Messaggi);
        EXPECT_TRUE(Apri([&](const frmStampa& finestra) {
            const QImage prima = Shot(finestra.picPreview);
            partita_.Stampanti.Answer = caso.Passi;
            ClickOn(finestra.cmdStampa);
            EXPECT_EQ(Messaggi(), caso.Messaggi);
            EXPECT_EQ(Shot(finestra.picPreview), prima);
            partita_.Stampanti.Answer = {};
            ASSERT_EQ(Finestra(), &finestra);
            Documenti().clear();
            ClickOn(finestra.cmdStampa);
            EXPECT_EQ(Messaggi(), "");
            EXPECT_EQ(Documenti().size(), 1U);
        }));
    }
}

TEST_F(StampaTest, AsksBeforeItPrintsBeyondTheSheet) {
    const std::string domanda =
        " Errore di Scala: Dimensioni stampa eccedenti i limiti del foglio||"
        "Posso cambiare la scala?\n";
    Apri(
        [&](frmStampa& finestra) {
            partita_.Messaggi.Answer = Answer::Cancel;
            ClickOn(finestra.cmdStampa);
            EXPECT_EQ(Messaggi(), domanda);
            EXPECT_TRUE(finestra.Loaded() && Documenti().empty());
            partita_.Messaggi.Answer = Answer::No;
            ClickOn(finestra.cmdStampa);
        },
        400);
    partita_.Messaggi.Answer = Answer::Yes;
    Apri(Stampa, 400);
    ASSERT_EQ(Documenti().size(), 2U);
    EXPECT_EQ(Documenti()[0].Pictures[0].Width, 4000);
    EXPECT_EQ(Documenti()[1].Pictures[0].Height, 1900);  // 190 of 200 millimetres
    EXPECT_EQ(partita_.Messaggi.Messages.size(), 2U);
}

TEST_F(StampaTest, DoesNothingElseWhileAJobIsUnderWay) {
    int volte = 0;
    partita_.Stampanti.During = [&] {
        frmStampa& finestra = *Finestra();
        EXPECT_TRUE(WidgetOf(finestra.lblStampaInCorso).isVisible());
        for (const int tasto : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space, Qt::Key_5}) {
            Tap(finestra, tasto);
        }
        for (const VisualControl* controllo : std::initializer_list<const VisualControl*>{
                 &finestra.cmdStampa, &finestra.cmdChiudi, &finestra.picPreview, &finestra.txtPrW,
                 &finestra.cmdMax}) {
            ClickOn(*controllo);
        }
        if (++volte == 2) {
            Partita::Chiudi(finestra);
        }
        EXPECT_EQ(Finestra(), &finestra);
    };
    Apri([&](frmStampa& finestra) {
        partita_.Stampanti.Answer.EndDocument = 0;
        ClickOn(finestra.cmdStampa);
        ASSERT_EQ(Finestra(), &finestra);  // it failed, and nobody has closed it
        EXPECT_TRUE(finestra.cmdStampa.Enabled());
        partita_.Stampanti.Answer = {};
        finestra.txtNCopies.Text("2");
        ClickOn(finestra.cmdStampa);
        EXPECT_EQ(Finestra(), nullptr);
    });
    EXPECT_EQ(Documenti().size(), 2U);  // the one that failed, and no second copy
}

TEST_F(StampaTest, OutlivesItsWindowAndTheProgramInTheMiddleOfAJob) {
    for (const bool tutto : {false, true}) {
        partita_.Stampanti.During = [&] {
            tutto ? Gioco().End() : Gioco().Unload(*Finestra());
            Pump();
        };
        Apri([](frmStampa& finestra) {
            finestra.txtNCopies.Text("2");
            ClickOn(finestra.cmdStampa);
        });
    }
    EXPECT_EQ(Documenti().size(), 2U);  // no second copy
    EXPECT_EQ(Messaggi(), "");
}

TEST_F(StampaTest, LivesWithPrintersThatComeAndGo) {
    NotedPrinters& stampanti = partita_.Stampanti;
    Apri([](frmStampa& finestra) {
        finestra.cboPrinterNames.ListIndex(1);
        ClickOn(finestra.cmdStampa);
    });
    Apri([&](frmStampa& finestra) {
        EXPECT_EQ(finestra.cboPrinterNames.Text(), "Grigi");  // it printed
        finestra.cboPrinterNames.ListIndex(0);
        ClickOn(finestra.cmdChiudi);
    });
    Apri([&](const frmStampa& finestra) {
        EXPECT_EQ(finestra.cboPrinterNames.Text(), "Grigi");  // the other one did not stick
        stampanti.During = [&] { stampanti.Installed.pop_back(); };
        ClickOn(finestra.cmdStampa);
    });
    EXPECT_EQ(Messaggi(), "Trameli: Stampa interrotta.|R1 = 1|R2 = 1|R3 = 1|R4 = 0|" + Fine482);
    Apri([&](frmStampa& finestra) {
        EXPECT_EQ(finestra.cboPrinterNames.Text(), "Colori");
        stampanti.Installed.clear();
    });
    Apri([&](frmStampa& finestra) {
        EXPECT_FALSE(finestra.cmdStampa.Enabled());
        EXPECT_EQ(finestra.cboPrinterNames.ListIndex(), -1);
        Tap(finestra, Qt::Key_Return);
        ClickOn(finestra.cmdMax);
        EXPECT_EQ(finestra.txtPrW.Text(), "100");
    });
    EXPECT_EQ(Messaggi(), "");
    stampanti.Installed = {{"Altra"}};
    stampanti.Answer.Open = false;
    EXPECT_TRUE(Apri([](const frmStampa&) {}));
    EXPECT_EQ(Messaggi(), "Trameli: La stampante non si può aprire.|\n");
}

TEST_F(StampaTest, DoesNotOpenWithoutSomethingToPrintAndToPrintOn) {
    const frmStampa::Sorgente disegno = cosa_;
    cosa_ = &sorgente_->Scritta;
    EXPECT_FALSE(Apri(Stampa));
    EXPECT_EQ(Messaggi(), "Trameli: Stampa di Scritta||Errore di stampa\n");
    cosa_ = disegno;
    EXPECT_FALSE(Apri(Stampa, 0));
    EXPECT_EQ(Messaggi(), "Trameli: Errore di stampa\n");
    sorgente_->Disegno.Width(0);
    EXPECT_FALSE(Apri(Stampa));
    EXPECT_EQ(Messaggi(), "Trameli: Stampa interrotta.\nTrameli: Si è verificato un errore\n");
    EXPECT_EQ(Finestra(), nullptr);
    cosa_ = sorgente_;
    Gioco().Show("Disegnata");
    Pump();
    EXPECT_TRUE(Apri(Stampa));
    EXPECT_EQ(Documenti().at(0).Picture.Width, sorgente_->WindowPixels().Width);

    Partita altra(disco_);
    altra.Stampanti.Standard = "";
    altra.ApriMenu();
    dynamic_cast<frmStampa&>(altra.Gioco.Forms().Load("frmStampa"))
        .StampaFPB(cosa_, 10, 10, 100, 100, 2, "");
    EXPECT_EQ(altra.Messaggi.Messages.at(0).Text, "Stampante di default non specificata.");
    EXPECT_EQ(altra.Gioco.Forms().Find("frmStampa"), nullptr);
}

/// Whether it has a pixel that is no grey.
bool Colorata(const VisualControl& controllo) {
    const QImage vista = Shot(controllo);
    for (int i = 0; i < vista.width() * vista.height(); ++i) {
        if (QColor(vista.pixel(i % vista.width(), i / vista.width())).saturation() > 0) {
            return true;
        }
    }
    return false;
}

TEST_F(StampaTest, ShowsWhatThePrinterWillMakeOfIt) {
    Apri([&](frmStampa& finestra) {
        EXPECT_TRUE(Colorata(finestra.picPreview));
        finestra.cboPrinterNames.ListIndex(1);
        EXPECT_FALSE(Colorata(finestra.picPreview));
        finestra.cboPrinterNames.ListIndex(0);
        EXPECT_TRUE(Colorata(finestra.picPreview));
        EXPECT_GT(finestra.picPreview.Width(), finestra.picPreview.Height());

        partita_.Stampanti.DialogAnswers = [](PrinterSettings& dati) {
            EXPECT_EQ(dati.Copies, 1);
            dati.Orientation = PrinterSettings::Portrait;
            dati.Copies = 3;
            dati.Colour = PrinterSettings::Grey;
            return true;
        };
        finestra.txtNCopies.Text("");
        ClickOn(finestra.cmdProprieta);
        EXPECT_EQ(finestra.txtNCopies.Text(), "3");
        EXPECT_FALSE(Colorata(finestra.picPreview));
        EXPECT_LT(finestra.picPreview.Width(), finestra.picPreview.Height());
        partita_.Stampanti.DialogAnswers = [](PrinterSettings& dati) {
            dati.Orientation = PrinterSettings::Landscape;
            return false;
        };
        ClickOn(finestra.cmdProprieta);
        EXPECT_LT(finestra.picPreview.Width(), finestra.picPreview.Height());
        ClickOn(finestra.cmdStampa);
    });
    ASSERT_EQ(Documenti().size(), 3U);
    EXPECT_EQ(Documenti()[2].Settings.Orientation, PrinterSettings::Portrait);
    EXPECT_EQ(Documenti()[2].Settings.Copies, 1);
    EXPECT_TRUE(Rosso(Documenti()[2]));  // grey is the printer's affair
}

TEST_F(StampaTest, FollowsWhatTheMousePastes) {
    Apri([](const frmStampa& finestra) {
        const QImage prima = Shot(finestra.picPreview);
        QApplication::clipboard()->setText("50");
        auto& casella = dynamic_cast<QLineEdit&>(WidgetOf(finestra.txtPrW));
        casella.selectAll();
        casella.paste();  // as the box's own menu does
        Pump();
        EXPECT_EQ(finestra.txtPrH.Text(), "50");
        EXPECT_NE(Shot(finestra.picPreview), prima);
    });
}

}  // namespace
}  // namespace trameli
