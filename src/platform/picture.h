// Pictures that come with the program.
#pragma once

#include <string>

namespace trameli {

/// A picture of the program, by its path below `assets`, for instance "arrivo/07.svg". The empty
/// name is no picture. Pictures are loaded when they are first shown and scaled without loss.
struct Picture {
    std::string Name;

    bool operator==(const Picture&) const = default;
};

/// A mouse pointer made of a picture of 32 by 32 pixels, with the place in it that points.
struct PointerImage {
    Picture Image;
    int HotX = 0;  ///< pixels from the left edge
    int HotY = 0;  ///< pixels from the upper edge
};

}  // namespace trameli
