// How large the mazes of the levels are. The engine makes them, the menu announces them and the
// windows lay them out, so that the table lies where all of these may look.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace trameli {

/// How many levels there are; a level is 0 to one less.
inline constexpr int NumeroLivelli = 16;

/// Rows and columns of a grid.
struct DimensioniGriglia {
    std::int16_t Righe;
    std::int16_t Colonne;
    bool operator==(const DimensioniGriglia&) const = default;
};

/// The grid of a level, 0 to 15; any other number throws std::out_of_range.
constexpr DimensioniGriglia DimensioniDi(int livello) {
    constexpr std::array<DimensioniGriglia, NumeroLivelli> dimensioni{{
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
    }};
    return dimensioni.at(static_cast<std::size_t>(livello));
}

/// Whether the symbol walks by itself there.
constexpr bool ATempo(int livello) {
    return livello >= 5 && livello <= 7;
}

}  // namespace trameli
