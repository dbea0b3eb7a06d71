// A maze on its way to paper, and the game that goes on.
#include <gtest/gtest.h>

#include "game/interruttori.h"
#include "platform/command_button.h"
#include "platform/image.h"

namespace trameli {
namespace {

/// Where two pictures differ, but for one colour of the first that the other has as white.
QRect Differenze(const QImage& prima, const QImage& dopo, QRgb bianca = 0, QRect senza = {}) {
    QRect dove;
    for (int y = 0; y < prima.height(); ++y) {
        for (int x = 0; x < prima.width(); ++x) {
            const QRgb era = prima.pixel(x, y) == bianca ? Pixel(White) : prima.pixel(x, y);
            dove |= era == dopo.pixel(x, y) || senza.contains(x, y) ? QRect() : QRect(x, y, 1, 1);
        }
    }
    return dove;
}

class StampaDiretta : public ConTavolo, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Modi, StampaDiretta, testing::Range(0, 3));

TEST_P(StampaDiretta, PutsTheWindowOnWhitePaperOnceAndChangesNothing) {
    constexpr int verde = Rgb(1, 230, 2);
    const bool barre = GetParam() == Tastiera;
    const Tavolo tavolo = Apri(1, Utente(GetParam())
                                      .Con(RigaScansione, verde)
                                      .Con(RigaSpessore, 2)
                                      .Con(RigaVelocita, 8)
                                      .Con(RigaLinee, barre ? "False" : "True"));
    Form& form = tavolo.Form_;
    if (GetParam() == Tastiera) {
        const Macchia simbolo = MacchiaDi(tavolo.Guarda().Immagine(), Pixel(Blu));
        for (const int verso : {Su, Giu, AllaDestra, AllaSinistra}) {
            tavolo.Passo(verso);
        }
        ASSERT_NE(MacchiaDi(tavolo.Guarda().Immagine(), Pixel(Blu)).Posto, simbolo.Posto);
    } else {
        partita_.Tempo.Advance(4);  // two ticks
    }
    const double ora = partita_.Tempo.Now();
    const QImage prima = Shot(form);
    const QRect tratto = MacchiaDi(prima, Pixel(verde)).Posto;
    const QString passi = QString::fromStdString(tavolo.Pannello(4));
    const QRgb sfondo = tavolo.Colore(RigaSfondo);
    partita_.Tempo.In(0.5, [&] {
        EXPECT_EQ(MacchiaDi(tavolo.Guarda().Immagine(), sfondo).Quanti, 0);
        EXPECT_EQ(MacchiaDi(Shot(form), Pixel(verde)).Posto, tratto) << "a switch may choose it";
        Comando(tavolo, Qt::Key_S);
    });
    Comando(tavolo, Qt::Key_S);
    EXPECT_EQ(partita_.Tempo.Now(), ora + 1);

    ASSERT_EQ(partita_.Stampanti.Printed.size(), 1U);
    const auto& [finestra, nome, orientamento, carta] = partita_.Stampanti.Printed[0];
    EXPECT_EQ(finestra + nome, "frmTrm0Trameli");
    EXPECT_EQ(orientamento, PrinterSettings::Landscape);
    EXPECT_EQ(MacchiaDi(carta, Pixel(verde)).Quanti, 0);
    const QRect simbolo = MacchiaDi(Shot(form), Pixel(Blu)).Posto;
    // The finish mark lets the ground show through at its edges.
    const QWidget& arrivo = WidgetOf(Trova<Image>(form, "Image2"));
    const QRect mark{arrivo.mapTo(arrivo.window(), QPoint()), arrivo.size()};
    EXPECT_TRUE((simbolo | tratto).contains(Differenze(prima, carta, sfondo, mark)));
    EXPECT_EQ(simbolo | Differenze(prima, Shot(form)), simbolo) << "its corners at the most";
    EXPECT_EQ(tratto, MacchiaDi(Shot(form), Pixel(verde)).Posto);
    EXPECT_EQ(tavolo.Pannello(4).c_str(), passi);
}

class StampaDallaFinestra : public ConTavolo, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Livelli, StampaDallaFinestra, testing::Values(6, 15), NomeLivello);

TEST_P(StampaDallaFinestra, HandsTheMazeOverOnWhiteWhileTheClockGoesOn) {
    const bool aTempo = GetParam() == 6;
    const Tavolo tavolo = Apri(GetParam(), Utente(Tastiera).Con(RigaSpessore, 2));
    const auto passi = tavolo.Soluzione();
    if (!aTempo) {
        tavolo.Cammina({passi.begin(), passi.begin() + 3});
    }
    const QRgb sfondo = tavolo.Colore(RigaSfondo);
    const QImage prima = tavolo.Guarda().Immagine();
    const int quanti = tavolo.Passi();
    EXPECT_TRUE(partita_.Stampa(tavolo.Form_, [&](const Form& finestra) {
        partita_.Tempo.Advance(0.1);
        EXPECT_EQ(MacchiaDi(tavolo.Guarda().Immagine(), sfondo).Quanti, 0);
        ClickOn(Trova<CommandButton>(finestra, "cmdStampa"));
    }));
    EXPECT_EQ(tavolo.Passi(), quanti + (aTempo ? 1 : 0));

    ASSERT_EQ(partita_.Stampanti.Documents.size(), 1U);
    const NotedPrinters::Document& documento = partita_.Stampanti.Documents[0];
    EXPECT_EQ(documento.Name, "Trameli");
    EXPECT_EQ(documento.Settings.Orientation, PrinterSettings::Landscape);
    const auto [x, y, larghezza, altezza] = documento.Pictures.at(0);
    EXPECT_EQ(QRect(x, y, larghezza, altezza), QRect(100, 100, 1000, 1000));
    const PixelBlock& blocco = documento.Picture;
    const QImage carta(documento.Bits.data(), blocco.Width, blocco.Height, blocco.BytesPerRow,
                       QImage::Format_BGR888);
    const QImage dopo = tavolo.Guarda().Immagine();
    const QRect simbolo = MacchiaDi(prima, Pixel(Blu)).Posto | MacchiaDi(dopo, Pixel(Blu)).Posto;
    const QRect arrivo = WidgetOf(Trova<Image>(tavolo.Form_, "Image2")).geometry();
    EXPECT_EQ(simbolo | Differenze(prima, carta.mirrored(), sfondo, arrivo), simbolo);
    EXPECT_EQ(simbolo | Differenze(prima, dopo), simbolo);
}

}  // namespace
}  // namespace trameli
