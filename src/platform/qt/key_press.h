// How the keyboard presses things.
#pragma once

#include <QAbstractButton>
#include <QKeyEvent>
#include <QShortcutEvent>
#include <utility>

namespace trameli {

/// One stroke of Space or Enter on something that it presses. It begins where the key goes down and
/// is over when that key goes up, or when it counts no more.
class KeyStroke {
public:
    /// True for the keys that press things.
    static bool IsMeant(const QKeyEvent& event) {
        return event.key() == Qt::Key_Space || event.key() == Qt::Key_Return ||
               event.key() == Qt::Key_Enter;
    }
    /// A key of those went down; true if a stroke begins with it.
    bool Press(const QKeyEvent& event) {
        if (event.isAutoRepeat()) {
            return false;
        }
        key_ = event.key();
        return true;
    }
    /// A key went up; true if it ends the stroke.
    bool Release(const QKeyEvent& event) {
        return key_ != 0 && event.key() == key_ && !event.isAutoRepeat() && Forget();
    }
    /// The stroke counts no more; true if there was one.
    bool Forget() { return std::exchange(key_, 0) != 0; }

private:
    int key_ = 0;  // the one that is down, 0 for none
};

/// A button of the toolkit, of class Button, that the release of Space or Enter presses, and only
/// if the press came to it as well: one stroke of a switch is never two actions.
template <typename Button>
class PressedByRelease : public Button {
public:
    explicit PressedByRelease(QWidget* parent) : Button(parent) {
        this->setFocusPolicy(Qt::StrongFocus);
    }

protected:
    /// The button's letter with Alt presses it at once. The toolkit would show it pressed for a
    /// moment first, by a time that is not the program's, and would press it again and again while
    /// the key is held.
    bool event(QEvent* event) override {
        if (event->type() == QEvent::Shortcut) {
            const auto& shortcut = static_cast<const QShortcutEvent&>(*event);
            if (!shortcut.isAmbiguous()) {
                this->setShortcutAutoRepeat(shortcut.shortcutId(), false);
                this->click();
                return true;
            }
        }
        return Button::event(event);
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (IsArrow(*event) && !this->autoExclusive()) {
            event->ignore();  // among options arrows choose; from a button they would lead away
        } else if (!KeyStroke::IsMeant(*event)) {
            Button::keyPressEvent(event);
        } else if (stroke_.Press(*event)) {
            this->setDown(true);
        }
    }

    void keyReleaseEvent(QKeyEvent* event) override {
        if (stroke_.Release(*event)) {
            this->setDown(false);
            this->click();
        } else {
            event->accept();
        }
    }

    void focusOutEvent(QFocusEvent* event) override {
        if (stroke_.Forget()) {
            this->setDown(false);
        }
        Button::focusOutEvent(event);
    }

private:
    static bool IsArrow(const QKeyEvent& event) {
        return event.key() >= Qt::Key_Left && event.key() <= Qt::Key_Down;
    }

    KeyStroke stroke_;
};

}  // namespace trameli
