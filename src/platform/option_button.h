// Buttons of which one in a container is chosen.
#pragma once

#include "platform/control.h"

namespace trameli {

/// One choice among the option buttons of its container.
class OptionButton : public VisualControl {
public:
    /// Not chosen, and one more of the choices of `container`.
    OptionButton(Container& container, ControlName name, const Bounds& bounds, std::string caption);

    /// The text; the letter behind an "&" chooses the button together with Alt.
    const std::string& Caption() const { return caption_; }
    void Caption(const std::string& caption);
    /// True for the chosen one. Choosing by code fires `Click` like choosing by hand, unless the
    /// button is chosen already.
    bool Value() const;
    void Value(bool chosen);

    /// The button was not the chosen one and is now.
    std::function<void()> Click;

private:
    std::string caption_;
};

}  // namespace trameli
