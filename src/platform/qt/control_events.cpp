#include "platform/qt/control_events.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

#include "platform/qt/form_window.h"
#include "platform/qt/native.h"

namespace trameli {

ControlEvents::ControlEvents(InteractiveControl& control, QWidget* widget)
    : QObject(widget), control_(control) {
    widget->setMouseTracking(true);
    widget->setAttribute(Qt::WA_NoMousePropagation);
    widget->installEventFilter(this);
}

bool ControlEvents::eventFilter(QObject* object, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseMove:
            if (!static_cast<QWidget*>(object)->isEnabled()) {
                // It is as if the pointer were over what lies below; buttons would keep the move.
                event->ignore();
                return true;
            }
            Fire(control_, control_.MouseMove);
            return false;
        case QEvent::Show:
            Keys().Appeared(*static_cast<QWidget*>(object));
            return false;
        case QEvent::EnabledChange: {
            // A move that an enabled widget has no use for must not go on to its parent: that one
            // would report a pointer that is not over it.
            auto* const widget = static_cast<QWidget*>(object);
            widget->setAttribute(Qt::WA_NoMousePropagation, widget->isEnabled());
            Keys().Appeared(*widget);
            return false;
        }
        case QEvent::FocusIn:
            // The same control again means that only the window was away.
            if (control_.OwnerForm().NativePart().Window.FocusMovedTo(control_)) {
                Fire(control_, control_.GotFocus);
            }
            return false;
        case QEvent::FocusOut:
            pressedHere_.Forget();
            return false;
        case QEvent::KeyPress: {
            // What a control on this one has no use for comes here too.
            const auto* const widget = static_cast<QWidget*>(object);
            if (widget->window()->focusWidget() == widget) {
                pressedHere_.Press(*static_cast<QKeyEvent*>(event));
            }
            return false;
        }
        case QEvent::KeyRelease: {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (pressedHere_.Release(*key)) {
                Fire(control_, control_.KeyUp, KeyCodeOf(*key), ShiftBitsOf(*key));
            }
            // Here, as not every widget passes on the releases of keys that it had no use for.
            return !control_.OwnerForm().Loaded() ||
                   control_.OwnerForm().NativePart().Window.Buttons().Release(*key);
        }
        default:
            return QObject::eventFilter(object, event);
    }
}

KeyRoad& ControlEvents::Keys() const {
    return control_.OwnerForm().NativePart().Window.Keys();
}

}  // namespace trameli
