// How the keyboard presses a button.
#pragma once

#include <QAbstractButton>
#include <QKeyEvent>
#include <QShortcutEvent>

namespace trameli {

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
        } else if (!IsPressKey(*event)) {
            Button::keyPressEvent(event);
        } else if (!event->isAutoRepeat()) {
            key_ = event->key();
            this->setDown(true);
        }
    }

    void keyReleaseEvent(QKeyEvent* event) override {
        if (key_ != 0 && event->key() == key_ && !event->isAutoRepeat()) {
            Forget();
            this->click();
        } else {
            event->accept();
        }
    }

    void focusOutEvent(QFocusEvent* event) override {
        Forget();
        Button::focusOutEvent(event);
    }

private:
    static bool IsPressKey(const QKeyEvent& event) {
        return event.key() == Qt::Key_Space || event.key() == Qt::Key_Return ||
               event.key() == Qt::Key_Enter;
    }

    static bool IsArrow(const QKeyEvent& event) {
        return event.key() >= Qt::Key_Left && event.key() <= Qt::Key_Down;
    }

    /// The key that went down here is let go, or counts no more.
    void Forget() {
        if (key_ != 0) {
            key_ = 0;
            this->setDown(false);
        }
    }

    int key_ = 0;  // the one that is down, 0 for none
};

}  // namespace trameli
