#include "platform/qt/lost_windows.h"

#include <xcb/xcb.h>

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include "platform/qt/form_window.h"

namespace trameli {

LostWindows::LostWindows(Forms& forms) : forms_(forms) {
    qApp->installNativeEventFilter(this);
}

LostWindows::~LostWindows() = default;

bool LostWindows::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/) {
    constexpr int sentByProgram = 0x80;
    const auto& event = *static_cast<const xcb_destroy_notify_event_t*>(message);
    if (type != "xcb_generic_event_t" ||
        (event.response_type & ~sentByProgram) != XCB_DESTROY_NOTIFY) {
        return false;
    }
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        // Those that the program itself did away with are hidden or gone by now.
        if (widget->internalWinId() == event.window && widget->isVisible()) {
            // The toolkit is in the middle of reading.
            QMetaObject::invokeMethod(
                &calls_,
                [this, window = QPointer(widget)] {
                    if (window) {
                        Lost(*window);
                    }
                },
                Qt::QueuedConnection);
        }
    }
    return false;
}

void LostWindows::Lost(QWidget& window) {
    const bool isForm = dynamic_cast<FormWindow*>(&window) != nullptr;
    window.close();  // saves, as every closing does
    if (isForm) {
        forms_.End();
    }
}

}  // namespace trameli
