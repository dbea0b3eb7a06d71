// Pixels that leave surfaces and windows, and come back in another size.
#include <QAccessible>
#include <QGuiApplication>
#include <QTest>
#include <cmath>
#include <vector>

#include "platform/bare_program.h"
#include "platform/command_button.h"
#include "platform/menu.h"
#include "platform/picture_box.h"
#include "platform/qt/surface_native.h"
#include "platform/text_box.h"

namespace trameli {
namespace {

constexpr Colour Red = Rgb(255, 0, 0);

/// A block with memory of its own. Row 0 is the upper one here.
struct Block : PixelBlock {
    Block(int width, int height)
        : Memory(static_cast<std::size_t>((width * 3 + 3) / 4 * 4 * height)) {
        Width = width;
        Height = height;
        BytesPerRow = (width * 3 + 3) / 4 * 4;
        Bits = Memory.data();
    }
    std::uint8_t* At(int x, int y) { return Bits + (Height - 1 - y) * BytesPerRow + x * 3; }
    void Set(int x, int y, Colour colour) {
        At(x, y)[0] = static_cast<std::uint8_t>(BlueOf(colour));
        At(x, y)[1] = static_cast<std::uint8_t>(GreenOf(colour));
        At(x, y)[2] = static_cast<std::uint8_t>(RedOf(colour));
    }
    QImage Image() {
        QImage image(Width, Height, QImage::Format_RGB32);
        for (int y = 0; y < Height; ++y) {
            for (int x = 0; x < Width; ++x) {
                image.setPixel(x, y, qRgb(At(x, y)[2], At(x, y)[1], At(x, y)[0]));
            }
        }
        return image;
    }

