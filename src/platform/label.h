// Fixed text.
#pragma once

#include "platform/control.h"

namespace trameli {

enum class Alignment { Left, Right, Centre };

/// A text of one or more lines that the player cannot change. It wraps at its width.
class Label : public VisualControl {
public:
    Label(Container& container, ControlName name, const Bounds& bounds, std::string caption);

    const std::string& Caption() const { return caption_; }
    void Caption(const std::string& caption);
    void TextAlignment(Alignment alignment);
    /// A transparent label lets what lies under it show between its letters.
    void Transparent(bool transparent);

    /// Gives the letters a rim of this colour, so that they can be read on any ground.
    void Rim(Colour colour);

    std::function<void()> Click;

private:
    std::string caption_;
};

}  // namespace trameli
