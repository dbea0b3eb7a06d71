// Pictures in another size. Not left to a painter: made small, its pictures either lose thin lines
// or cost a copy of the whole picture, and it would compute what lies outside.
#pragma once

#include "platform/pixel_block.h"
#include "platform/qt/raster.h"

namespace trameli {

/// From the edge of one pixel to that of another, across or down; it may be very far away.
struct Extent {
    double From;
    double To;
};

/// Lays a picture over a rectangle of `target`. Each pixel becomes the average of what of the
/// picture falls on it. Nothing is computed for what lies outside.
void Stretch(const Pixels& target, const Extent& across, const Extent& down,
             const PixelBlock& picture);

}  // namespace trameli
