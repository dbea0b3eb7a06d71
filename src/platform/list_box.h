// Lists that lie open.
#pragma once

#include "platform/list_control.h"

namespace trameli {

/// A list that shows as many of its entries as it has room for, one below the other.
class ListBox : public ListControl {
public:
    /// An empty list.
    ListBox(Container& container, ControlName name, const Bounds& bounds);

private:
    int Chosen() const override;
    void Choose(int index) override;
};

}  // namespace trameli
