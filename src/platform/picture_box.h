// Drawing surfaces that are controls.
#pragma once

#include "platform/control.h"
#include "platform/surface.h"

namespace trameli {

/// A surface on a form that keeps what is drawn on it, can hold other controls above the drawing,
/// and can have the keyboard. Without an AccessibleName it is decoration.
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
    /// What is drawn on another surface becomes the picture, pixel by pixel, and the box takes its
    /// size. What is drawn there later does not show.
    void Picture(const Surface& drawing);

    /// Width and height in pixels as the layout counts them.
    double ScaleWidthPixels() const;
    double ScaleHeightPixels() const;

    /// Whether the Tab key comes to the box. Space and Enter then click it as they press a button,
    /// and a ring shows that it has the keyboard. A new box does neither: it can hold the keyboard
    /// for a form that answers the keys itself.
    void TakesKeyboard(bool takes);

    /// The left mouse button was pressed and released on it, or Space or Enter if it takes the
    /// keyboard.
    std::function<void()> Click;

    /// What assistive technology is told of what is to be seen, at the moment in which it asks.
    std::function<std::string()> Description;

    using InteractiveControl::Place;
    void Place(const Bounds& bounds) override;

    Form& ContainerForm() override { return OwnerForm(); }
    Container::Native ContainerNative() override;

private:
    PictureBox(Container& container, ControlName name, const Bounds& bounds,
               std::unique_ptr<VisualControl::Native> native);

    Container& container_;
    trameli::Picture picture_;
};

}  // namespace trameli
