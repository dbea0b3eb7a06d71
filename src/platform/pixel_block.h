// Pixels as they go to paper.
#pragma once

#include <cstdint>

namespace trameli {

/// Memory for pixels of 24 bits, blue, green and red in this order. Rows go from the bottom of the
/// picture to its top; each begins `BytesPerRow` bytes after the one before, a multiple of four.
/// The memory belongs to whoever made the block.
struct PixelBlock {
    int Width = 0;   ///< pixels
    int Height = 0;  ///< pixels
    int BytesPerRow = 0;
    std::uint8_t* Bits = nullptr;
};

/// The grey of a colour where there are no colours, on paper as in a preview: the mean, rounded. A
/// third is never half of anything.
constexpr std::uint8_t GreyOf(unsigned red, unsigned green, unsigned blue) {
    return static_cast<std::uint8_t>((red + green + blue + 1U) / 3U);
}

/// A place on a page or a surface in its own pixels. It may reach beyond all edges.
struct PixelRectangle {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
};

}  // namespace trameli
