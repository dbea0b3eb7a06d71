// The bands of levels in the menu.
#pragma once

#include <array>

#include "base/griglie.h"
#include "platform/colour.h"

namespace trameli {

/// Levels that share a coloured band.
struct Fascia {
    int Primo;
    int Ultimo;
    double Top;    ///< of the options in their frame, twips
    Colour Testo;  ///< of their numbers
};

inline constexpr std::array<Fascia, 3> Fasce{{
    {0, 4, 720, Rgb(0, 64, 0)},
    {5, 7, 1800, Rgb(64, 0, 0)},
    {8, 15, 2880, Rgb(0, 0, 64)},
}};
static_assert(Fasce.back().Ultimo == NumeroLivelli - 1);

/// Those with a symbol that walks by itself.
inline constexpr Fascia LivelliATempo = Fasce[1];

}  // namespace trameli
