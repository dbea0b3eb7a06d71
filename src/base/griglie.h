// How large the mazes of the levels are. The engine makes them, the menu announces them and the
// windows lay them out, so that the table lies where all of these may look.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace trameli {

/// Rows and columns of a grid.
struct DimensioniGriglia {
    std::int16_t Righe;
    std::int16_t Colonne;
    bool operator==(const DimensioniGriglia&) const = default;
};

/// The grid of each level. A level more begins here; the tables that need a row too do not compile
/// until they have it.
inline constexpr auto Griglie = std::to_array<DimensioniGriglia>({
    {6, 9},
    {6, 9},
    {6, 9},
    {6, 9},
    {6, 9},
    {8, 11},
    {8, 11},
    {8, 11},
    {3, 4},
    {4, 5},
    {5, 6},
    {6, 7},
    {8, 10},
    {10, 15},
    {12, 18},
    {15, 20},
});

/// How many levels there are; a level is 0 to one less.
inline constexpr int NumeroLivelli = Griglie.size();

/// The grid of a level; a number that is none throws std::out_of_range.
constexpr DimensioniGriglia DimensioniDi(int livello) {
    return Griglie.at(static_cast<std::size_t>(livello));
}

/// Whether the symbol walks by itself there.
constexpr bool ATempo(int livello) {
    return livello >= 5 && livello <= 7;
}

}  // namespace trameli
