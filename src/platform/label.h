// Fixed text.
#pragma once

#include "platform/captioned.h"

namespace trameli {

/// Which edge of a label its lines keep to.
enum class Alignment { Left, Right, Centre };

/// A text of one or more lines that the player cannot change. It wraps at its width.
///
/// One that is made with an "&" in its caption belongs to the control that the Tab key comes to
/// next: the letter behind the "&", with Alt, leads there, and assistive technology calls that
/// control by the label's text unless it has an AccessibleName. Other labels show an "&" as it is.
class Label : public Captioned<InteractiveControl> {
public:
    /// Text on an opaque ground, its lines to the left.
    Label(Container& container, ControlName name, const Bounds& bounds, std::string caption);

    /// Lines begin at the top in any case.
    void TextAlignment(Alignment alignment);
    /// A transparent label lets what lies under it show between its letters.
    void Transparent(bool transparent);

    /// Twips that the caption takes on one line.
    double TextWidth() const;

    /// Gives the letters a rim of this colour, so that they can be read on any ground.
    void Rim(Colour colour);

    /// The left mouse button was pressed and released on it.
    std::function<void()> Click;

    /// Tells it which control is next, nothing for none; of use below `platform` only.
    void LeadTo(const InteractiveControl* next) const;

protected:
    void ShowCaption() override;
};

}  // namespace trameli
