// What assistive technology is told of widgets of our own.
#pragma once

#include <QAccessibleWidget>
#include <QPointer>
#include <QWidget>
#include <vector>

namespace trameli {

/// A widget that says itself what it is, where the toolkit could not know.
class SelfDescribing {
public:
    virtual ~SelfDescribing() = default;

    /// A new description; the toolkit owns it.
    virtual QAccessibleInterface* Describe() = 0;
    /// Whether it only decorates what it lies on, so that there is nothing to tell of it.
    virtual bool IsDecoration() const { return false; }
};

/// Makes assistive technology see what widgets say of themselves; called once at the start of the
/// process.
void LetWidgetsDescribeThemselves();

/// A caption as it is read out.
QString Spoken(QString caption);

/// Something that widgets lie on, without those that only decorate it and without empty labels.
class AccessibleContainer : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    std::vector<QWidget*> Told() const;
};

/// A part of a widget that is no widget itself and holds nothing.
class AccessiblePart : public QAccessibleInterface {
public:
    AccessiblePart(QWidget* whole, QAccessible::Role role) : whole_(whole), role_(role) {}

    bool isValid() const override { return whole_; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(whole_.data());
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return parent()->rect(); }
    QAccessible::Role role() const override { return role_; }

private:
    QPointer<QWidget> whole_;
    QAccessible::Role role_;
};

}  // namespace trameli
