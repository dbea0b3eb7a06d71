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

    /// The letters before the selection or the cursor, and those that are selected.
    int SelStart() const;
    std::string SelText() const;
    /// How many letters there can be at most; 0 for any number.
    int MaxLength() const;
    void MaxLength(int letters);

    /// Asked for each character that is typed, by its code, and with 8 for the backspace key:
    /// returns what is let through in its place, 0 for nothing. What is held together with Ctrl is
    /// no character, and neither is what is pasted or dropped.
    std::function<int(int keyAscii)> KeyPress;
    /// Asked for every edit by the player, be it a key, a paste or a drop, with the text as it
    /// would be. An edit that is refused changes nothing. Without it everything is accepted.
    std::function<bool(const std::string& wouldBe)> Accepts;
    /// The text is another one, by hand or by code.
    std::function<void()> Change;
    /// The player has changed the text without a key: dropped something, or pasted it with the
    /// mouse or from the box's own menu. Comes after `Change`, when the text is done.
    std::function<void()> EditedByMouse;

protected:
    void Properties(PropertyAccess& access) override;
};

}  // namespace trameli
