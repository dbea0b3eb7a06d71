// What pens leave on a surface, pixel by pixel.
#include "platform/surface.h"

#include <QPainter>
#include <cmath>

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
    /// The smallest rectangle round all pixels of that colour, in device pixels.
    QRect Extent(Colour colour = Ink) const {
        QRect extent;
        for (int y = 0; y < Image().height(); ++y) {
            for (int x = 0; x < Image().width(); ++x) {
                if (Has(x, y, colour)) {
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
        state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
        return low + (high - low) * static_cast<double>(state_ >> 40) / (1 << 24);
    }

private:
    unsigned long long state_ = 1;
};

/// Draws points, lines, bars and a box at odd places, always the same ones for one size.
void DrawEverything(Surface& surface, double size, Colour colour, bool backwards = false) {
    Numbers numbers;
    const auto place = [&] { return numbers.Next(-0.1 * size, 1.1 * size); };
    const auto draw = [&](auto figure, double x1, double y1, double x2, double y2) {
        backwards ? (surface.*figure)(x2, y2, x1, y1, colour)
                  : (surface.*figure)(x1, y1, x2, y2, colour);
    };
    draw(&Surface::DrawLine, place(), place(), place(), place());
    for (int i = 0; i < 3; ++i) {
        const double x = place();
        const double y = place();
        draw(&Surface::DrawLine, x, y, x, y);
        draw(&Surface::DrawBox, x, y, place(), place());
        for (const auto figure : {&Surface::DrawLine, &Surface::DrawBox}) {
            draw(figure, x, y, place(), y);
            draw(figure, x, y, x, place());
        }
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
        for (int width = -1; width <= 40; ++width) {
            SCOPED_TRACE(testing::Message() << "width " << width << " at scale " << ratio);
            Sheet sheet(QSize(60, 60), ratio);
            sheet.DrawWidth(width);
            sheet.DrawLine(30 * Twips, 30 * Twips, 30 * Twips, 30 * Twips, Ink);
            const int pen = Nearest(std::max(1, width) * ratio);
            const QRect extent = sheet.Extent();
            ASSERT_EQ(extent.size(), QSize(pen, pen));
            const QPointF middle = QRectF(extent).center();
            for (int y = extent.top(); y <= extent.bottom(); ++y) {
                for (int x = extent.left(); x <= extent.right(); ++x) {
                    const double away = std::hypot(x + 0.5 - middle.x(), y + 0.5 - middle.y());
                    ASSERT_FALSE(sheet.Has(x, y) && away > pen / 2.0 + 1) << x << ", " << y;
                    ASSERT_FALSE(!sheet.Has(x, y) && away < pen / 2.0 - 1) << x << ", " << y;
                }
            }
        }
    }
}

TEST(SurfaceTest, LineHasRoundEndsAndABarSquareOnes) {
    for (const double ratio : Ratios) {
        for (const int width : {1, 2, 5, 6, 24}) {
            for (const bool upright : {false, true}) {
                SCOPED_TRACE(testing::Message() << "width " << width << " at scale " << ratio
                                                << (upright ? ", upright" : ""));
                const double x2 = (upright ? 20 : 60) * Twips;
                const double y2 = (upright ? 60 : 20) * Twips;
                Sheet bar(QSize(80, 80), ratio);
                bar.DrawWidth(width);
                bar.DrawBox(20 * Twips, 20 * Twips, x2, y2, Ink);
                const int pen = Nearest(width * ratio);
                const QRect extent = bar.Extent();
                const int length = Nearest(40 * ratio) + pen;
                EXPECT_EQ(extent.size(), upright ? QSize(pen, length) : QSize(length, pen));
                EXPECT_EQ(bar.Count(extent), long{extent.width()} * extent.height());
                // Half a pen beyond the end, the odd pixel on one side or the other.
                EXPECT_NEAR(extent.left(), 20 * ratio - pen / 2.0, 1);
                EXPECT_NEAR(extent.top(), 20 * ratio - pen / 2.0, 1);

                Sheet line(QSize(80, 80), ratio);
                line.DrawWidth(width);
                line.DrawLine(20 * Twips, 20 * Twips, x2, y2, Ink);
                EXPECT_EQ(line.Extent(), extent);
                if (pen > 5) {
                    EXPECT_FALSE(line.Has(extent.left(), extent.top()));
                    EXPECT_FALSE(line.Has(extent.right(), extent.bottom()));
                }
            }
        }
    }
}

TEST(SurfaceTest, BoxIsAnOutlineWithSquareCornersOrFilledWithoutOne) {
    Sheet outline(QSize(100, 100), 1);
    outline.DrawWidth(5);
    outline.DrawBox(80 * Twips, 20 * Twips, 30 * Twips, 60 * Twips, Ink);
    EXPECT_EQ(outline.Extent(), QRect(28, 18, 55, 45));
    EXPECT_EQ(outline.Count(QRect(33, 23, 45, 35)), 0);
    EXPECT_EQ(outline.Count(outline.Extent()), 55 * 45 - 45 * 35);
    Sheet filled(QSize(100, 100), 1);
    filled.DrawWidth(20);
    filled.FillBox(40 * Twips, 30 * Twips, 30 * Twips, 50 * Twips, Ink);
    EXPECT_EQ(filled.Extent(), QRect(30, 30, 10, 20));
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

TEST(SurfaceTest, KeepsItsDrawingWhenItsSizeChanges) {
    Sheet sheet(QSize(100, 80), 1.25);
    DrawEverything(sheet, 80 * Twips, Ink);
    const QImage before = sheet.Image();
    sheet.SurfaceNative().Resize(QSize(150, 120), 1.25);
    EXPECT_EQ(sheet.Image().copy(before.rect()), before);
    EXPECT_EQ(sheet.Extent().united(before.rect()), before.rect()) << "the new part is blank";
    EXPECT_TRUE(sheet.Has(sheet.Image().width() - 1, 0, Back));
    sheet.SurfaceNative().Resize(QSize(60, 40), 1.25);
    EXPECT_EQ(sheet.Image(), before.copy(sheet.Image().rect()));
    sheet.SurfaceNative().Resize(QSize(0, 0), 1.25);
    DrawEverything(sheet, 80 * Twips, Ink);
    sheet.SurfaceNative().Resize(QSize(60, 40), 1.25);
    EXPECT_TRUE(sheet.IsBlank());
}

TEST(SurfaceTest, BackgroundAndClearingTakeTheDrawingButNotThePicture) {
    Sheet sheet(QSize(100, 80), 1);
    QImage picture(10, 10, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    picture.setPixel(3, 3, qRgb(255, 0, 0));
    sheet.SurfaceNative().Backdrop(picture);
    EXPECT_TRUE(sheet.Has(3, 3, Rgb(255, 0, 0)));
    const std::pair<Colour, std::function<void()>> ways[] = {
        {Back, [&] { sheet.Cls(); }},
        {White, [&] { sheet.SurfaceNative().Background(White); }},
    };
    for (const auto& [ground, clear] : ways) {
        sheet.FillBox(0, 0, 50 * Twips, 50 * Twips, Ink);
        EXPECT_TRUE(sheet.Has(3, 3)) << "the picture lies under the drawing";
        clear();
        EXPECT_TRUE(sheet.Has(3, 3, Rgb(255, 0, 0)));
        EXPECT_EQ(sheet.Count(sheet.Image().rect(), ground), 100 * 80 - 1);
    }
}

TEST(SurfaceTest, CutsOffWhatLiesOutside) {
    const double ends[] = {-32768, 450, 32767};
    Sheet sheet(QSize(60, 60), 1.25);
    sheet.DrawWidth(300);
    for (const double x1 : ends) {
        for (const double y1 : ends) {
            for (const double x2 : ends) {
                sheet.DrawLine(x1, y1, x2, y1, Ink);
                sheet.DrawLine(x1, y1, x1, x2, Ink);
                sheet.DrawBox(x1, y1, x2, 450, Ink);
                sheet.FillBox(x1, y1, x2, 450, Ink);
            }
        }
    }
    sheet.DrawWidth(3);
    sheet.Cls();
    sheet.DrawLine(-32768, -32768, 32767, 32767, Ink);
    EXPECT_TRUE(sheet.Has(37, 37));
    EXPECT_FALSE(sheet.Has(12, 50));
}

TEST(SurfaceTest, RingsOfAHalfRadiusEndHalfAStepEarlier) {
    // Half axes 4.5, 3.5, 2.5 and 1.5 pixels: seen along the middle row of nine.
    const Colour colours[] = {Rgb(1, 0, 0), Rgb(2, 0, 0), Rgb(3, 0, 0), Rgb(4, 0, 0)};
    Sheet sheet(QSize(9, 9), 1);
    sheet.FillRings(colours, 4.5);
    for (const int fromEdge : {0, 1, 2, 3}) {
        EXPECT_TRUE(sheet.Has(fromEdge, 4, colours[fromEdge]));
    }
    EXPECT_TRUE(sheet.Has(4, 4, colours[3]));
    EXPECT_TRUE(sheet.Has(1, 0, Back)) << "just outside";
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
    constexpr decltype(&Surface::DrawLine) figures[] = {&Surface::DrawLine, &Surface::DrawBox,
                                                        &Surface::FillBox};
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
                (sheet.*figures[i / 3 % 3])(x, y, x2, y2, colour);
                screen.Refresh();
                ASSERT_EQ(screen.Image(), sheet.Image()) << "step " << i << " at scale " << ratio;
            }
        }
        EXPECT_TRUE(sheet.IsBlank());
    }
}

}  // namespace
}  // namespace trameli
