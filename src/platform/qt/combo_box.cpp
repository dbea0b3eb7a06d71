#include "platform/combo_box.h"

#include <QComboBox>

#include "platform/property_access.h"
#include "platform/qt/convert.h"
#include "platform/qt/native.h"

namespace trameli {

ComboBox::ComboBox(Container& container, ControlName name, const Bounds& bounds)
    : InteractiveControl(container, std::move(name), bounds, MakeNative<QComboBox>(container)) {
    auto& widget = WidgetOf<QComboBox>(*this);
    widget.setFocusPolicy(Qt::StrongFocus);
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Button, Qt::white);
    widget.setPalette(palette);
    QObject::connect(&widget, &QComboBox::activated, [this] { Fire(*this, Click); });
}

int ComboBox::ListCount() const {
    return WidgetOf<QComboBox>(*this).count();
}

std::string ComboBox::List(int index) const {
    return FromQt(WidgetOf<QComboBox>(*this).itemText(index));
}

void ComboBox::List(int index, const std::string& text) {
    WidgetOf<QComboBox>(*this).setItemText(index, ToQt(text));
}

void ComboBox::AddItem(const std::string& text) {
    auto& widget = WidgetOf<QComboBox>(*this);
    // The first entry of a list would be chosen by itself.
    const int chosen = widget.currentIndex();
    widget.addItem(ToQt(text));
    widget.setCurrentIndex(chosen);
}

void ComboBox::Clear() {
    WidgetOf<QComboBox>(*this).clear();
}

int ComboBox::ListIndex() const {
    return WidgetOf<QComboBox>(*this).currentIndex();
}

void ComboBox::ListIndex(int index) {
    auto& widget = WidgetOf<QComboBox>(*this);
    if (index < -1 || index >= widget.count() || index == widget.currentIndex()) {
        return;
    }
    widget.setCurrentIndex(index);
    Fire(*this, Click);
}

void ComboBox::Properties(PropertyAccess& access) {
    access.At("ListIndex", *this, &ComboBox::ListIndex, &ComboBox::ListIndex);
    access.At("Text", *this, &ComboBox::Text);
    InteractiveControl::Properties(access);
}

}  // namespace trameli
