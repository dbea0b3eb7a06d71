// How thick walls and trace are. The player chooses a proportion, never a number of pixels, so that
// the look holds from the smallest grid to the largest.
#pragma once

#include <cstdint>

#include "base/combinazioni_spessori.h"

namespace trameli {

/// What walls are made of: lines of a pen, or bars a third of a cell thick.
enum class Pareti { Linee, Barre };

/// Thicknesses that fit one size of cell, all in pixels.
struct Spessori {
    std::int16_t SpessoreTraccia = 0;     ///< half the pen of the trace and of the start point
    double SpessoreMuri = 0;              ///< pen of the wall lines, a whole number
    std::int16_t LarghezzaCorridoio = 0;  ///< pen of the trace where it fills whole cells

    bool operator==(const Spessori&) const = default;
};

/// The thicknesses of a combination in cells of `dimensioneCella` twips. A combination that does
/// not exist throws std::out_of_range.
Spessori CalcolaSpessori(int spessoreLinee, std::int16_t dimensioneCella, double twipsPerPixelY,
                         Pareti pareti);

}  // namespace trameli
