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

/// Numbers that look random and are the same on every machine.
class Numbers {
public:
    double Next(double low, double high) {
        return low + (high - low) * static_cast<double>(engine_()) / 0x1p32;
    }

private:
    std::mt19937 engine_;
};

/// Draws points, lines and bars at odd places, always the same ones for one size.
void DrawEverything(Surface& surface, double size, Colour colour, bool backwards = false) {
    Numbers numbers;
    const auto place = [&] { return numbers.Next(-0.1 * size, 1.1 * size); };
    for (int i = 0; i < 12; ++i) {
        const double x = place();
        const double y = place();
        // Points, lines across and upright in turn, and one that slants.
        const double x2 = i % 3 == 1 ? place() : x;
        const double y2 = i % 3 == 2 || i == 1 ? place() : y;
        const auto figure = i % 2 == 0 ? &Surface::DrawBox : &Surface::DrawLine;
        backwards ? (surface.*figure)(x2, y2, x, y, colour)
                  : (surface.*figure)(x, y, x2, y2, colour);
    }
}

TEST(SurfaceTest, BackgroundColourTakesAwayEveryPixelAtEveryWidthAndScale) {
    constexpr int size = 67;
    const auto eraseAll = [](double ratio, double twips, int width) {
        Sheet sheet(QSize(size, size), ratio, twips);
        for (const int thicker : {0, 1, 7}) {
            const bool backwards = (width + thicker) % 2 == 0;
            sheet.DrawWidth(width);
            DrawEverything(sheet, size * twips, Ink);
            ASSERT_FALSE(sheet.IsBlank());
            sheet.DrawWidth(width + thicker);
            DrawEverything(sheet, size * twips, Back, backwards);
            ASSERT_TRUE(sheet.IsBlank())
                << "width " << width << " + " << thicker << " at scale " << ratio
                << ", twips per pixel " << twips << (backwards ? ", drawn from the other end" : "");
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

TEST(SurfaceTest, PointIsRoundAndAsWideAsItsPen) {
    for (const double ratio : {1.0, 1.25, 3.0}) {
        for (int width = 0; width <= 40; ++width) {
            SCOPED_TRACE(testing::Message() << "width " << width << " at scale " << ratio);
            Sheet sheet(QSize(60, 60), ratio);
            sheet.DrawWidth(width);
            sheet.DrawLine(30 * Twips, 30 * Twips, 30 * Twips, 30 * Twips, Ink);
            const int pen = Nearest(std::max(1, width) * ratio);
            const QRect extent = sheet.Extent();
            ASSERT_EQ(extent.size(), QSize(pen, pen));
            EXPECT_NEAR(extent.left(), 30 * ratio - pen / 2.0, 1);
            // A circle's share of its square, the more exactly the more pixels there are.
            const double share = static_cast<double>(sheet.Count(extent)) / (pen * pen);
            EXPECT_NEAR(share, 0.785, 0.005 + 0.9 / pen) << sheet.Count(extent);
        }
    }
}

TEST(SurfaceTest, LineHasRoundEndsAndABarSquareOnes) {
    for (const double ratio : Ratios) {
        for (const int width : {1, 2, 5, 6, 24}) {
            SCOPED_TRACE(testing::Message() << "width " << width << " at scale " << ratio);
            const int pen = Nearest(width * ratio);
            Sheet bar(QSize(80, 80), ratio);
            bar.DrawWidth(width);
            bar.DrawBox(20 * Twips, 20 * Twips, 60 * Twips, 20 * Twips, Ink);
            const QRect extent = bar.Extent();
            EXPECT_EQ(extent.size(), QSize(Nearest(40 * ratio) + pen, pen));
            EXPECT_EQ(bar.Count(extent), long{extent.width()} * extent.height());
            // Half a pen beyond the end, the odd pixel on one side or the other.
            EXPECT_NEAR(extent.left(), 20 * ratio - pen / 2.0, 1);

            Sheet line(QSize(80, 80), ratio);
            line.DrawWidth(width);
            line.DrawLine(20 * Twips, 20 * Twips, 60 * Twips, 20 * Twips, Ink);
            EXPECT_EQ(line.Extent(), extent);
            EXPECT_EQ(line.Has(extent.left(), extent.top()), pen < 4);
        }
    }
}

TEST(SurfaceTest, WholePixelsOfTwipsAreEquallyLongWhereverTheyLie) {
    for (const double ratio : {1.0, 3.0}) {
        for (double start = -100; start < 400; start += 2.5) {
            Sheet sheet(QSize(80, 10), ratio);
            sheet.FillBox(300 + start, 0, 300 + start + 21 * Twips, 150, Ink);
            ASSERT_EQ(sheet.Extent().width(), 21 * ratio) << "from " << start;
        }
    }
}

TEST(SurfaceTest, KeepsItsDrawingWhenItsSizeChangesAndItsPictureWhenItIsCleared) {
    Sheet sheet(QSize(100, 80), 1.25);
    QImage picture(1, 1, QImage::Format_RGB32);
    picture.fill(Qt::red);
    sheet.SurfaceNative().Backdrop(picture);
    DrawEverything(sheet, 80 * Twips, Ink);
    const QImage before = sheet.Image();
    for (const QSize size : {QSize(150, 120), QSize(60, 40)}) {
        sheet.SurfaceNative().Resize(size, 1.25);
        const QRect both = before.rect() & sheet.Image().rect();
        EXPECT_EQ(sheet.Image().copy(both), before.copy(both));
        EXPECT_EQ(sheet.Extent().united(both), both) << "the new part is blank";
    }
    sheet.Cls();
    EXPECT_TRUE(sheet.Has(0, 0, Rgb(255, 0, 0)));
    EXPECT_EQ(sheet.Count(sheet.Image().rect(), Back), 75 * 50 - 1);
    sheet.SurfaceNative().Background(White);
    EXPECT_EQ(sheet.Count(sheet.Image().rect(), White), 75 * 50 - 1);
}

TEST(SurfaceTest, CutsOffWhatLiesOutside) {
    const double ends[] = {-32768, 450, 32767};
    Sheet sheet(QSize(60, 60), 1.25);
    sheet.DrawWidth(300);
    for (const double x : ends) {
        for (const double y : ends) {
            sheet.DrawLine(x, y, 450, y, Ink);
            sheet.DrawBox(x, y, x, 450, Ink);
            sheet.FillBox(x, y, 480, 480, Ink);
        }
    }
    sheet.Cls();
    sheet.DrawWidth(3);
    sheet.DrawLine(-32768, -32768, 32767, 32767, Ink);
    EXPECT_TRUE(sheet.Has(37, 37));
    EXPECT_FALSE(sheet.Has(12, 50));
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
        Refresh();
    }

    void Refresh() {
        QPainter painter(&image_);
        painter.setClipRect(changed_);
        sheet_.SurfaceNative().Paint(painter, changed_);
        changed_ = QRect();
    }
    QImage Image() const {
        QImage image = image_;
        image.setDevicePixelRatio(1);
        return image;
    }

private:
    Sheet& sheet_;
    QImage image_;
    QRect changed_;
};

TEST(SurfaceTest, ShowsWhatChangedAndNothingElseRemains) {
    constexpr decltype(&Surface::DrawLine) figures[] = {&Surface::DrawLine, &Surface::FillBox};
    for (const double ratio : Ratios) {
        Sheet sheet(QSize(120, 120), ratio);
        Screenful screen(sheet);
        Numbers numbers;
        for (int i = 0; i < 60; ++i) {
            sheet.DrawWidth(1 + i % 13);
            const double x = numbers.Next(-100, 1900);
            const double y = numbers.Next(-100, 1900);
            const double x2 = i % 3 == 0 ? x : numbers.Next(-100, 1900);
            const double y2 = i % 3 == 1 ? y : numbers.Next(-100, 1900);
            for (const Colour colour : {Ink, Back}) {
                (sheet.*figures[i / 3 % 2])(x, y, x2, y2, colour);
                screen.Refresh();
                ASSERT_EQ(screen.Image(), sheet.Image()) << "step " << i << " at scale " << ratio;
            }
        }
        EXPECT_TRUE(sheet.IsBlank());
    }
}

}  // namespace
}  // namespace trameli
