// Pixels in another size, and the hourglass.
#include <QGuiApplication>
#include <cmath>
#include <vector>

#include "platform/bare_program.h"
#include "platform/qt/surface_native.h"

namespace trameli {
namespace {

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

class FormPixelsTest : public BareProgram {};

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

}  // namespace
}  // namespace trameli
