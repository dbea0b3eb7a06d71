// Fields to type a text into.
#pragma once

#include "platform/control.h"

namespace trameli {

/// A line of text that the player can edit.
class TextBox : public InteractiveControl {
public:
    /// An empty one.
    TextBox(Container& container, ControlName name, const Bounds& bounds);

    std::string Text() const;
    /// Sets the text, whatever `Accepts` says.
    void Text(const std::string& text);

    /// Asked for every edit by the player, be it a key, a paste or a drop, with the text as it
    /// would be. An edit that is refused changes nothing. Without it everything is accepted.
    std::function<bool(const std::string& wouldBe)> Accepts;
    /// The text is another one, by hand or by code.
    std::function<void()> Change;

protected:
    void Properties(PropertyAccess& access) override;
};

}  // namespace trameli
