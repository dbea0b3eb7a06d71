#include "platform/qt/dialog_care.h"

#include <QApplication>
#include <QDialog>

namespace trameli {

DialogCare::DialogCare(const Forms& forms) : care_(forms) {
    qApp->installEventFilter(this);
}

bool DialogCare::eventFilter(QObject* object, QEvent* event) {
    switch (event->type()) {
        case QEvent::Show:
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            break;
        default:
            return false;
    }
    const auto* const widget = qobject_cast<QWidget*>(object);
    const auto* const dialog = widget ? qobject_cast<QDialog*>(widget->window()) : nullptr;
    if (!dialog) {
        return false;
    }
    switch (event->type()) {
        case QEvent::Show:
            care_.Appeared(*widget);
            return false;
        case QEvent::KeyRelease:
            return care_.WentUp(static_cast<QKeyEvent&>(*event));
        default:
            return care_.Refuses(static_cast<QKeyEvent&>(*event), dialog);
    }
}

}  // namespace trameli
