// A row of tabs as assistive technology sees it.
#pragma once

#include <QTabBar>
#include <vector>

#include "platform/qt/accessibility.h"

namespace trameli {

class AccessibleTab;

/// The toolkit's own description does not say which tab is selected, and calls the row by it.
class AccessibleTabs final : public QAccessibleWidget {
public:
    explicit AccessibleTabs(QTabBar* tabs);
    ~AccessibleTabs() override;

    int childCount() const override { return Bar().count(); }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* focusChild() const override;

private:
    QTabBar& Bar() const { return *static_cast<QTabBar*>(widget()); }

    mutable std::vector<AccessibleTab*> tabs_;  // those that were asked for, and all before them
};

}  // namespace trameli
