#include "platform/qt/pixel_rows.h"

#include <cstddef>

namespace trameli {

int ReadRows(const QImage& from, const PixelBlock& into) {
    if (!into.Bits || from.width() != into.Width || from.height() != into.Height) {
        return 0;
    }
    for (int row = 0; row < into.Height; ++row) {
        const auto* pixel =
            reinterpret_cast<const QRgb*>(from.constScanLine(into.Height - 1 - row));
        std::uint8_t* out = into.Bits + static_cast<std::ptrdiff_t>(row) * into.BytesPerRow;
        for (int column = 0; column < into.Width; ++column, out += 3) {
            out[0] = static_cast<std::uint8_t>(pixel[column]);
            out[1] = static_cast<std::uint8_t>(pixel[column] >> 8);
            out[2] = static_cast<std::uint8_t>(pixel[column] >> 16);
        }
    }
    return into.Height;
}

}  // namespace trameli
