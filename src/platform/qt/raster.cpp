#include "platform/qt/raster.h"

#include <algorithm>

namespace trameli {

void FillRectangle(const Pixels& pixels, int x, int y, int width, int height,
                   std::uint32_t colour) {
    const int left = std::max(x, 0);
    const int top = std::max(y, 0);
    const int right = std::min(x + width, pixels.Width);
    const int bottom = std::min(y + height, pixels.Height);
    if (left >= right) {
        return;
    }
    for (int row = top; row < bottom; ++row) {
        std::uint32_t* start = pixels.Data + static_cast<std::ptrdiff_t>(row) * pixels.Stride;
        std::fill(start + left, start + right, colour);
    }
}

void RoundPens::DrawPoint(const Pixels& pixels, int x, int y, int width, std::uint32_t colour) {
    int row = y + PenOffset(width);
    for (const Span& span : SpansOf(width)) {
        FillRectangle(pixels, x + span.Begin, row++, span.End - span.Begin, 1, colour);
    }
}

const std::vector<RoundPens::Span>& RoundPens::SpansOf(int width) {
    if (const auto known = spans_.find(width); known != spans_.end()) {
        return known->second;
    }
    // Twice all lengths, so that the centre of a pen of even width, which lies between pixels,
    // has whole coordinates too.
    const int first = PenOffset(width);
    const int centre = width % 2 == 0 ? -1 : 0;
    std::vector<Span> spans;
    for (int row = first; row < first + width; ++row) {
        const auto inside = [&](int column) {
            const int dx = 2 * column - centre;
            const int dy = 2 * row - centre;
            return dx * dx + dy * dy <= width * width;
        };
        Span span{first, first + width};
        while (span.Begin < 0 && !inside(span.Begin)) {
            ++span.Begin;
        }
        while (span.End > span.Begin + 1 && !inside(span.End - 1)) {
            --span.End;
        }
        spans.push_back(span);
    }
    // A circle of even width, centred between pixels, can miss a pixel of the next smaller one.
    if (width > 1) {
        const std::vector<Span>& smaller = SpansOf(width - 1);
        const std::size_t shift = static_cast<std::size_t>(PenOffset(width - 1) - first);
        for (std::size_t row = 0; row < smaller.size(); ++row) {
            Span& span = spans[row + shift];
            span.Begin = std::min(span.Begin, smaller[row].Begin);
            span.End = std::max(span.End, smaller[row].End);
        }
    }
    return spans_.emplace(width, std::move(spans)).first->second;
}

}  // namespace trameli
