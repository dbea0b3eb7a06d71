// Rows of tabs.
#pragma once

#include <vector>

#include "platform/control.h"

namespace trameli {

/// A row of tabs along the upper edge, and below it a ground for pages. It knows nothing of the
/// pages: the form lays them over the ground and shows the one that belongs to the selected tab.
class TabStrip : public InteractiveControl {
public:
    /// The first tab is selected.
    TabStrip(Container& container, ControlName name, const Bounds& bounds,
             const std::vector<std::string>& captions);

    /// How many tabs there are.
    int Tabs() const;
    /// What stands on a tab, counted from 0; empty if there is none. The letter behind an "&"
    /// selects the tab together with Alt.
    std::string TabCaption(int index) const;
    void TabCaption(int index, const std::string& caption);

    /// The selected tab, counted from 1. Selecting by code fires `Click` if it is another one; a
    /// tab that does not exist cannot be selected.
    int SelectedTab() const;
    void SelectedTab(int number);

    /// Another tab was selected: by code, by mouse, or with the arrow keys, Home and End.
    std::function<void()> Click;

protected:
    void Properties(PropertyAccess& access) override;
};

}  // namespace trameli
