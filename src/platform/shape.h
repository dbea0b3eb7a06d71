// Drawn figures that take no part in the play of mouse and keyboard.
#pragma once

#include "platform/control.h"

namespace trameli {

enum class ShapeKind { Rectangle, Circle };

/// The outline of a figure, filled if it is given a colour for that. A new one lies under the
/// controls of its container, and the mouse goes through it.
class Shape : public PlacedControl {
public:
    /// borderWidth in pixels of a screen of 15 twips a pixel. A circle is the largest that has room
    /// in the middle of its bounds.
    Shape(Container& container, ControlName name, const Bounds& bounds, int borderWidth,
          Colour borderColor, ShapeKind kind = ShapeKind::Rectangle);

    /// What the outline is drawn in.
    Colour BorderColor() const { return borderColor_; }
    void BorderColor(Colour colour);
    /// What lies inside the outline; black as long as nothing does.
    Colour FillColor() const { return fillColor_; }
    void FillColor(Colour colour);

protected:
    void Properties(PropertyAccess& access) override;

private:
    Colour borderColor_;
    Colour fillColor_ = Black;
};

}  // namespace trameli
