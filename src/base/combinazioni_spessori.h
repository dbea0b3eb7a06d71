// The combinations of wall and trace thickness. The settings window shows them, the mazes are drawn
// with them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace trameli {

/// By how much a length, the side of a cell for instance, is divided to get a pen's width.
struct Divisori {
    double Traccia;
    double Muri;
};

/// How many combinations there are; `SpessoreLinee` is 0 to one less.
inline constexpr std::int16_t NumeroSpessori = 7;

/// The divisors of a combination; a number that is none throws std::out_of_range.
constexpr Divisori DivisoriDi(int spessoreLinee) {
    constexpr std::array<Divisori, NumeroSpessori> combinazioni{{
        {10, 10},
        {5, 5},
        {3, 3},
        {3, 7},
        {5, 10},
        {7, 3},
        {10, 5},
    }};
    return combinazioni.at(static_cast<std::size_t>(spessoreLinee));
}

}  // namespace trameli
