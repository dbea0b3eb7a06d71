// The client area of a form as assistive technology sees it, with what is announced there.
#pragma once

#include <array>

#include "platform/qt/accessibility.h"

namespace trameli {

/// A text that is read out because it gets the focus of assistive technology. The toolkit has no
/// announcements before 6.8, and what screen readers make of a changed name or description depends
/// on their version and the toolkit's; all of them read out what gets the focus, and say nothing
/// more of a paragraph. The keyboard stays where it is.
class AccessibleMessage final : public AccessiblePart {
public:
    explicit AccessibleMessage(QWidget* client) : AccessiblePart(client, QAccessible::Paragraph) {}

    QString Text;
    bool Current = false;

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? Text : QString();
    }
    QAccessible::State state() const override;
};

/// Named as the program: screen readers pass over it when they tell where something lies.
class AccessibleClient final : public AccessibleContainer {
public:
    explicit AccessibleClient(QWidget* client)
        : AccessibleContainer(client, QAccessible::Grouping) {}
    ~AccessibleClient() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text kind) const override;

    void Announce(const QString& text);

private:
    // Two that take turns, since what has the focus already cannot get it.
    std::array<AccessibleMessage*, 2> messages_{};
    std::size_t current_ = 0;
};

}  // namespace trameli
