// Menu bars and their entries.
#pragma once

#include "platform/captioned.h"

namespace trameli {

/// An entry of the form's menu bar or of one of its menus. An "&" in the caption marks the letter
/// that chooses it from the keyboard.
class MenuItem : public Captioned<Control> {
public:
    /// An entry on the bar: in front of the entry `before`, or at the end.
    MenuItem(Form& form, ControlName name, std::string caption, const MenuItem* before = nullptr);
    /// An entry of a menu: in front of the entry `before`, or at the end. `letter` is its shortcut
    /// together with Ctrl, 0 for none.
    MenuItem(MenuItem& parent, ControlName name, std::string caption, char letter = 0,
             const MenuItem* before = nullptr);
    /// A further element of a control array at run time: behind those of a smaller index, but
    /// invisible.
    MenuItem(MenuItem& model, int index);
    ~MenuItem() override;

    /// A disabled entry is grey and cannot be chosen, nor can those of its menu.
    bool Enabled() const { return enabled_; }
    void Enabled(bool enabled);
    /// An invisible entry takes no room, and its shortcut does nothing.
    bool Visible() const { return visible_; }
    void Visible(bool visible);
    /// The mark in front of the entry. Choosing it changes nothing about that.
    bool Checked() const { return checked_; }
    void Checked(bool checked);

    /// The entry was chosen, by mouse, keyboard or shortcut.
    std::function<void()> Click;

    struct Native;
    /// The toolkit's side of the entry; of use below `platform` only.
    Native& NativePart() const { return *native_; }

protected:
    void ShowCaption() override;
    void Properties(PropertyAccess& access) override;

private:
    void Listen();

    bool enabled_ = true;
    bool visible_ = true;
    bool checked_ = false;
    std::unique_ptr<Native> native_;
};

}  // namespace trameli
