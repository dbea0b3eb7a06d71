#include "platform/qt/x11_server.h"

#include <QGuiApplication>

namespace trameli {

xcb_connection_t* X11Server() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

void MapAgain(const QWindow& window) {
    if (xcb_connection_t* const server = X11Server()) {
        xcb_map_window(server, static_cast<xcb_window_t>(window.winId()));
        xcb_flush(server);
    }
}

}  // namespace trameli
