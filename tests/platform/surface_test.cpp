// What pens leave on a surface, pixel by pixel.
#include "platform/surface.h"

#include <QPainter>
#include <algorithm>
#include <random>

#include "platform/bare_program.h"
#include "platform/qt/surface_native.h"

namespace trameli {
namespace {

constexpr Colour Back = Rgb(255, 250, 240);
constexpr Colour Ink = Rgb(10, 60, 200);
constexpr double Twips = 15;
constexpr double Ratios[] = {1, 1.25, 1.5, 2, 3};

/// A surface of so many logical pixels.
class Sheet : public Surface {
public:
    Sheet(QSize size, double ratio, double twips = Twips) : Ratio(ratio) {
        SurfaceNative().Setup(twips, Back);
        SurfaceNative().Resize(size, ratio);
    }

    const QImage& Image() const { return SurfaceNative().Image(); }
    bool IsBlank() const { return Share(Image(), Back) == 1; }

    double Ratio;
};

/// Draws one of some points, lines and bars at odd places, always the same ones for one size.
void Draw(int figure, Surface& surface, double size, Colour colour, bool backwards = false) {
    std::mt19937 engine(static_cast<unsigned>(figure));
    const auto place = [&] { return size * (1.2 * static_cast<double>(engine()) / 0x1p32 - 0.1); };
    const double x = place();
    const double y = place();
    // Points, lines across and upright in turn, and some that slant.
    const double x2 = figure % 3 == 1 ? place() : x;
    const double y2 = figure % 3 == 2 || figure % 6 == 1 ? place() : y;
    const auto kind = figure % 2 == 0 ? &Surface::DrawBox : &Surface::DrawLine;
    backwards ? (surface.*kind)(x2, y2, x, y, colour) : (surface.*kind)(x, y, x2, y2, colour);
}

/// A screen that shows the surface by and by, as the toolkit does: only what was announced is
/// painted, cut off at the announced area in whole device pixels.
class Screenful {
public:
    explicit Screenful(Sheet& sheet) : sheet_(sheet) {
        image_ = QImage(sheet.Image().size(), QImage::Format_RGB32);
        image_.setDevicePixelRatio(sheet.Ratio);
        sheet.SurfaceNative().Changed = [this](const QRect& where) { changed_ |= where; };
        changed_ = QRect(QPoint(0, 0), (QSizeF(image_.size()) / sheet.Ratio).toSize());
    }

    QImage Image() {
        QPainter painter(&image_);
        painter.setClipRect(changed_);
        sheet_.SurfaceNative().Paint(painter, changed_);
        changed_ = QRect();
        QImage image = image_;
        image.setDevicePixelRatio(1);
        return image;
    }

private:
    Sheet& sheet_;
    QImage image_;
    QRect changed_;
};

TEST(SurfaceTest, BackgroundColourTakesAwayEveryPixelAndTheScreenShowsIt) {
    constexpr int size = 67;
    const auto eraseAll = [](double ratio, double twips, int width) {
        Sheet sheet(QSize(size, size), ratio, twips);
        Screenful screen(sheet);
        ASSERT_TRUE(screen.Image() == sheet.Image());
        for (const int thicker : {0, 1, 7}) {
            SCOPED_TRACE(testing::Message() << "width " << width << " + " << thicker << ", scale "
                                            << ratio << ", twips per pixel " << twips);
            sheet.DrawWidth(width);
            for (int figure = 0; figure < 12; ++figure) {
                Draw(figure, sheet, size * twips, Ink);
                ASSERT_TRUE(screen.Image() == sheet.Image()) << figure;
            }
            ASSERT_FALSE(sheet.IsBlank());
            sheet.DrawWidth(width + thicker);
            for (int figure = 0; figure < 12; ++figure) {
                Draw(figure, sheet, size * twips, Back, (width + thicker) % 2 == 1);
            }
            ASSERT_TRUE(sheet.IsBlank());
            ASSERT_TRUE(screen.Image() == sheet.Image());
        }
    };
    for (const int width : {1, 2, 3, 4, 5, 7, 10, 16, 31, 60}) {
        for (const double ratio : Ratios) {
            ASSERT_NO_FATAL_FAILURE(eraseAll(ratio, Twips, width));
        }
        for (const double twips : {1.0, 8.0, 14.0}) {
            ASSERT_NO_FATAL_FAILURE(eraseAll(1.25, twips, width));
        }
    }
}

TEST(SurfaceTest, KeepsItsDrawingWhenItsSizeChangesAndItsPictureWhenItIsCleared) {
    Sheet sheet(QSize(100, 80), 1.25);
    QImage picture(1, 1, QImage::Format_RGB32);
    picture.fill(Qt::red);
    sheet.SurfaceNative().Backdrop([&](const QSize&) { return picture; });
    sheet.FillBox(300, 300, 9000, 9000, Ink);
    const QImage before = sheet.Image();
    sheet.SurfaceNative().Resize(QSize(150, 60), 1.25);
    const QRect both = before.rect() & sheet.Image().rect();
    EXPECT_EQ(sheet.Image().copy(both), before.copy(both));
    EXPECT_EQ(Count(sheet.Image(), Ink), Count(before.copy(both), Ink)) << "the rest is blank";
    sheet.Cls();
    EXPECT_EQ(sheet.Image().pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_EQ(Count(sheet.Image(), Ink), 0);
}

}  // namespace
}  // namespace trameli
