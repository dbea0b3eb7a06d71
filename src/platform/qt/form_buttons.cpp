#include "platform/qt/form_buttons.h"

#include <utility>

namespace trameli {

bool FormButtons::Press(const QKeyEvent& event) {
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    QPushButton* const button = !plain                          ? nullptr
                                : enter                         ? Default
                                : event.key() == Qt::Key_Escape ? Cancel
                                                                : nullptr;
    if (!button || !button->isVisible() || !button->isEnabled()) {
        return false;
    }
    if (!event.isAutoRepeat()) {
        Forget();
        down_ = button;
        key_ = event.key();
        button->setDown(true);
    }
    return true;
}

bool FormButtons::Release(const QKeyEvent& event) {
    if (!down_ || event.key() != key_) {
        return false;
    }
    if (!event.isAutoRepeat()) {
        const QPointer<QPushButton> pressed = down_;
        Forget();
        if (pressed->isVisible()) {
            pressed->click();  // nothing if it has been disabled meanwhile
        }
    }
    return true;
}

void FormButtons::Forget() {
    if (const QPointer<QPushButton> held = std::exchange(down_, nullptr)) {
        held->setDown(false);
    }
}

}  // namespace trameli
