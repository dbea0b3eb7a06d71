// What lists of entries have in common.
#pragma once

#include "platform/control.h"

namespace trameli {

/// Texts of which one can be chosen. Nothing can be typed.
class ListControl : public InteractiveControl {
public:
    int ListCount() const;
    /// Text of an entry, counted from 0; empty if there is none.
    std::string List(int index) const;
    /// Gives an entry another text; nothing happens if there is no such entry.
    void List(int index, const std::string& text);
    /// Puts an entry at the end. The choice stays, also that of nothing.
    void AddItem(const std::string& text);
    /// Takes all entries away, and the choice with them, without a `Click`.
    void Clear();

    /// The chosen entry, -1 for none. Choosing by code fires `Click` if it changes the choice; an
    /// entry that does not exist cannot be chosen.
    int ListIndex() const { return Chosen(); }
    void ListIndex(int index);
    /// Text of the chosen entry, empty if none is chosen.
    std::string Text() const { return List(ListIndex()); }

    /// An entry was chosen: by hand, be it the same one again, or by code that changed the choice.
    std::function<void()> Click;

protected:
    using InteractiveControl::InteractiveControl;

    void Properties(PropertyAccess& access) override;

private:
    /// The choice as the toolkit has it; choosing there fires nothing.
    virtual int Chosen() const = 0;
    virtual void Choose(int index) = 0;
};

}  // namespace trameli
