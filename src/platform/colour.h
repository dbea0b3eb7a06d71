// Colours as the settings hold them.
#pragma once

#include <cstdint>

namespace trameli {

/// A colour as one number: red + 256 x green + 65536 x blue, each from 0 to 255.
using Colour = std::int32_t;

/// The colour of these three parts, each from 0 to 255; other values are not checked.
constexpr Colour Rgb(int red, int green, int blue) {
    return red + 256 * green + 65536 * blue;
}

/// A part of a colour, 0 to 255.
constexpr int RedOf(Colour colour) {
    return colour & 0xFF;
}
constexpr int GreenOf(Colour colour) {
    return (colour >> 8) & 0xFF;
}
constexpr int BlueOf(Colour colour) {
    return (colour >> 16) & 0xFF;
}

inline constexpr Colour Black = Rgb(0, 0, 0);
inline constexpr Colour White = Rgb(255, 255, 255);
/// What forms, frames and buttons have unless they are given another colour.
inline constexpr Colour ButtonFace = Rgb(240, 240, 240);

}  // namespace trameli
