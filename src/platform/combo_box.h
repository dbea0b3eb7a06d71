// Drop-down lists.
#pragma once

#include "platform/list_control.h"

namespace trameli {

/// A list that shows its chosen entry and drops down to choose another.
class ComboBox : public ListControl {
public:
    /// An empty list; the height of `bounds` is that of the closed one.
    ComboBox(Container& container, ControlName name, const Bounds& bounds);

    using ListControl::AccessibleName;
    void AccessibleName(const std::string& name) override;

private:
    int Chosen() const override;
    void Choose(int index) override;
};

}  // namespace trameli
