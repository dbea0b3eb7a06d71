// Pictures on a form.
#pragma once

#include "platform/control.h"

namespace trameli {

/// A picture stretched to the control's size, whatever its own proportions. What lies under its
/// transparent parts shows through. Without an AccessibleName it is decoration.
class Image : public InteractiveControl {
public:
    Image(Container& container, ControlName name, const Bounds& bounds,
          const trameli::Picture& picture = {});

    /// The picture shown; one that cannot be loaded shows nothing.
    const trameli::Picture& Picture() const { return picture_; }
    void Picture(const trameli::Picture& picture);

    /// Whether the Tab key comes to it; it does not, unless told. Space and Enter arrive by
    /// `KeyUp`.
    void TakesKeyboard(bool takes);

    /// The left mouse button was pressed and released on it.
    std::function<void()> Click;

private:
    trameli::Picture picture_;
};

}  // namespace trameli
