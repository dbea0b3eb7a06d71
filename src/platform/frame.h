// Groups of controls.
#pragma once

#include "platform/control.h"

namespace trameli {

/// A box round other controls, with a caption on its upper edge.
class Frame : public VisualControl, public Container {
public:
    Frame(Container& container, ControlName name, const Bounds& bounds, std::string caption = {});

    /// The text on the border.
    const std::string& Caption() const { return caption_; }
    void Caption(const std::string& caption);
    /// Without a border there is no caption either.
    void Border(bool border);

    Form& ContainerForm() override { return OwnerForm(); }
    Container::Native ContainerNative() override;

private:
    std::string caption_;
};

}  // namespace trameli
