// Straight lines on a form.
#pragma once

#include "platform/control.h"

namespace trameli {

/// A line between two points of its container. It lies under the other controls, and the mouse
/// goes through it.
class Line : public VisualControl {
public:
    /// From (x1, y1) to (x2, y2), twips; borderWidth in pixels.
    Line(Container& container, ControlName name, double x1, double y1, double x2, double y2,
         int borderWidth, Colour borderColor);

    // The two ends, twips, relative to the container.
    double X1() const { return ends_.Left; }
    double Y1() const { return ends_.Top; }
    double X2() const { return ends_.Width; }
    double Y2() const { return ends_.Height; }
    void Ends(double x1, double y1, double x2, double y2);
    /// Thickness in pixels, one at least.
    int BorderWidth() const { return borderWidth_; }
    void BorderWidth(int pixels);
    Colour BorderColor() const { return borderColor_; }
    void BorderColor(Colour colour);

private:
    void Lay();

    Bounds ends_;  // x1, y1, x2, y2
    int borderWidth_;
    Colour borderColor_;
};

}  // namespace trameli
