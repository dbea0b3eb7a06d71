#include "drawing/spessori.h"

#include "base/rounding.h"

namespace trameli {

Spessori CalcolaSpessori(int spessoreLinee, std::int16_t dimensioneCella, double twipsPerPixelY,
                         Pareti pareti) {
    const Divisori divisori = DivisoriDi(spessoreLinee);
    const int cella = Floor(dimensioneCella / twipsPerPixelY);
    const double muri = Floor(cella / divisori.Muri);
    const int corridoio =
        pareti == Pareti::Barre ? cella - Quotient(cella, 3) : Nearest(cella - muri);
    return {Saturated(Floor(cella / divisori.Traccia)), muri, Saturated(corridoio)};
}

}  // namespace trameli
