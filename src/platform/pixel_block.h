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

/// A place on a page or a surface in its own pixels. It may reach beyond all edges.
struct PixelRectangle {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
};

}  // namespace trameli
