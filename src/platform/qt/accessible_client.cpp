#include "platform/qt/accessible_client.h"

#include <QCoreApplication>
#include <QWidget>

namespace trameli {

QAccessible::State AccessibleMessage::state() const {
    QAccessible::State state;  // not focusable: the keyboard cannot come here
    state.focused = Current;
    state.active = Current;
    state.invisible = !Current;
    return state;
}

AccessibleClient::~AccessibleClient() {
    for (AccessibleMessage* const message : messages_) {
        if (message) {
            QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(message));
        }
    }
}

int AccessibleClient::childCount() const {
    return AccessibleContainer::childCount() +
           (messages_[0] ? static_cast<int>(messages_.size()) : 0);
}

QAccessibleInterface* AccessibleClient::child(int index) const {
    const int message = index - AccessibleContainer::childCount();
    return message >= 0 && index < childCount() ? messages_.at(static_cast<std::size_t>(message))
                                                : AccessibleContainer::child(index);
}

int AccessibleClient::indexOfChild(const QAccessibleInterface* child) const {
    for (std::size_t i = 0; i < messages_.size(); ++i) {
        if (messages_.at(i) == child) {
            return AccessibleContainer::childCount() + static_cast<int>(i);
        }
    }
    return AccessibleContainer::indexOfChild(child);
}

QString AccessibleClient::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? QCoreApplication::applicationName()
                                     : AccessibleContainer::text(kind);
}

void AccessibleClient::Announce(const QString& text) {
    const auto tell = [](AccessibleMessage* message, QAccessible::Event what) {
        QAccessibleEvent event(message, what);
        QAccessible::updateAccessibility(&event);
    };
    if (!messages_[0]) {
        for (AccessibleMessage*& message : messages_) {
            message = new AccessibleMessage(widget());
            QAccessible::registerAccessibleInterface(message);
        }
        for (AccessibleMessage* const message : messages_) {
            tell(message, QAccessible::ObjectCreated);
        }
    }
    messages_.at(current_)->Current = false;
    current_ = 1 - current_;
    AccessibleMessage* const message = messages_.at(current_);
    message->Text = text;
    message->Current = true;
    tell(message, QAccessible::NameChanged);
    tell(message, QAccessible::Focus);
}

}  // namespace trameli
