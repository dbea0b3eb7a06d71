// The ground of the congratulations, against ellipses drawn one by one.
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/rounding.h"
#include "platform/qt/surface_native.h"
#include "play_forms/finale.h"

namespace trameli {
namespace {

struct SchemaAtteso {
    bool Rosso, Verde, Blu;
    Colour Scritte;
};

constexpr SchemaAtteso Attesi[] = {
    {false, false, true, Rgb(255, 192, 128)}, {false, true, false, Rgb(255, 255, 0)},
    {true, false, false, Rgb(0, 0, 255)},     {false, true, true, Rgb(0, 0, 255)},
    {true, false, true, Rgb(255, 255, 0)},    {true, true, false, Rgb(255, 0, 0)},
    {true, true, true, Rgb(255, 0, 0)},
};

struct Misura {
    int Larghezza, Altezza;
};

constexpr Misura Misure[] = {{800, 600}, {683, 385}, {481, 853}, {512, 512}};

/// The ellipses as a painter draws them, the largest first.
QImage Ellissi(const SchemaAtteso& schema, QSize misura) {
    QImage immagine(misura, QImage::Format_RGB32);
    immagine.fill(QColor(0, 0, 32));
    QPainter pittore(&immagine);
    const double x = misura.width() / 2.0;
    const double y = misura.height() / 2.0;
    const double massimo = std::max(x, y);
    for (double raggio = massimo; raggio >= 1; --raggio) {
        const int c = Nearest(32 + 223 / massimo * (massimo - raggio));
        // A path, because the painter's own ellipses move by half a pixel at odd sizes.
        QPainterPath ellisse;
        ellisse.addEllipse(QPointF(x, y), raggio * x / massimo, raggio * y / massimo);
        pittore.fillPath(ellisse,
                         QColor(schema.Rosso ? c : 0, schema.Verde ? c : 0, schema.Blu ? c : 0));
    }
    return immagine;
}

bool Simili(QRgb a, QRgb b, int scarto) {
    return std::abs(qRed(a) - qRed(b)) <= scarto && std::abs(qGreen(a) - qGreen(b)) <= scarto &&
           std::abs(qBlue(a) - qBlue(b)) <= scarto;
}

/// Pixels that are further than one ring from what is expected there and one pixel around.
int Diversi(const QImage& visto, const QImage& atteso) {
    const int anello = Nearest(std::ceil(223 / (std::max(visto.width(), visto.height()) / 2.0)));
    int diversi = 0;
    for (int y = 0; y < visto.height(); ++y) {
        for (int x = 0; x < visto.width(); ++x) {
            bool trovato = false;
            for (const QPoint vicino :
                 {QPoint(0, 0), QPoint(0, 1), QPoint(0, -1), QPoint(1, 0), QPoint(-1, 0)}) {
                const QPoint dove = QPoint(x, y) + vicino;
                trovato = trovato || (atteso.rect().contains(dove) &&
                                      Simili(visto.pixel(x, y), atteso.pixel(dove), anello));
            }
            diversi += trovato ? 0 : 1;
        }
    }
    return diversi;
}

class SfumaturaTest : public FinaleTest {};

TEST_F(SfumaturaTest, IsWhatTheEllipsesGiveInAllSchemesAndSizes) {
    for (int schema = 0; schema < NumeroSchemi; ++schema) {
        for (const Misura& misura : Misure) {
            SCOPED_TRACE(testing::Message()
                         << schema << ": " << misura.Larghezza << " x " << misura.Altezza);
            Draws.Numero = (static_cast<float>(schema) + 0.5F) / NumeroSchemi;
            Avvia(misura.Larghezza, misura.Altezza);
            FormFinale& form = Mostra();
            const QImage visto = form.Canvas().SurfaceNative().Image();
            ASSERT_EQ(visto.size(), QSize(misura.Larghezza, misura.Altezza));
            const QImage atteso = Ellissi(Attesi[schema], visto.size());
            EXPECT_EQ(Diversi(visto, atteso), 0);
            EXPECT_EQ(form.Label1.ForeColor(), Attesi[schema].Scritte);
            EXPECT_EQ(form.Label2.ForeColor(), Attesi[schema].Scritte);
        }
    }
}

TEST_F(SfumaturaTest, GoesFromAnEighthOfTheBrightnessToNearlyAllOfIt) {
    for (const float raggio : {1.0F, 256.0F, 400.5F, 960.0F}) {
        const std::vector<Colour> anelli = Sfumatura(0, raggio);
        EXPECT_EQ(anelli.size(), static_cast<std::size_t>(raggio));
        EXPECT_EQ(anelli.front(), Rgb(0, 0, 32));
        EXPECT_LE(BlueOf(anelli.back()), 255);
        EXPECT_TRUE(std::is_sorted(anelli.begin(), anelli.end()));
    }
    EXPECT_GE(BlueOf(Sfumatura(0, 960).back()), 254);
    EXPECT_TRUE(Sfumatura(0, 0).empty());
}

TEST_F(SfumaturaTest, ChoosesTheSchemeWithOneDrawFromEndToEnd) {
    for (const auto& [numero, schema] : {std::pair{0.0F, 0}, {0.99999994F, 6}, {0.5F, 3}}) {
        Draws.Numero = numero;
        Avvia();
        EXPECT_EQ(Mostra().Label1.ForeColor(), Attesi[schema].Scritte);
    }
}

TEST_F(SfumaturaTest, FollowsAWindowThatChangesItsSize) {
    Draws.Numero = 0.9F;
    Avvia(640, 700);
    FormFinale& form = Mostra();
    WindowOf(form).resize(900, 600);
    Pump();
    const QImage visto = form.Canvas().SurfaceNative().Image();
    EXPECT_EQ(Diversi(visto, Ellissi(Attesi[6], QSize(900, 600))), 0);
    const QImage finestra = Shot(form);
    for (const QPoint dove : {QPoint(0, 0), QPoint(899, 599), QPoint(1, 300), QPoint(450, 5)}) {
        EXPECT_EQ(finestra.pixel(dove), visto.pixel(dove)) << "the ground is what is seen";
    }
}

}  // namespace
}  // namespace trameli
