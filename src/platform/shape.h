// Drawn figures that take no part in the play of mouse and keyboard.
#pragma once

#include "platform/control.h"

namespace trameli {

/// The outline of a rectangle. It lies under the controls of its container, and the mouse goes
/// through it.
class Shape : public PlacedControl {
public:
    /// borderWidth in pixels of a screen of 15 twips a pixel.
    Shape(Container& container, ControlName name, const Bounds& bounds, int borderWidth,
          Colour borderColor);

    /// What the outline is drawn in.
    Colour BorderColor() const { return borderColor_; }
    void BorderColor(Colour colour);

protected:
    void Properties(PropertyAccess& access) override;

private:
    Colour borderColor_;
};

}  // namespace trameli
