// Scroll bars.
#pragma once

#include "platform/control.h"

namespace trameli {

/// A horizontal scroll bar: a number between two ends, set with the mouse. Unless it is told to, it
/// does not take the keyboard, so the arrow keys stay with the form.
class HScrollBar : public InteractiveControl {
public:
    /// Values go from `min` at the left to `max` at the right and begin at `min`; `largeChange` is
    /// the step of a click beside the handle.
    HScrollBar(Container& container, ControlName name, const Bounds& bounds, int min, int max,
               int largeChange);

    /// Whether it can have the keyboard: the arrow keys are steps of 1 then, Page Up and Page Down
    /// large ones, Home and End lead to the ends.
    void TakesKeyboard(bool takes);

    int Value() const;
    /// Beyond an end, the end counts. A new value fires `Change`, whoever sets it.
    void Value(int value);

    /// The value is another one.
    std::function<void()> Change;

protected:
    void Properties(PropertyAccess& access) override;
};

}  // namespace trameli
