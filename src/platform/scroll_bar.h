// Scroll bars.
#pragma once

#include "platform/control.h"

namespace trameli {

/// A horizontal scroll bar: a number between two ends, set with the mouse. It never takes the
/// keyboard, so the arrow keys stay with the form.
class HScrollBar : public InteractiveControl {
public:
    /// Values go from `min` at the left to `max` at the right and begin at `min`; `largeChange` is
    /// the step of a click beside the handle.
    HScrollBar(Container& container, ControlName name, const Bounds& bounds, int min, int max,
               int largeChange);

    int Value() const;
    /// Beyond an end, the end counts. A new value fires `Change`, whoever sets it.
    void Value(int value);

    /// The value is another one.
    std::function<void()> Change;

protected:
    void Properties(PropertyAccess& access) override;
};

}  // namespace trameli
