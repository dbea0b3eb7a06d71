// Filling pixels. Written out rather than left to a painter, because the game erases what it drew
// by drawing it again in the background's colour: here a thicker pen covers a thinner one by
// construction, at any scale factor.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

namespace trameli {

/// A block of opaque 32-bit pixels, row after row; `stride` is counted in pixels.
struct Pixels {
    std::uint32_t* Data;
    int Width;
    int Height;
    int Stride;
};

/// Fills the rectangle whose upper left pixel is (x, y); what lies outside is cut off.
void FillRectangle(const Pixels& pixels, int x, int y, int width, int height, std::uint32_t colour);

/// Fills concentric ellipses that have the proportions of the whole block. The first touches its
/// edges and counts as `radius` long from the middle; each further one is 1 shorter, and what lies
/// within the last has its colour.
void FillRings(const Pixels& pixels, const std::vector<std::uint32_t>& colours, double radius);

/// Where a pen of so many pixels begins, seen from the pixel line it is centred on.
constexpr int PenOffset(int width) {
    return -(width / 2);
}

/// The round points of all pen widths, each made when it is first asked for.
class RoundPens {
public:
    /// Draws a round point of `width` pixels centred on (x, y).
    void DrawPoint(const Pixels& pixels, int x, int y, int width, std::uint32_t colour);

private:
    /// Pixels of one row of a point, from `Begin` to before `End`, relative to its centre.
    struct Span {
        int Begin;
        int End;
    };

    /// The rows of a point, the first of them at PenOffset(width).
    const std::vector<Span>& SpansOf(int width);

    std::map<int, std::vector<Span>> spans_;
};

}  // namespace trameli
