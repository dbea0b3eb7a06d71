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

/// The combinations in the order in which they follow each other. One more begins here; the table
/// of the settings' options does not compile until it has a row for it.
inline constexpr auto CombinazioniSpessori = std::to_array<Divisori>({
    {10, 10},
    {5, 5},
    {3, 3},
    {3, 7},
    {5, 10},
    {7, 3},
    {10, 5},
});

/// How many combinations there are; `SpessoreLinee` is 0 to one less.
inline constexpr std::int16_t NumeroSpessori = CombinazioniSpessori.size();

/// The divisors of a combination; a number that is none throws std::out_of_range.
constexpr Divisori DivisoriDi(int spessoreLinee) {
    return CombinazioniSpessori.at(static_cast<std::size_t>(spessoreLinee));
}

}  // namespace trameli
