// The trace as it is painted. It is painted whole at each step, in the order walked: that is how a
// way back covers the way out.
#pragma once

#include "drawing/segmento.h"
#include "drawing/spessori.h"
#include "platform/surface.h"
#include "play/traccia.h"

namespace trameli {

/// Pens, ends and colours of the trace and of the symbol at its head.
struct AspettoTraccia {
    int PennaTraccia;  ///< pixels; it also takes the symbol away from the old head
    int PennaSimbolo;  ///< pixels
    Estremi EstremiTratti;
    int Indietro;  ///< twips by which a segment begins behind its first point
    double TwipsPerPixel;
    Colour ColoreSfondo;
    Colour ColoreSimbolo;
};

/// The look of a trace through cells of `dimensioneCella` twips: a line of the trace's thickness,
/// or, with `coloraCasella`, bars that fill the cells walked from wall to wall.
AspettoTraccia AspettoDi(const Spessori& spessori, std::int16_t dimensioneCella,
                         double twipsPerPixelX, bool coloraCasella, Colour coloreSfondo,
                         Colour coloreSimbolo);

/// The symbol: round while it walks, square where the whole picture is painted anew.
void DisegnaSimbolo(Surface& superficie, Punto punto, const AspettoTraccia& aspetto,
                    Estremi estremi = Estremi::Tondi);

/// A step: takes the symbol from the trace's head, makes `destinazione` the new head, paints the
/// trace and puts the symbol there. What a full trace has forgotten stays painted.
void DisegnaPasso(Surface& superficie, Traccia& traccia, Punto destinazione, Colour colore,
                  const AspettoTraccia& aspetto);

/// Paints the trace and a square symbol at its head, and adds nothing to it.
void DisegnaPercorsoPerStampa(Surface& superficie, const Traccia& traccia,
                              const AspettoTraccia& aspetto);

}  // namespace trameli
