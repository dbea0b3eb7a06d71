#include "platform/qt/key_repeats.h"

#include <xcb/xcb.h>
#define explicit explicit_  // the name of a field there
#include <xcb/xkb.h>
#undef explicit

#include <QCoreApplication>
#include <cstdlib>
#include <utility>

#include "platform/qt/key_gate.h"
#include "platform/qt/x11_server.h"

namespace trameli {

KeyRepeats::KeyRepeats() {
    xcb_connection_t* const server = X11Server();
    if (!server) {
        return;
    }
    constexpr std::uint32_t pressesAlone = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    xcb_discard_reply(server, xcb_xkb_per_client_flags(server, XCB_XKB_ID_USE_CORE_KBD,
                                                       pressesAlone, pressesAlone, 0, 0, 0)
                                  .sequence);
    qApp->installEventFilter(this);
}

bool KeyRepeats::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Shortcut) {
        held_.insert(std::exchange(asked_, 0));  // its press goes no further
    }
    return object->isWindowType() && Takes(*object, *event);
}

/// What the window system sends to a window. True if it goes no further.
bool KeyRepeats::Takes(QObject& window, QEvent& event) {
    switch (event.type()) {
        case QEvent::ShortcutOverride:  // comes before each press
            asked_ = IdentityOf(static_cast<QKeyEvent&>(event));
            if (held_.contains(asked_)) {
                event.accept();  // so that no shortcut has it again
                return true;
            }
            return false;
        case QEvent::KeyPress: {
            const auto& press = static_cast<QKeyEvent&>(event);
            if (press.isAutoRepeat() || !held_.contains(IdentityOf(press))) {
                held_.insert(IdentityOf(press));
                return false;
            }
            Repeat(window, press);
            return true;
        }
        case QEvent::KeyRelease: {
            const auto& release = static_cast<QKeyEvent&>(event);
            if (!release.isAutoRepeat()) {
                held_.remove(IdentityOf(release));
            }
            return false;
        }
        case QEvent::FocusIn:
            ForgetReleased();
            return false;
        default:
            return false;
    }
}

/// Sends a press on as what it is.
void KeyRepeats::Repeat(QObject& window, const QKeyEvent& press) {
    QKeyEvent repetition(press.type(), press.key(), press.modifiers(), press.nativeScanCode(),
                         press.nativeVirtualKey(), press.nativeModifiers(), press.text(), true,
                         static_cast<quint16>(press.count()), press.device());
    repetition.setTimestamp(press.timestamp());
    QCoreApplication::sendEvent(&window, &repetition);
}

/// What was let go while another program had the keyboard.
void KeyRepeats::ForgetReleased() {
    xcb_connection_t* const server = X11Server();
    if (held_.isEmpty() || !server) {
        return;
    }
    xcb_query_keymap_reply_t* const down =
        xcb_query_keymap_reply(server, xcb_query_keymap(server), nullptr);
    held_.removeIf([down](quint64 key) {
        return !down || key / 8 >= sizeof down->keys || !(down->keys[key / 8] >> key % 8 & 1);
    });
    std::free(down);
}

}  // namespace trameli
