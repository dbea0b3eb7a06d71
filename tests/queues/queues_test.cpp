// Mazes on paper, by way of the real print system.
#include <QLocalServer>

#include "game/partita.h"
#include "platform/qt/desktop_printers.h"
#include "platform/qt/handover.h"
#include "printing/frm_stampa.h"
#include "queues/page.h"
#include "queues/scheduler.h"

namespace trameli {
namespace {

/// A player at a machine with the printers of a print system.
class Macchina {
public:
    DesktopPrinters Stampanti;
    Disco Dischi;
    Partita Gioco{Dischi,
                  {800, 600},
                  std::make_unique<CasualeConSeme>(7),
                  {ProgrammaFornito(), "", &Stampanti}};

    /// A maze of the level after the first step.
    Tavolo Cammino(int livello) {
        Tavolo tavolo{Gioco.ApriLivello(livello), livello};
        tavolo.Passo(Contrario(tavolo.Partenza().Lato));
        return tavolo;
    }
};

/// Replaces what stands in a box, key by key.
void Digita(Form& stampa, const char* casella, int numero) {
    ClickOn(Trova<TextBox>(stampa, casella));
    Tap(stampa, Qt::Key_A, Qt::ControlModifier);
    for (const char cifra : std::to_string(numero)) {
        Tap(stampa, cifra);
    }
}

/// Opens the list of printers and types the first letter of one.
void Scegli(Form& stampa, const char* coda) {
    ClickOn(Trova<ComboBox>(stampa, "cboPrinterNames"));
    Tap(stampa, *coda);
    Tap(stampa, Qt::Key_Return);
}

/// Red, green and blue weigh the same.
QImage InGrigio(QImage immagine) {
    for (int y = 0; y < immagine.height(); ++y) {
        for (int x = 0; x < immagine.width(); ++x) {
            const QColor colore = immagine.pixelColor(x, y);
            const int media = qRound((colore.red() + colore.green() + colore.blue()) / 3.0);
            immagine.setPixelColor(x, y, QColor(media, media, media));
        }
    }
    return immagine;
}

struct Foglio {
    const char* Coda;
    QPointF Margini;  ///< of the printer, from the corner of the landscape page, in points
    QRect Stampa;     ///< as it is typed
    int Copie;
    bool Grigio;
};

class Code : public testing::TestWithParam<Foglio> {};

INSTANTIATE_TEST_SUITE_P(Fogli, Code,
                         testing::Values(Foglio{"Grigia", {34, 14}, {12, 7, 251, 130}, 2, true},
                                         Foglio{"Colorata", {20, 30}, {0, 24, 260, 160}, 1, false}),
                         [](const auto& foglio) { return foglio.param.Coda; });

TEST_P(Code, PrintWhatIsSeenWhereItIsWanted) {
    Scheduler sistema;
    Macchina macchina;
    const Foglio& foglio = GetParam();
    const Tavolo tavolo = macchina.Cammino(15);
    QImage schermo;
    macchina.Gioco.Stampa(tavolo.Form_, [&](Form& stampa) {
        // The mark at the finish is not printed.
        WidgetOf(Trova<Image>(tavolo.Form_, "Image2")).hide();
        schermo = Shot(Trova<PictureBox>(tavolo.Form_, "pictureTramelo"));
        Scegli(stampa, foglio.Coda);
        ClickOn(Trova<CheckBox>(stampa, "chkProporzioni"));
        Digita(stampa, "txtPrX", foglio.Stampa.x());
        Digita(stampa, "txtPrY", foglio.Stampa.y());
        Digita(stampa, "txtPrW", foglio.Stampa.width());
        Digita(stampa, "txtPrH", foglio.Stampa.height());
        Digita(stampa, "txtNCopies", foglio.Copie);
        Tap(stampa, Qt::Key_Return);
    });
    const std::vector<std::string> lavori(static_cast<std::size_t>(foglio.Copie),
                                          foglio.Coda + std::string(": Trameli"));
    EXPECT_EQ(sistema.Jobs(), lavori);
    if (foglio.Grigio) {
        schermo = InGrigio(schermo);
    }
    for (int copia = 0; copia < foglio.Copie; ++copia) {
        const QImage pagina = Rendered(sistema.Delivered());
        const QRectF posto = PlaceOf(schermo, pagina);
        const QPointF angolo = posto.topLeft() / PixelsPerMillimetre - foglio.Margini * 25.4 / 72;
        EXPECT_NEAR(angolo.x(), foglio.Stampa.x(), 0.5);
        EXPECT_NEAR(angolo.y(), foglio.Stampa.y(), 0.5);
        EXPECT_NEAR(posto.width() / PixelsPerMillimetre, foglio.Stampa.width(), 0.5);
        EXPECT_NEAR(posto.height() / PixelsPerMillimetre, foglio.Stampa.height(), 0.5);
        EXPECT_TRUE(ShowsWhole(pagina, schermo));
        EXPECT_EQ(pagina.allGray(), foglio.Grigio);
    }
}

TEST(StampaDiretta, FillsALandscapeSheetOfTheDefaultPrinter) {
    Scheduler sistema;
    Macchina macchina;
    const Tavolo tavolo = macchina.Cammino(1);
    Tap(tavolo.Form_, Qt::Key_M, Qt::ControlModifier);  // bars instead of lines
    const PixelSize parte = tavolo.Form_.ClientPixels();
    QImage schermo;
    macchina.Gioco.Tempo.In(0.5, [&] {
        const QImage finestra = Shot(tavolo.Form_);
        schermo = finestra.copy(0, finestra.height() - parte.Height, parte.Width, parte.Height);
    });
    Tap(tavolo.Form_, Qt::Key_S, Qt::ControlModifier);
    const QImage pagina = Rendered(sistema.Delivered());
    EXPECT_EQ(sistema.Jobs(), (std::vector<std::string>{"Colorata: Trameli"}));
    // The whole millimetres between the edges of the paper.
    const double scala = std::min(275.0 / parte.Width, 187.0 / parte.Height);
    EXPECT_NEAR(PlaceOf(schermo, pagina).width() / PixelsPerMillimetre, parte.Width * scala, 0.5);
    EXPECT_TRUE(ShowsWhole(pagina, schermo));
}

TEST(SistemaMuto, LeavesThePrinterOfFiles) {
    const TemporaryFolder cartella;
    QLocalServer muto;
    ASSERT_TRUE(muto.listen(QString::fromStdString((cartella.Path() / "socket").string())));
    AskForPrintersAt(cartella.Path() / "socket");
    Macchina macchina;
    EXPECT_TRUE(macchina.Gioco.Stampa(macchina.Cammino(7).Form_, [](Form& stampa) {
        EXPECT_EQ(Trova<ComboBox>(stampa, "cboPrinterNames").Text(), "PDF");
    }));
    EXPECT_TRUE(muto.hasPendingConnections());
}

TEST(CodaChiusa, TellsThatItTakesNothing) {
    Scheduler sistema;
    Macchina macchina;
    macchina.Gioco.Stampa(macchina.Cammino(7).Form_, [&](Form& stampa) {
        QProcess::execute("/usr/sbin/cupsreject", {"Colorata"});
        Tap(stampa, Qt::Key_Return);
        EXPECT_TRUE(macchina.Gioco.Aperta("frmStampa"));
    });
    EXPECT_TRUE(macchina.Gioco.Messaggi.Messages.at(0).Text.starts_with("Stampa interrotta.\r"));
    EXPECT_TRUE(sistema.Jobs().empty());
}

TEST(SistemaSparito, LeavesNoQueueBehind) {
    DesktopPrinters stampanti{PdfOptions()};
    {
        const Scheduler sistema;
        EXPECT_EQ(stampanti.Names(), (std::vector<std::string>{"Colorata", "Grigia", "PDF"}));
    }
    EXPECT_EQ(stampanti.Names(), std::vector<std::string>{"PDF"});
}

TEST(CodaLenta, CancelsAJobThatComesTooLate) {
    Scheduler sistema;
    Handover consegna(std::make_shared<KnownQueues>(), std::make_shared<PdfPrinter>(PdfOptions()));
    int segni = 0;  // one for the page, one for the job, one for its bytes
    EXPECT_FALSE(consegna.Print(consegna.AskForDefault(), {}, {"Trameli", {{}}},
                                [&segni] { return ++segni <= 3; }));
    EXPECT_EQ(segni, 4);
    EXPECT_EQ(sistema.Jobs(), std::vector<std::string>{"Colorata: Trameli (cancelled)"});
}

}  // namespace
}  // namespace trameli
