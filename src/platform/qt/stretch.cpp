#include "platform/qt/stretch.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace trameli {

namespace {

constexpr int Channels = 3;
/// What the shares of all pixels that make one add up to, and the parts that a pixel is cut into.
constexpr int Whole = 256;

/// The pixels of the picture, across or down, that make one pixel of the target, each with its
/// share in `Lanes::Shares`.
struct Lane {
    int First;
    int Count;
    std::size_t Shares;
};

/// Those of all pixels of the target that can be seen.
struct Lanes {
    Lanes(const Extent& extent, int room, int length)
        : Begin(static_cast<int>(std::clamp(extent.From, 0.0, static_cast<double>(room)))),
          End(static_cast<int>(std::clamp(extent.To, 0.0, static_cast<double>(room)))) {
        const double last = static_cast<double>(length) * Whole;
        const double step = last / (extent.To - extent.From);
        for (int pixel = Begin; pixel < End; ++pixel) {
            const double from = std::min(std::floor((pixel - extent.From) * step), last - 1);
            const double to = std::min(std::floor((pixel - extent.From + 1) * step), last);
            Add(static_cast<std::int64_t>(from), static_cast<std::int64_t>(std::max(to, from + 1)));
        }
    }

    int Begin;
    int End;
    std::vector<Lane> All;
    std::vector<std::uint16_t> Shares;

private:
    /// A pixel that takes the picture's from one to another, in parts of a pixel.
    void Add(std::int64_t from, std::int64_t to) {
        const Lane lane{static_cast<int>(from / Whole),
                        static_cast<int>((to - 1) / Whole - from / Whole) + 1, Shares.size()};
        // Rounded as sums: the shares of a pixel make a whole, and one colour stays that colour.
        std::int64_t given = 0;
        for (int i = 1; i <= lane.Count; ++i) {
            const std::int64_t end = std::min(to, std::int64_t{lane.First + i} * Whole) - from;
            const std::int64_t sum = end * Whole / (to - from);
            Shares.push_back(static_cast<std::uint16_t>(sum - given));
            given = sum;
        }
        All.push_back(lane);
    }
};

}  // namespace

void Stretch(const Pixels& target, const Extent& across, const Extent& down,
             const PixelBlock& picture) {
    const Lanes columns(across, target.Width, picture.Width);
    const Lanes rows(down, target.Height, picture.Height);
    if (columns.All.empty() || rows.All.empty()) {
        return;
    }
    const std::size_t first = static_cast<std::size_t>(columns.All.front().First) * Channels;
    const std::size_t last =
        static_cast<std::size_t>(columns.All.back().First + columns.All.back().Count) * Channels;
    // Down first: what a row of the target takes of the picture's is added up over its whole width,
    // which is the larger part of the work and the one that the compiler does many at a time.
    std::vector<std::uint16_t> sums(last - first);
    int rowInSums = -1;  // if it is one alone, as it is when the picture grows
    for (int y = rows.Begin; y < rows.End; ++y) {
        const Lane& row = rows.All[static_cast<std::size_t>(y - rows.Begin)];
        std::uint32_t* const line = target.Data + static_cast<std::ptrdiff_t>(y) * target.Stride;
        if (row.Count == 1 && row.First == rowInSums) {
            std::copy(line - target.Stride + columns.Begin, line - target.Stride + columns.End,
                      line + columns.Begin);
            continue;
        }
        rowInSums = row.Count == 1 ? row.First : -1;
        std::fill(sums.begin(), sums.end(), std::uint16_t{0});
        for (int i = 0; i < row.Count; ++i) {
            const int fromBottom = picture.Height - 1 - (row.First + i);
            const std::uint8_t* const bytes =
                picture.Bits + static_cast<std::ptrdiff_t>(fromBottom) * picture.BytesPerRow +
                first;
            const unsigned share = rows.Shares[row.Shares + static_cast<std::size_t>(i)];
            for (std::size_t k = 0; k < sums.size(); ++k) {
                sums[k] = static_cast<std::uint16_t>(sums[k] + bytes[k] * share);
            }
        }
        for (int x = columns.Begin; x < columns.End; ++x) {
            const Lane& column = columns.All[static_cast<std::size_t>(x - columns.Begin)];
            const std::uint16_t* from =
                sums.data() + static_cast<std::size_t>(column.First) * Channels - first;
            std::uint32_t blue = Whole * Whole / 2;
            std::uint32_t green = blue;
            std::uint32_t red = blue;
            for (int i = 0; i < column.Count; ++i, from += Channels) {
                const std::uint32_t share =
                    columns.Shares[column.Shares + static_cast<std::size_t>(i)];
                blue += from[0] * share;
                green += from[1] * share;
                red += from[2] * share;
            }
            line[x] = 0xFF000000U | (red & 0xFF0000U) | (green >> 16) << 8 | blue >> 16;
        }
    }
}

}  // namespace trameli
