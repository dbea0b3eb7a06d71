#include "platform/qt/key_road.h"

#include <QApplication>
#include <QMenuBar>
#include <utility>

#include "platform/forms.h"
#include "platform/qt/form_window.h"

namespace trameli {

KeyRoad::KeyRoad(Form& form, QWidget& window) : form_(form), window_(window), care_(form.Forms()) {}

bool KeyRoad::Takes(QEvent& event) {
    switch (event.type()) {
        case QEvent::ShortcutOverride:  // comes before each press
            menuHasKey_ = QApplication::activePopupWidget() != nullptr;
            if (Refuses(static_cast<QKeyEvent&>(event))) {
                event.accept();  // so that no shortcut has the key either
                return true;
            }
            return false;
        case QEvent::KeyPress:
            return TakesPress(static_cast<QKeyEvent&>(event));
        case QEvent::KeyRelease:
            return TakesRelease(static_cast<QKeyEvent&>(event));
        default:
            return false;
    }
}

void KeyRoad::Forget() {
    gate_.Forget();
    kept_.clear();
}

bool KeyRoad::TakesPress(QKeyEvent& event) {
    const bool menuHadKey = std::exchange(menuHasKey_, false);
    if (Refuses(event)) {
        return true;
    }
    if (QApplication::activePopupWidget()) {
        // The keyboard is the menu's, and so is the release of whatever is held down just now.
        Forget();
        return false;
    }
    if (menuHadKey) {
        return true;  // a list closes before the press itself has come
    }
    if (!event.isAutoRepeat()) {
        TellForm(event);
    }
    // Unless the form has just fetched it, the keyboard is the menu bar's: its arrows walk the bar.
    if (qobject_cast<QMenuBar*>(QApplication::focusWidget()) && !kept_.contains(event.key())) {
        gate_.Forget();
        return false;
    }
    gate_.Press(event);
    return kept_.contains(event.key()) || !form_.Loaded();
}

/// The form is asked once; what it says holds for the presses that auto-repeat makes up as well.
void KeyRoad::TellForm(QKeyEvent& press) {
    const int keyCode = KeyCodeOf(press);
    const int shift = ShiftBitsOf(press);
    bool kept = false;
    answersPress_ = true;
    form_.Forms().Dispatch(form_, [&] { kept = Form::Native::KeyPressed(form_, keyCode, shift); });
    answersPress_ = false;
    // The form may have fetched the keyboard for a control that is too new to be meant.
    if (kept || care_.IsTooSoon(press, window_)) {
        kept_.insert(press.key());
    } else {
        kept_.remove(press.key());
    }
}

bool KeyRoad::TakesRelease(QKeyEvent& event) {
    if (care_.WentUp(event)) {
        return true;
    }
    if (QApplication::activePopupWidget()) {
        Forget();
        return false;
    }
    if (!gate_.Release(event)) {
        return true;
    }
    const bool kept = kept_.remove(event.key());
    const int keyCode = KeyCodeOf(event);
    const int shift = ShiftBitsOf(event);
    form_.Forms().Dispatch(form_, [&] { Form::Native::KeyReleased(form_, keyCode, shift); });
    return kept || !form_.Loaded();
}

bool KeyRoad::Refuses(const QKeyEvent& press) {
    const bool menu = QApplication::activePopupWidget() != nullptr;
    return care_.Refuses(press, menu ? nullptr : &window_);
}

}  // namespace trameli
