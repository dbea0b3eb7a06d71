// Buttons of which one in a container is chosen.
#pragma once

#include "platform/captioned.h"

namespace trameli {

/// One choice among the option buttons of its container.
class OptionButton : public Captioned<InteractiveControl> {
public:
    /// Not chosen, and one more of the choices of `container`.
    OptionButton(Container& container, ControlName name, const Bounds& bounds, std::string caption);

    /// True for the chosen one. Choosing by code fires `Click` like choosing by hand, unless the
    /// button is chosen already.
    bool Value() const;
    void Value(bool chosen);

    /// The button was chosen: by hand, be it once more, or by code that changed the choice.
    std::function<void()> Click;

protected:
    void ShowCaption() override;
    void Properties(PropertyAccess& access) override;
};

}  // namespace trameli
