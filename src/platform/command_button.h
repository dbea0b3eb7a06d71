// Push buttons.
#pragma once

#include "platform/captioned.h"

namespace trameli {

/// A button with a caption, a picture or both. The mouse presses it, or the release of Space or
/// Enter whose press it received too: one stroke of a switch is one action.
class CommandButton : public Captioned<InteractiveControl> {
public:
    /// A button that can be pressed; without a caption it wants a picture and an AccessibleName.
    CommandButton(Container& container, ControlName name, const Bounds& bounds,
                  std::string caption = {});

    /// Shown in its own proportions, as large as the button leaves room; above a caption.
    void Picture(const trameli::Picture& picture);

    /// Enter presses it wherever the keyboard is on the form, except on another button or where
    /// Enter has a meaning of its own, such as in an open list.
    bool Default() const;
    void Default(bool answersEnter);
    /// The same for Escape.
    bool Cancel() const;
    void Cancel(bool answersEscape);

    /// The button was pressed, by mouse or keyboard. Code cannot press it.
    std::function<void()> Click;

protected:
    void ShowCaption() override;
    void Properties(PropertyAccess& access) override;
};

}  // namespace trameli
