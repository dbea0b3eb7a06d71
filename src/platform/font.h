// Fonts of controls.
#pragma once

#include <string>

namespace trameli {

/// A font. Where "Comic Sans MS" or "Arial" is not installed, "Comic Neue" or "Liberation Sans"
/// takes its place.
struct Font {
    std::string Family = "Arial";
    double Points = 8.25;  ///< size in points, 20 twips each
    bool Bold = false;

    bool operator==(const Font&) const = default;
};

}  // namespace trameli
