// What pens leave on a surface, pixel by pixel.
#include "platform/surface.h"

#include <QPainter>
#include <algorithm>
#include <random>

#include "base/rounding.h"
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
    bool Has(int x, int y, Colour colour = Ink) const {
        return Image().valid(x, y) && Image().pixel(x, y) == PixelOf(colour);
    }
    /// The smallest rectangle round all inked pixels, in device ones.
    QRect Extent() const {
        QRect extent;
        for (int y = 0; y < Image().height(); ++y) {
            for (int x = 0; x < Image().width(); ++x) {
                if (Has(x, y)) {
                    extent |= QRect(x, y, 1, 1);
                }
            }
        }
        return extent;
    }
    /// How many pixels of a part have that colour.
    long Count(const QRect& where, Colour colour = Ink) const {
        return trameli::Count(Image().copy(where), colour);
    }
    bool IsBlank() const {
        return Count(Image().rect(), Back) == long{Image().width()} * Image().height();
    }

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
    for (int width = 1; width <= 60; ++width) {
        for (const double ratio : Ratios) {
            ASSERT_NO_FATAL_FAILURE(eraseAll(ratio, Twips, width));
        }
        for (const double twips : {1.0, 8.0, 14.0}) {
            ASSERT_NO_FATAL_FAILURE(eraseAll(1.25, twips, width));
        }
    }
}

TEST(SurfaceTest, PensAreRoundAndAsWideAsTheySayAndBarsSquare) {
    for (const double ratio : Ratios) {
        for (const int width : {0, 1, 2, 5, 6, 24, 39}) {
            SCOPED_TRACE(testing::Message() << "width " << width << " at scale " << ratio);
            const int pen = Nearest(std::max(1, width) * ratio);
            const auto draw = [&](Sheet& sheet, auto figure, double x, double x2) {
                sheet.DrawWidth(width);
                (sheet.*figure)(x * Twips, 30 * Twips, x2 * Twips, 30 * Twips, Ink);
                return sheet.Extent();
            };
            Sheet point(QSize(80, 80), ratio);
            const QRect dot = draw(point, &Surface::DrawLine, 30, 30);
            ASSERT_EQ(dot.size(), QSize(pen, pen));
            // Half a pen beyond the end, the odd pixel on one side or the other.
            EXPECT_NEAR(dot.left(), 30 * ratio - pen / 2.0, 1);
            // A circle's share of its square, the more exactly the more pixels there are.
            const auto share = static_cast<double>(point.Count(dot)) / (pen * pen);
            EXPECT_NEAR(share, 0.785, 0.005 + 0.9 / pen);

            Sheet bar(QSize(80, 80), ratio);
            const QRect extent = draw(bar, &Surface::DrawBox, 25, 55);
            EXPECT_EQ(extent.size(), QSize(Nearest(30 * ratio) + pen, pen));
            EXPECT_EQ(bar.Count(extent), long{extent.width()} * extent.height());

            Sheet line(QSize(80, 80), ratio);
            EXPECT_EQ(draw(line, &Surface::DrawLine, 25, 55), extent);
            EXPECT_EQ(line.Has(extent.left(), extent.top()), pen < 4);
        }
    }
}

TEST(SurfaceTest, KeepsItsDrawingWhenItsSizeChangesAndItsPictureWhenItIsCleared) {
    Sheet sheet(QSize(100, 80), 1.25);
    QImage picture(1, 1, QImage::Format_RGB32);
    picture.fill(Qt::red);
    sheet.SurfaceNative().Backdrop(picture);
    sheet.FillBox(300, 300, 9000, 9000, Ink);
    const QImage before = sheet.Image();
    sheet.SurfaceNative().Resize(QSize(150, 60), 1.25);
    const QRect both = before.rect() & sheet.Image().rect();
    EXPECT_EQ(sheet.Image().copy(both), before.copy(both));
    EXPECT_EQ(sheet.Extent().united(both), both) << "the new part is blank";
    sheet.Cls();
    EXPECT_TRUE(sheet.Has(0, 0, Rgb(255, 0, 0)));
    sheet.SurfaceNative().Background(White);
    EXPECT_EQ(sheet.Count(sheet.Image().rect(), White),
              long{sheet.Image().width()} * sheet.Image().height() - 1);
}

}  // namespace
}  // namespace trameli
