#include "drawing/spessori.h"

#include <array>
#include <cstddef>

#include "base/rounding.h"

namespace trameli {

namespace {

/// By how much the side of a cell is divided.
struct Divisori {
    double Traccia;
    double Muri;
};

constexpr std::array<Divisori, NumeroSpessori> Combinazioni{{
    {10, 10},
    {5, 5},
    {3, 3},
    {3, 7},
    {5, 10},
    {7, 3},
    {10, 5},
}};

}  // namespace

Spessori CalcolaSpessori(int spessoreLinee, std::int16_t dimensioneCella, double twipsPerPixelY,
                         Pareti pareti) {
    const Divisori& divisori = Combinazioni.at(static_cast<std::size_t>(spessoreLinee));
    const int cella = Floor(dimensioneCella / twipsPerPixelY);
    const double muri = Floor(cella / divisori.Muri);
    const int corridoio =
        pareti == Pareti::Barre ? cella - Quotient(cella, 3) : Nearest(cella - muri);
    return {Saturated(Floor(cella / divisori.Traccia)), muri, Saturated(corridoio)};
}

}  // namespace trameli
