// Which keys reach a form.
#pragma once

#include <QHash>
#include <QKeyEvent>
#include <functional>

namespace trameli {

/// A name for the key itself, the same for press and release whatever happens to Num Lock or Shift
/// in between.
quint64 IdentityOf(const QKeyEvent& event);
/// The code of a key in the layer's terms; 0 for a key that has none.
int KeyCodeOf(const QKeyEvent& event);
/// The ShiftBit values of the keys held down with it: Shift, Ctrl and Alt, not the keypad.
int ShiftBitsOf(const QKeyEvent& event);

/// Stands between a window and its keys. Lets a release through only if its press came here too:
/// not the releases that auto-repeat makes up, nor one whose press chose a menu entry, closed a
/// message box, or belonged to another window.
class KeyGate {
public:
    /// Takes note of a press.
    void Press(const QKeyEvent& event);
    /// True if this release belongs to a press that was noted.
    bool Release(const QKeyEvent& event);
    /// The window lost the keyboard, be it to a menu: what is held down is not its own any more.
    void Forget() { pressed_.clear(); }
    /// True while a key of this code is held down whose press was noted.
    bool IsDown(int keyCode) const { return pressed_.values().contains(keyCode); }

private:
    QHash<quint64, int> pressed_;  // key codes by what the keys are
};

}  // namespace trameli
