#include "platform/qt/accessible_tabs.h"

#include <algorithm>

namespace trameli {

class AccessibleTab final : public AccessiblePart, public QAccessibleActionInterface {
public:
    AccessibleTab(QTabBar* tabs, int index)
        : AccessiblePart(tabs, QAccessible::PageTab), tabs_(tabs), index_(index) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? Spoken(tabs_->tabText(index_)) : QString();
    }
    QRect rect() const override {
        return tabs_->tabRect(index_).translated(tabs_->mapToGlobal(QPoint(0, 0)));
    }
    QAccessible::State state() const override {
        QAccessible::State state = parent()->state();
        state.selectable = true;
        state.selected = index_ == tabs_->currentIndex();
        state.focused = state.selected && tabs_->hasFocus();
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction()) {
            tabs_->setCurrentIndex(index_);
        }
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QTabBar* tabs_;
    int index_;
};

AccessibleTabs::AccessibleTabs(QTabBar* tabs) : QAccessibleWidget(tabs, QAccessible::PageTabList) {}

AccessibleTabs::~AccessibleTabs() {
    for (AccessibleTab* const tab : tabs_) {
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(tab));
    }
}

QAccessibleInterface* AccessibleTabs::child(int index) const {
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    while (static_cast<int>(tabs_.size()) <= index) {
        tabs_.push_back(new AccessibleTab(&Bar(), static_cast<int>(tabs_.size())));
        QAccessible::registerAccessibleInterface(tabs_.back());
    }
    return tabs_[static_cast<std::size_t>(index)];
}

int AccessibleTabs::indexOfChild(const QAccessibleInterface* child) const {
    const auto found = std::find(tabs_.begin(), tabs_.end(), child);
    return found == tabs_.end() ? -1 : static_cast<int>(found - tabs_.begin());
}

QAccessibleInterface* AccessibleTabs::focusChild() const {
    return Bar().hasFocus() ? child(Bar().currentIndex()) : nullptr;
}

}  // namespace trameli
