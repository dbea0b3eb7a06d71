#include "platform/qt/key_repeats.h"

#include <xcb/xcb.h>

#include <QCoreApplication>
#include <QMetaObject>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "platform/qt/x11_server.h"

namespace trameli {

namespace {

std::unique_ptr<QKeyEvent> Copy(const QKeyEvent& event, bool autoRepeat) {
    auto copy = std::make_unique<QKeyEvent>(event.type(), event.key(), event.modifiers(),
                                            event.nativeScanCode(), event.nativeVirtualKey(),
                                            event.nativeModifiers(), event.text(), autoRepeat,
                                            static_cast<quint16>(event.count()), event.device());
    copy->setTimestamp(event.timestamp());
    return copy;
}

/// Whether the server made both up.
bool ArePair(const QKeyEvent& release, const QKeyEvent& press) {
    return release.type() == QEvent::KeyRelease && press.type() == QEvent::KeyPress &&
           release.nativeScanCode() == press.nativeScanCode() &&
           release.timestamp() == press.timestamp();
}

}  // namespace

KeyRepeats::KeyRepeats() {
    if (X11Server()) {
        qApp->installNativeEventFilter(this);
    }
}

KeyRepeats::~KeyRepeats() = default;

bool KeyRepeats::Withholds(QWindow& window, const QKeyEvent& event) {
    if (&event == passing_ || !X11Server()) {
        return false;
    }
    window_ = &window;
    const bool release = event.type() == QEvent::KeyRelease && !event.isAutoRepeat();
    if (waiting_.empty() && !release) {
        return false;
    }
    if (!waiting_.empty() && ArePair(*waiting_.back().Event, event)) {
        waiting_.back().Event = Copy(event, true);
        return true;
    }
    waiting_.push_back({Copy(event, event.isAutoRepeat()), release});
    if (release) {
        AskServer(window);
    }
    return true;
}

/// Sends a message to our own window, which comes back behind everything that the server has sent
/// up to then.
void KeyRepeats::AskServer(const QWindow& window) {
    xcb_connection_t* const server = X11Server();
    if (question_ == XCB_ATOM_NONE) {
        constexpr std::string_view name = "_TRAMELI_KEYS";
        xcb_intern_atom_reply_t* const reply = xcb_intern_atom_reply(
            server, xcb_intern_atom(server, 0, name.size(), name.data()), nullptr);
        if (reply) {
            question_ = reply->atom;
            std::free(reply);
        }
    }
    xcb_client_message_event_t question{};
    question.response_type = XCB_CLIENT_MESSAGE;
    question.format = 32;
    question.window = static_cast<xcb_window_t>(window.winId());
    question.type = question_;
    xcb_send_event(server, 0, question.window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&question));
    xcb_flush(server);
}

bool KeyRepeats::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/) {
    if (type != "xcb_generic_event_t" || question_ == XCB_ATOM_NONE) {
        return false;
    }
    constexpr int sentByProgram = 0x80;
    const auto& event = *static_cast<const xcb_client_message_event_t*>(message);
    if ((event.response_type & ~sentByProgram) != XCB_CLIENT_MESSAGE || event.type != question_ ||
        !window_ || event.window != window_->winId()) {
        return false;
    }
    // The toolkit has read the keys before this answer but not delivered them yet.
    QMetaObject::invokeMethod(
        &answers_, [this] { Answered(); }, Qt::QueuedConnection);
    return true;
}

void KeyRepeats::Answered() {
    for (Waiting& waiting : waiting_) {
        if (std::exchange(waiting.ForAnswer, false)) {
            break;
        }
    }
    // A key's routine can serve events, and more answers come meanwhile.
    while (!waiting_.empty() && !waiting_.front().ForAnswer) {
        const std::unique_ptr<QKeyEvent> event = std::move(waiting_.front().Event);
        waiting_.pop_front();
        passing_ = event.get();
        QCoreApplication::sendEvent(window_, event.get());
        passing_ = nullptr;
    }
}

}  // namespace trameli
