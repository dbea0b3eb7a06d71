// The strokes that offer a direction to players with one or two keys.
#pragma once

#include <array>
#include <cstdint>

#include "drawing/segmento.h"
#include "drawing/spessori.h"
#include "engine/tramelo.h"
#include "platform/surface.h"

namespace trameli {

/// The directions in the order of their offer, clockwise from the left. The place in this table is
/// the number of the direction, which is not the number of the side.
inline constexpr std::array<Lato, 4> DirezioniScansione{Lato::Sinistra, Lato::Alto, Lato::Destra,
                                                        Lato::Basso};

inline constexpr auto NumeroDirezioni = static_cast<std::int16_t>(DirezioniScansione.size());

/// The direction offered after this one.
constexpr std::int16_t DirezioneDopo(std::int16_t direzione) {
    return static_cast<std::int16_t>((direzione + 1) % NumeroDirezioni);
}

/// How long and thick the strokes are, and their colours.
struct AspettoScansione {
    int Lunghezza;        ///< twips, from the middle of a cell nearly to the face of its wall
    int Penna;            ///< pixels, one at least; narrower than the trace
    int PennaGomma;       ///< pixels, for taking a stroke away
    bool SopraIlSimbolo;  ///< hardly longer than the symbol: it lies on it, and stands out by a rim
    int Orlo;             ///< pixels of that rim on each side
    double TwipsPerPixel;
    Colour Colore;
    Colour ColoreSfondo;  ///< of what takes a stroke away
};

/// The look of strokes in cells of `dimensioneCella` twips whose walls and trace are as thick as
/// `spessori` say, the walls being made of `pareti`.
AspettoScansione AspettoScansioneDi(const Spessori& spessori, Pareti pareti,
                                    std::int16_t dimensioneCella, double twipsPerPixelX,
                                    Colour colore, Colour coloreSfondo);

/// The place of the stroke in direction `direzione`, 0 to 3, from `testa` on.
Segmento TrattoScansione(Punto testa, std::int16_t direzione, const AspettoScansione& aspetto);

/// Draws the stroke of that direction over whatever lies there; a symbol that it does not lie on
/// wants to be drawn after it.
void DisegnaTrattoScansione(Surface& superficie, Punto testa, std::int16_t direzione,
                            const AspettoScansione& aspetto);

/// Takes a stroke away to the last pixel, and a part of the symbol and the trace with it. Only its
/// rim stays, until symbol and trace are drawn again.
void TogliTrattoScansione(Surface& superficie, Punto testa, std::int16_t direzione,
                          const AspettoScansione& aspetto);

}  // namespace trameli
