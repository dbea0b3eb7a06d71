// Arrows for numbers.
#pragma once

#include "platform/text_box.h"

namespace trameli {

/// Two small arrows that count the number in a text box up and down. The up and down keys in the
/// box do the same. Neither arrow has the keyboard; assistive technology calls them as the box.
class UpDown : public InteractiveControl {
public:
    /// Counts from `min` to `max`. The box outlives it or goes with it.
    UpDown(Container& container, ControlName name, const Bounds& bounds, TextBox& buddy, int min,
           int max, int increment = 1);

    /// The number in the box, or the nearest one that can be counted to; a text that is no number
    /// counts as 0.
    int Value() const;

    /// A number was counted to, and the box has it: its own `Change` came before.
    std::function<void()> Change;

protected:
    void Properties(PropertyAccess& access) override;

private:
    void Count(int direction);

    TextBox& buddy_;
    int min_;
    int max_;
    int increment_;
};

}  // namespace trameli
