// The colours of the window that congratulates.
#pragma once

#include <vector>

#include "platform/surface.h"

namespace trameli {

/// How many colour schemes there are; a scheme is 0 to one less.
inline constexpr int NumeroSchemi = 7;

/// The colour of what is written on the gradient of scheme `schema`, 0 to 6.
Colour ColoreScritte(int schema);

/// The rings of the gradient from the edge inwards, one for each pixel of the longer half axis
/// `RaggioMassimo`: an eighth of the full brightness at the edge, nearly all of it in the middle.
std::vector<Colour> Sfumatura(int schema, float RaggioMassimo);

/// Draws the gradient on a surface of so many pixels. Its largest ellipse touches all four edges.
void DisegnaSfumatura(Surface& superficie, int schema, double larghezza, double altezza);

}  // namespace trameli
