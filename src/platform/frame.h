// Groups of controls.
#pragma once

#include "platform/captioned.h"

namespace trameli {

/// A box round other controls, with a caption on its upper edge.
class Frame : public Captioned<InteractiveControl>, public Container {
public:
    Frame(Container& container, ControlName name, const Bounds& bounds, std::string caption = {});

    /// Without a border there is no caption either.
    void Border(bool border);

    /// Takes a control that lies elsewhere on the form, with its place as it is, above those that
    /// the frame has.
    void Take(VisualControl& control);

    Form& ContainerForm() override { return OwnerForm(); }
    Container::Native ContainerNative() override;

protected:
    void ShowCaption() override;
};

}  // namespace trameli
