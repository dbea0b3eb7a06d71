// Status bars.
#pragma once

#include <initializer_list>

#include "platform/control.h"

namespace trameli {

/// A row of text panels at the bottom edge of the form's client area, as wide as the form. Panels
/// share the width where it is too small for all of them, and one whose text needs more takes it
/// from the others. A large font of the desktop makes the bar higher.
class StatusBar : public InteractiveControl {
public:
    /// One panel for each design text; panelWidth in twips.
    StatusBar(Form& form, ControlName name, double panelWidth,
              std::initializer_list<const char*> texts);

    int PanelCount() const;
    /// Text of a panel, counted from 1; std::out_of_range if there is none.
    std::string Panel(int number) const;
    void Panel(int number, const std::string& text);
};

}  // namespace trameli
