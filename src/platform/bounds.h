// Places of rectangles.
#pragma once

namespace trameli {

/// Place and size in twips, relative to what it lies on.
struct Bounds {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;

    bool operator==(const Bounds&) const = default;
};

}  // namespace trameli
