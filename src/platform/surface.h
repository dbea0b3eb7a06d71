// Surfaces to draw on.
#pragma once

#include <memory>
#include <span>

#include "platform/colour.h"
#include "platform/pixel_block.h"
#include "platform/screen.h"

namespace trameli {

/// A drawing that stays until it is cleared. Coordinates are twips from the upper left corner, pen
/// widths pixels, at least one. Nothing is smoothed: what a pen drew, the same pen in the
/// background's colour takes away to the last pixel, and so does a thicker one.
class Surface {
public:
    struct Native;

    Surface();
    virtual ~Surface();
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    /// The pen of the next lines and boxes, pixels; less than one counts as one.
    int DrawWidth() const { return drawWidth_; }
    void DrawWidth(int pixels) { drawWidth_ = pixels < 1 ? 1 : pixels; }

    /// A line with round ends; of length zero it is a round point of the pen's width.
    void DrawLine(double x1, double y1, double x2, double y2, Colour colour);
    /// The outline of the rectangle with these corners. With both corners on one horizontal or
    /// vertical line it is a bar of the pen's width with square ends half a width beyond them.
    void DrawBox(double x1, double y1, double x2, double y2, Colour colour);
    /// The rectangle between two corners, filled, without an outline.
    void FillBox(double x1, double y1, double x2, double y2, Colour colour);
    /// Filled ellipses round the middle of the surface, one inside the other, in the surface's own
    /// proportions. The longer half axis of the largest is `radius`, in any unit; it touches the
    /// edges and has the first colour. Each further one is smaller by 1, the last takes the middle.
    void FillRings(std::span<const Colour> colours, double radius);
    /// Lays a picture over a rectangle of the surface, given in pixels as the layout counts them.
    /// Shrunk it is averaged, so that no thin line gets lost; enlarged its pixels stay pixels.
    /// Costs only what can be seen of it. False if the picture is none.
    bool StretchPixels(const PixelRectangle& where, const PixelBlock& picture);
    /// Clears to the background.
    void Cls();

    /// Size of the drawing in the device's own pixels, of which a scaled screen has more.
    PixelSize DevicePixels() const;
    /// Copies the drawing, pixel by pixel, without the controls on it. Returns how many rows were
    /// copied: none unless `into` has just the size of `DevicePixels`.
    int ReadPixels(const PixelBlock& into) const;

    /// The toolkit's side of the surface; of use below `platform` only.
    Native& SurfaceNative() const { return *native_; }

private:
    int drawWidth_ = 1;
    std::unique_ptr<Native> native_;
};

}  // namespace trameli
