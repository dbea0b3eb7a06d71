#include "platform/qt/accessibility.h"

#include <QAccessible>

namespace trameli {

void LetWidgetsDescribeThemselves() {
    QAccessible::installFactory([](const QString&, QObject* object) {
        auto* const widget = dynamic_cast<SelfDescribing*>(object);
        return widget ? widget->Describe() : nullptr;
    });
}

}  // namespace trameli
