#include "platform/qt/control_events.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

#include "platform/qt/form_window.h"
#include "platform/qt/native.h"

namespace trameli {

ControlEvents::ControlEvents(VisualControl& control, QWidget* widget)
    : QObject(widget), control_(control) {
    widget->setMouseTracking(true);
    widget->installEventFilter(this);
}

bool ControlEvents::eventFilter(QObject* object, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseMove:
            if (!static_cast<QWidget*>(object)->isEnabled()) {
                return false;  // it is as if the pointer were over what lies below
            }
            Fire(control_, control_.MouseMove);
            // A move that the widget has no use for would go on to its parent, and that one would
            // report a pointer that is not over it.
            return static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton;
        case QEvent::FocusIn:
            // The same control again means that only the window was away.
            if (control_.OwnerForm().NativePart().Window.FocusMovedTo(control_)) {
                Fire(control_, control_.GotFocus);
            }
            return false;
        case QEvent::KeyRelease: {
            const auto* key = static_cast<QKeyEvent*>(event);
            Fire(control_, control_.KeyUp, KeyCodeOf(*key), ShiftBitsOf(*key));
            return !control_.OwnerForm().Loaded();
        }
        default:
            return QObject::eventFilter(object, event);
    }
}

}  // namespace trameli
