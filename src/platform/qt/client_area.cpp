#include "platform/qt/client_area.h"

#include <QPaintEvent>
#include <QPainter>

#include "platform/forms.h"
#include "platform/qt/accessible_client.h"
#include "platform/qt/convert.h"
#include "platform/qt/form_window.h"
#include "platform/qt/surface_native.h"

namespace trameli {

ClientArea::ClientArea(Form& form, QWidget* parent) : QWidget(parent), form_(form) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ClientArea::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    if (const auto& canvas = form_.NativePart().Canvas) {
        canvas->SurfaceNative().Paint(painter, event->rect());
    } else {
        painter.fillRect(event->rect(), ToQt(form_.BackColor()));
    }
}

void ClientArea::resizeEvent(QResizeEvent*) {
    Resized();
}

void ClientArea::Resized() {
    if (const auto& canvas = form_.NativePart().Canvas) {
        canvas->SurfaceNative().Resize(size(), devicePixelRatioF());
    }
    form_.Forms().Dispatch(form_, [this] { Form::Native::Resize(form_); });
}

void ClientArea::Announce(const QString& text) {
    // Later, or a control that gets the keyboard in the same routine would talk over it.
    QMetaObject::invokeMethod(
        this,
        [this, text] {
            static_cast<AccessibleClient*>(QAccessible::queryAccessibleInterface(this))
                ->Announce(text);
        },
        Qt::QueuedConnection);
}

QAccessibleInterface* ClientArea::Describe() {
    return new AccessibleClient(this);
}

void ClientArea::mouseMoveEvent(QMouseEvent*) {
    form_.Forms().Dispatch(form_, [this] { Form::Native::MouseMoved(form_); });
}

}  // namespace trameli
