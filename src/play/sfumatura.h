// The colours of the window that congratulates.
#pragma once

#include <vector>

#include "platform/surface.h"

namespace trameli {

inline constexpr int NumeroSchemi = 7;

/// The colour of what is written on the gradient of scheme `schema`, 0 to 6.
Colour ColoreScritte(int schema);

/// The rings of the gradient from the middle outwards, one for each pixel of the longer half axis
/// `raggioMassimo`: nearly full brightness in the middle, an eighth of it at the edge.
std::vector<Colour> Sfumatura(int schema, float raggioMassimo);

/// Draws the gradient on a surface of so many pixels. Its largest ellipse touches all four edges.
void DisegnaSfumatura(Surface& superficie, int schema, double larghezza, double altezza);

}  // namespace trameli