    std::vector<std::uint8_t> Memory;
};

class Sheet : public Surface {
public:
    Sheet(int width, int height, double ratio = 1) {
        SurfaceNative().Setup(15, White);
        SurfaceNative().Resize({width, height}, ratio);
    }
    const QImage& Image() const { return SurfaceNative().Image(); }
};

/// The mean of what of a picture lies on a pixel of a stretched one, by the definition of a mean.
double MeanGreen(Block& block, double left, double top, double right, double bottom) {
    double sum = 0;
    for (int y = 0; y < block.Height; ++y) {
        for (int x = 0; x < block.Width; ++x) {
            const double across = std::min(right, x + 1.0) - std::max(left, double(x));
            const double down = std::min(bottom, y + 1.0) - std::max(top, double(y));
            sum += across > 0 && down > 0 ? across * down * block.At(x, y)[1] : 0;
        }
    }
    return sum / ((right - left) * (bottom - top));
}

TEST(PixelsTest, StretchedPixelsAreTheMeanOfWhatFallsOnThem) {
    Block block(23, 17);
    for (int i = 0; i < 23 * 17; ++i) {
        block.Set(i % 23, i / 23, Rgb(i % 7 * 40, i * 37 % 256, 10));
    }
    const PixelRectangle rows[] = {{0, 0, 23, 17},     {2, 3, 7, 5},
                                   {-5, -4, 30, 40},   {1, 1, 1, 1},
                                   {10, 12, 900, 800}, {-70000, -30000, 140000, 60007}};
    for (const double ratio : {1.0, 1.5, 2.0}) {
        for (const PixelRectangle& where : rows) {
            Sheet sheet(24, 20, ratio);
            ASSERT_TRUE(sheet.StretchPixels(where, block));
            const double left = std::floor(where.Left * ratio + 0.5);
            const double top = std::floor(where.Top * ratio + 0.5);
            const double across =
                23 / (std::floor((where.Left + where.Width) * ratio + 0.5) - left);
            const double down = 17 / (std::floor((where.Top + where.Height) * ratio + 0.5) - top);
            for (int y = 0; y < sheet.Image().height(); ++y) {
                for (int x = 0; x < sheet.Image().width(); ++x) {
                    const double column = (x - left) * across;
                    const double row = (y - top) * down;
                    const bool inside = column > -1e-9 && column + across < 23 + 1e-9 &&
                                        row > -1e-9 && row + down < 17 + 1e-9;
                    ASSERT_NEAR(
                        qGreen(sheet.Image().pixel(x, y)),
                        inside ? MeanGreen(block, column, row, column + across, row + down) : 255,
                        2.5)
                        << where.Width << " at " << x << ", " << y << ", ratio " << ratio;
                }
            }
        }
    }
}

TEST(PixelsTest, OneColourStaysThatColourAndNothingIsNoPicture) {
    Block block(1920, 1080);
    std::fill(block.Memory.begin(), block.Memory.end(), std::uint8_t{201});
    Sheet sheet(130, 97);
    EXPECT_TRUE(sheet.StretchPixels({0, 0, 130, 97}, block));
    EXPECT_EQ(Share(sheet.Image(), Rgb(201, 201, 201)), 1);
    EXPECT_TRUE(sheet.StretchPixels({2000000000, 0, 2000000000, 5}, block));
    EXPECT_TRUE(sheet.StretchPixels({5, 5, 0, -3}, block));
    EXPECT_EQ(Share(sheet.Image(), Rgb(201, 201, 201)), 1);
    EXPECT_FALSE(sheet.StretchPixels({0, 0, 5, 5}, {}));
}

class FormPixelsTest : public BareProgram {};

TEST_F(FormPixelsTest, ADrawingGoesOverToAPictureBoxAsItIs) {
    Sheet drawing(201, 77, 2);
    drawing.FillBox(300, 150, 1200, 600, Red);
    PictureBox box(TheForm, "Box", {0, 0, 300, 300});
    box.Visible(false);
    box.Picture(drawing);
    drawing.Cls();
    box.DrawLine(15, 15, 900, 15, Black);
    box.Cls();
    EXPECT_EQ(box.Width(), 201 * 15);
    ASSERT_EQ(box.DevicePixels().Width, 402);
    ASSERT_EQ(box.DevicePixels().Height, 154);
    Block block(402, 154);
    EXPECT_EQ(box.ReadPixels(block), 154);
    const QImage seen = block.Image();
    EXPECT_EQ(Count(seen, Red), 120 * 60);
    EXPECT_EQ(seen.pixel(40, 20), PixelOf(Red));
    EXPECT_EQ(Count(seen, White), 402 * 154 - 120 * 60);
    Block other(401, 154);
    EXPECT_EQ(box.ReadPixels(other), 0);
}

TEST_F(FormPixelsTest, WhatIsDrawnBeforeAWindowIsSeenHasTheSizeThatWasSet) {
    PictureBox box(TheForm, "Box", {0, 0, 300, 300});
    box.Visible(false);
    box.Place({150, 150, 1500, 900});
    EXPECT_EQ(box.ScaleWidthPixels(), 100);
    EXPECT_EQ(box.ScaleHeightPixels(), 60);
    box.FillBox(0, 0, 1500, 900, Red);
    box.Visible(true);
    Bring();
    EXPECT_EQ(Share(Shot(box), Red), 1);
}

TEST_F(FormPixelsTest, WindowAndClientAreaAreReadAsTheyAreSeen) {
    MenuItem menu(TheForm, "Menu", "&Menu");
    CommandButton button(TheForm, "Button", {300, 300, 1500, 600}, "Button");
    button.BackColor(Red);
    Bring();
    const QWidget& client = *WidgetOf(button).parentWidget();
    const PixelSize window = TheForm.WindowPixels();
    const PixelSize inside = TheForm.ClientPixels();
    Block all(window.Width, window.Height);
    Block part(inside.Width, inside.Height);
    EXPECT_EQ(TheForm.ReadPixels(all), WindowOf(TheForm).height());
    EXPECT_EQ(TheForm.ReadClientPixels(part), client.height());
    EXPECT_LT(inside.Height, window.Height);
    EXPECT_EQ(all.Image(), Shot(TheForm));
    EXPECT_EQ(part.Image(), Shot(TheForm).copy(client.geometry()));
}

TEST_F(FormPixelsTest, TheHourglassIsThereWhileItsWindowIsInFront) {
    Bring();
    TheForm.Hourglass(true);
    ASSERT_TRUE(QGuiApplication::overrideCursor());
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    Bring("B");
    EXPECT_FALSE(QGuiApplication::overrideCursor());
    Bring();
    EXPECT_TRUE(QGuiApplication::overrideCursor());
    Program.Unload(TheForm);
    EXPECT_FALSE(QGuiApplication::overrideCursor());
}

TEST_F(FormPixelsTest, APictureBoxIsClickedByMouseAndWhereItTakesTheKeyboardByKeys) {
    PictureBox box(TheForm, "Box", {300, 300, 1500, 900});
    box.Click = Noting("Click");
    Bring();
    const auto clicks = [&](bool keys) {
        Seen.clear();
        if (keys) {
            box.SetFocus();
            for (const int key : {Qt::Key_Space, Qt::Key_Return}) {
                Press(TheForm, key);
                Release(TheForm, key);
            }
        } else {
            ClickOn(box);
        }
        return Seen.size();
    };
    const QAccessibleInterface& known = *QAccessible::queryAccessibleInterface(&WidgetOf(box));
    EXPECT_EQ(clicks(false), 1U);
    EXPECT_EQ(clicks(true), 0U);
    const QImage without = Shot(box);
    EXPECT_EQ(known.role(), QAccessible::Graphic);
    box.TakesKeyboard(true);
    EXPECT_EQ(clicks(true), 2U);
    EXPECT_NE(Shot(box), without);
    EXPECT_EQ(known.role(), QAccessible::Button);
    QAccessible::queryAccessibleInterface(&WidgetOf(box))->actionInterface()->doAction("Press");
    EXPECT_EQ(Seen.size(), 3U);
}

}  // namespace
}  // namespace trameli
