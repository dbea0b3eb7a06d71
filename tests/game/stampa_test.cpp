// A maze on its way to paper, and the game that goes on.
#include <gtest/gtest.h>

#include "game/interruttori.h"
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

}  // namespace
}  // namespace trameli
