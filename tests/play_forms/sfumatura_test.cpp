// The ground of the congratulations.
#include <QImage>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

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

/// Pixels that are not as bright as their ellipse should be, three rings more or less.
int Diversi(const QImage& visto, const SchemaAtteso& schema) {
    const double x = visto.width() / 2.0;
    const double y = visto.height() / 2.0;
    const double massimo = std::max(x, y);
    const double scarto = 3 * 223 / massimo + 1;
    int diversi = 0;
    for (int riga = 0; riga < visto.height(); ++riga) {
        for (int colonna = 0; colonna < visto.width(); ++colonna) {
            const double raggio =
                massimo * std::hypot((colonna + 0.5 - x) / x, (riga + 0.5 - y) / y);
            const QRgb qui = visto.pixel(colonna, riga);
            const auto come = [&](bool tinto, int colore) {
                const double luce = tinto ? 32 + 223 * (1 - raggio / massimo) : 0;
                return std::abs(colore - luce) <= (tinto ? scarto : 0);
            };
            const bool dentro = come(schema.Rosso, qRed(qui)) && come(schema.Verde, qGreen(qui)) &&
                                come(schema.Blu, qBlue(qui));
            const bool fuori = qui == qRgb(0, 0, 32);
            // Either will do right at the edge.
            diversi += (raggio < massimo + 3 && dentro) || (raggio > massimo - 3 && fuori) ? 0 : 1;
        }
    }
    return diversi;
}

class SfumaturaTest : public FinaleTest {};

TEST_F(SfumaturaTest, IsWhatTheEllipsesGiveInAllSchemesAndSizes) {
    constexpr std::array<QSize, 3> misure{QSize(800, 600), QSize(481, 853), QSize(512, 512)};
    for (std::size_t schema = 0; schema < NumeroSchemi; ++schema) {
        SCOPED_TRACE(schema);
        Draws.Numero = (static_cast<float>(schema) + 0.5F) / NumeroSchemi;
        FormFinale& form = AvviaEMostra();
        // A window may still change its size after it came up.
        const QSize misura = misure.at(schema % misure.size());
        WindowOf(form).resize(misura);
        Pump();
        const QImage visto = form.Canvas().SurfaceNative().Image();
        ASSERT_EQ(visto.size(), misura);
        EXPECT_EQ(Diversi(visto, Attesi[schema]), 0);
        EXPECT_EQ(Shot(form).pixel(1, 1), visto.pixel(1, 1)) << "the ground is what is seen";
        EXPECT_EQ(form.Label1.ForeColor(), Attesi[schema].Scritte);
        EXPECT_EQ(form.Label2.ForeColor(), Attesi[schema].Scritte);
    }
}

TEST_F(SfumaturaTest, GoesFromAnEighthOfTheBrightnessToNearlyAllOfIt) {
    for (const float raggio : {1.0F, 256.0F, 400.5F, 960.0F}) {
        const std::vector<Colour> anelli = Sfumatura(0, raggio);
        EXPECT_EQ(anelli.size(), static_cast<std::size_t>(raggio));
        EXPECT_EQ(anelli.front(), Rgb(0, 0, 32));
        EXPECT_LE(BlueOf(anelli.back()), 255);
    }
    EXPECT_GE(BlueOf(Sfumatura(0, 960).back()), 254);
    EXPECT_TRUE(Sfumatura(0, 0).empty());
}

}  // namespace
}  // namespace trameli
