// Drawing surfaces that are controls.
#pragma once

#include "platform/control.h"
#include "platform/surface.h"

namespace trameli {

/// A surface on a form that keeps what is drawn on it, can hold other controls above the drawing,
/// and can have the keyboard.
class PictureBox : public InteractiveControl, public Container, public Surface {
public:
    /// A surface of the control's size, grey like a button's face and empty.
    PictureBox(Container& container, ControlName name, const Bounds& bounds);
    /// A further element of a control array at run time: like `model`, but invisible.
    PictureBox(PictureBox& model, int index);

    /// Setting the background clears the drawing.
    using InteractiveControl::BackColor;
    void BackColor(Colour colour) override;

    /// A picture shown at its own size from the upper left corner, under the drawing.
    const trameli::Picture& Picture() const { return picture_; }
    void Picture(const trameli::Picture& picture);

    Form& ContainerForm() override { return OwnerForm(); }
    Container::Native ContainerNative() override;

private:
    Container& container_;
    trameli::Picture picture_;
};

}  // namespace trameli
