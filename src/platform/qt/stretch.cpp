#include "platform/qt/stretch.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

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

/// Makes a row of the target of what was taken of the picture's rows, from the first column on that
/// is needed: their bytes, or sums of them that are `Scale` times as large.
template <std::uint32_t Scale, typename Value>
void Across(const Lanes& columns, const Value* values, std::uint32_t* line) {
    constexpr std::uint32_t whole = Scale * Whole;
    const int first = columns.All.front().First;
    for (int x = columns.Begin; x < columns.End; ++x) {
        const Lane& column = columns.All[static_cast<std::size_t>(x - columns.Begin)];
        const Value* from = values + static_cast<std::ptrdiff_t>(column.First - first) * Channels;
        std::uint32_t blue = whole / 2;
        std::uint32_t green = whole / 2;
        std::uint32_t red = whole / 2;
        const auto add = [&](std::uint32_t share) {
            blue += from[0] * share;
            green += from[1] * share;
            red += from[2] * share;
        };
        if (column.Count == 1) {
            add(Whole);
        } else {
            const std::uint16_t* const shares = columns.Shares.data() + column.Shares;
            for (int i = 0; i < column.Count; ++i, from += Channels) {
                add(shares[i]);
            }
        }
        line[x] = 0xFF000000U | red / whole << 16 | green / whole << 8 | blue / whole;
    }
}

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
    const auto rowOfPicture = [&](int row) {
        return picture.Bits +
               static_cast<std::ptrdiff_t>(picture.Height - 1 - row) * picture.BytesPerRow + first;
    };
    // Down first: what a row of the target takes of the picture's is added up over its whole width,
    // which is the larger part of the work and the one that the compiler does many at a time.
    std::vector<std::uint16_t> sums(last - first);
    int rowBefore = -1;  // if it was one alone
    for (int y = rows.Begin; y < rows.End; ++y) {
        const Lane& row = rows.All[static_cast<std::size_t>(y - rows.Begin)];
        std::uint32_t* const line = target.Data + static_cast<std::ptrdiff_t>(y) * target.Stride;
        if (row.Count == 1) {
            if (std::exchange(rowBefore, row.First) == row.First) {
                const std::uint32_t* const before = line - target.Stride;
                std::copy(before + columns.Begin, before + columns.End, line + columns.Begin);
            } else {
                Across<1>(columns, rowOfPicture(row.First), line);
            }
            continue;
        }
        rowBefore = -1;
        std::fill(sums.begin(), sums.end(), std::uint16_t{0});
        for (int i = 0; i < row.Count; ++i) {
            const std::uint8_t* const bytes = rowOfPicture(row.First + i);
            const unsigned share = rows.Shares[row.Shares + static_cast<std::size_t>(i)];
            for (std::size_t k = 0; k < sums.size(); ++k) {
                sums[k] = static_cast<std::uint16_t>(sums[k] + bytes[k] * share);
            }
        }
        Across<Whole>(columns, sums.data(), line);
    }
}

}  // namespace trameli
