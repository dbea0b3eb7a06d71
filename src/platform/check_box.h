// Boxes to tick.
#pragma once

#include "platform/captioned.h"

namespace trameli {

/// A flag that the player turns over by a click, or by the release of Space or Enter.
class CheckBox : public Captioned<InteractiveControl> {
public:
    /// Not ticked. The caption wraps where it is too long for one line.
    CheckBox(Container& container, ControlName name, const Bounds& bounds, std::string caption);

    /// True if it is ticked. A change by code fires `Click` like one by hand.
    bool Value() const;
    void Value(bool ticked);

    /// The value is the other one now.
    std::function<void()> Click;

protected:
    void ShowCaption() override;
    void Properties(PropertyAccess& access) override;
};

}  // namespace trameli
