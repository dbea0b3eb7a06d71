// Drop-down lists.
#pragma once

#include "platform/control.h"

namespace trameli {

/// A list that shows its chosen entry and drops down to choose another. Nothing can be typed.
class ComboBox : public VisualControl {
public:
    ComboBox(Container& container, ControlName name, const Bounds& bounds);

    int ListCount() const;
    /// Text of an entry, counted from 0; empty if there is none.
    std::string List(int index) const;
    void List(int index, const std::string& text);
    void AddItem(const std::string& text);
    void Clear();

    /// The chosen entry, -1 for none. Choosing by code fires `Click` if it changes the choice; an
    /// entry that does not exist cannot be chosen.
    int ListIndex() const;
    void ListIndex(int index);
    /// Text of the chosen entry, empty if none is chosen.
    std::string Text() const { return List(ListIndex()); }

    std::function<void()> Click;
};

}  // namespace trameli
