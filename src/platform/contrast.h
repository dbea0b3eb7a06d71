// How well one colour can be seen on another.
#pragma once

#include <algorithm>
#include <cmath>

#include "platform/colour.h"

namespace trameli {

/// How bright a colour seems, from 0 to 1.
inline double Luminance(Colour colour) {
    const auto linear = [](int of255) {
        const double part = of255 / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(RedOf(colour)) + 0.7152 * linear(GreenOf(colour)) +
           0.0722 * linear(BlueOf(colour));
}

/// The ratio of the brightnesses of two colours, from 1 to 21.
inline double Contrast(Colour a, Colour b) {
    const auto [dark, bright] = std::minmax({Luminance(a), Luminance(b)});
    return (bright + 0.05) / (dark + 0.05);
}

}  // namespace trameli
