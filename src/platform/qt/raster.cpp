#include "platform/qt/raster.h"

#include <algorithm>
#include <cmath>

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

void FillRings(const Pixels& pixels, const std::vector<std::uint32_t>& colours, double radius) {
    if (colours.empty() || pixels.Width <= 0 || pixels.Height <= 0) {
        return;
    }
    // One quarter is computed, in parts of the way from the middle to the edge, and mirrored.
    const int columns = (pixels.Width + 1) / 2;
    const int rows = (pixels.Height + 1) / 2;
    const auto whole = static_cast<float>(radius);
    const auto innermost = static_cast<std::int32_t>(colours.size()) - 1;
    const auto squares = [](int count, int size) {
        std::vector<float> result;
        for (int i = 0; i < count; ++i) {
            // From the edge inwards, like the pixels.
            const float way =
                1.0F - (2.0F * static_cast<float>(i) + 1.0F) / static_cast<float>(size);
            result.push_back(way * way);
        }
        return result;
    };
    const std::vector<float> across = squares(columns, pixels.Width);
    const std::vector<float> down = squares(rows, pixels.Height);
    std::vector<std::int32_t> ring(static_cast<std::size_t>(columns));
    for (int y = 0; y < rows; ++y) {
        const float fromMiddle = down[static_cast<std::size_t>(y)];
        for (std::size_t x = 0; x < ring.size(); ++x) {
            // Beyond the edge the difference is negative and must not be cut off to 0.
            ring[x] = static_cast<std::int32_t>((1.0F - std::sqrt(across[x] + fromMiddle)) * whole +
                                                1.0F) -
                      1;
        }
        const auto row = [&](int number) {
            return pixels.Data + static_cast<std::ptrdiff_t>(number) * pixels.Stride;
        };
        std::uint32_t* const upper = row(y);
        std::uint32_t* const lower = row(pixels.Height - 1 - y);
        const std::size_t last = static_cast<std::size_t>(pixels.Width) - 1;
        for (std::size_t x = 0; x < ring.size(); ++x) {
            if (ring[x] >= 0) {
                const auto index = static_cast<std::size_t>(std::min(ring[x], innermost));
                upper[x] = upper[last - x] = lower[x] = lower[last - x] = colours[index];
            }
        }
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
