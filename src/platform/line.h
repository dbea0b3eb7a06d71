// Straight lines on a form.
#pragma once

#include "platform/control.h"

namespace trameli {

/// A line between two points of its container. A new one lies under the other controls, and the
/// mouse goes through it.
class Line : public VisualControl {
public:
    /// From (x1, y1) to (x2, y2), twips; borderWidth in pixels.
    Line(Container& container, ControlName name, double x1, double y1, double x2, double y2,
         int borderWidth, Colour borderColor);

    // The two ends, twips, relative to the container.
    double X1() const { return x1_; }
    double Y1() const { return y1_; }
    double X2() const { return x2_; }
    double Y2() const { return y2_; }
    void X1(double twips) { Ends(twips, y1_, x2_, y2_); }
    void Y1(double twips) { Ends(x1_, twips, x2_, y2_); }
    void X2(double twips) { Ends(x1_, y1_, twips, y2_); }
    void Y2(double twips) { Ends(x1_, y1_, x2_, twips); }
    void Ends(double x1, double y1, double x2, double y2);
    /// Thickness in pixels, one at least.
    int BorderWidth() const { return borderWidth_; }
    void BorderWidth(int pixels);
    Colour BorderColor() const { return borderColor_; }
    void BorderColor(Colour colour);

protected:
    void Properties(PropertyAccess& access) override;

private:
    void Lay();

    double x1_;
    double y1_;
    double x2_;
    double y2_;
    int borderWidth_;
    Colour borderColor_;
};

}  // namespace trameli
