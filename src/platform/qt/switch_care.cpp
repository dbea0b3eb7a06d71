#include "platform/qt/switch_care.h"

#include "platform/qt/key_gate.h"

namespace trameli {

namespace {

/// Seconds after a key went up in which it only bounces.
constexpr double Bounce = 0.15;

/// Keys that do nothing by themselves but move the keyboard to and fro.
bool IsHarmless(int key) {
    switch (key) {
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_Meta:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return true;
        default:
            return false;
    }
}

/// True if keys are letters there: whoever writes a name strikes one key twice in no time. Enter
/// and Escape write nothing; they press the window's buttons.
bool IsForWriting(int key, const QWidget* widget) {
    return widget && widget->testAttribute(Qt::WA_InputMethodEnabled) && key != Qt::Key_Return &&
           key != Qt::Key_Enter && key != Qt::Key_Escape;
}

}  // namespace

bool SwitchCare::Refuses(const QKeyEvent& press, const QWidget* window) {
    const quint64 key = IdentityOf(press);
    if (press.isAutoRepeat()) {
        return refused_.contains(key);
    }
    const double now = forms_.Clock().Now();
    appeared_.removeIf([now](auto one) { return now - one.value() >= Forms::Reaction; });
    const bool refused =
        IsMinded(press, window) && (Bounces(press) || (window && IsTooSoon(press, *window)));
    if (refused) {
        refused_.insert(key);
    } else {
        refused_.remove(key);
    }
    return refused;
}

bool SwitchCare::IsTooSoon(const QKeyEvent& press, const QWidget& window) const {
    return IsMinded(press, &window) &&
           (appeared_.contains(&window) || appeared_.contains(window.focusWidget()));
}

bool SwitchCare::WentUp(const QKeyEvent& release) {
    const quint64 key = IdentityOf(release);
    if (release.isAutoRepeat()) {
        return refused_.contains(key);
    }
    wentUp_[key] = forms_.Clock().Now();
    return refused_.remove(key);
}

bool SwitchCare::Bounces(const QKeyEvent& press) const {
    const auto last = wentUp_.find(IdentityOf(press));
    return last != wentUp_.end() && forms_.Clock().Now() - *last < Bounce;
}

bool SwitchCare::IsMinded(const QKeyEvent& press, const QWidget* window) const {
    return forms_.SwitchesInUse() && !IsHarmless(press.key()) &&
           !IsForWriting(press.key(), window ? window->focusWidget() : nullptr);
}

}  // namespace trameli
