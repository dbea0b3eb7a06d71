#include "platform/qt/accessibility.h"

#include <QAccessible>
#include <QLabel>
#include <QMenu>
#include <algorithm>

namespace trameli {

namespace {

bool IsDecoration(const QWidget& widget) {
    if (const auto* const own = dynamic_cast<const SelfDescribing*>(&widget)) {
        return own->IsDecoration();
    }
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    return label && label->text().trimmed().isEmpty();
}

}  // namespace

void LetWidgetsDescribeThemselves() {
    QAccessible::installFactory([](const QString&, QObject* object) {
        auto* const widget = dynamic_cast<SelfDescribing*>(object);
        return widget ? widget->Describe() : nullptr;
    });
}

QString Spoken(QString caption) {
    return caption.remove(QLatin1Char('&'));
}

int AccessibleContainer::childCount() const {
    return static_cast<int>(Told().size());
}

QAccessibleInterface* AccessibleContainer::child(int index) const {
    const auto told = Told();
    return index >= 0 && index < static_cast<int>(told.size())
               ? QAccessible::queryAccessibleInterface(told[static_cast<std::size_t>(index)])
               : nullptr;
}

int AccessibleContainer::indexOfChild(const QAccessibleInterface* child) const {
    const auto told = Told();
    const auto found = std::find(told.begin(), told.end(), child->object());
    return found == told.end() ? -1 : static_cast<int>(found - told.begin());
}

std::vector<QWidget*> AccessibleContainer::Told() const {
    std::vector<QWidget*> told;
    for (QObject* const object : widget()->children()) {
        auto* const part = qobject_cast<QWidget*>(object);
        if (part && !part->isWindow() && !IsDecoration(*part)) {
            told.push_back(part);
        }
    }
    return told;
}

}  // namespace trameli
