// How the keyboard presses a button.
#pragma once

#include <QAbstractButton>
#include <QKeyEvent>
#include <QShortcutEvent>

namespace trameli {

/// Lets the release of Space or Enter press a button, and only if the press came to it as well:
/// one stroke of a switch is never two actions.
class KeyPressOnRelease {
public:
    /// True if the press was one of the two keys and is dealt with.
    bool Pressed(const QKeyEvent& event, QAbstractButton& button) {
        if (!IsPressKey(event)) {
            return false;
        }
        if (!event.isAutoRepeat()) {
            key_ = event.key();
            button.setDown(true);
        }
        return true;
    }

    /// True if this release presses the button.
    bool Released(const QKeyEvent& event, QAbstractButton& button) {
        const bool ours = key_ != 0 && event.key() == key_ && !event.isAutoRepeat();
        if (ours) {
            key_ = 0;
            button.setDown(false);
        }
        return ours;
    }

    /// True if this was the button's letter with Alt, which presses it at once. The toolkit would
    /// show it pressed for a moment first, by a time that is not the program's, and would press it
    /// again and again while the key is held.
    static bool Shortcut(const QEvent& event, QAbstractButton& button) {
        if (event.type() != QEvent::Shortcut) {
            return false;
        }
        const auto& shortcut = static_cast<const QShortcutEvent&>(event);
        if (shortcut.isAmbiguous()) {
            return false;
        }
        button.setShortcutAutoRepeat(shortcut.shortcutId(), false);
        button.click();
        return true;
    }

    /// The keyboard went elsewhere between press and release.
    void Forget(QAbstractButton& button) {
        if (key_ != 0) {
            key_ = 0;
            button.setDown(false);
        }
    }

private:
    static bool IsPressKey(const QKeyEvent& event) {
        return event.key() == Qt::Key_Space || event.key() == Qt::Key_Return ||
               event.key() == Qt::Key_Enter;
    }

    int key_ = 0;
};

}  // namespace trameli
