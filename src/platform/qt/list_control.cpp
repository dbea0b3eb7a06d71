#include "platform/list_control.h"

#include <QStandardItemModel>

#include "platform/property_access.h"
#include "platform/qt/convert.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

/// Where the widget of a list keeps its entries.
QStandardItemModel& EntriesOf(const ListControl& list) {
    return *list.NativePart().Widget->findChild<QStandardItemModel*>(QString(),
                                                                     Qt::FindDirectChildrenOnly);
}

}  // namespace

int ListControl::ListCount() const {
    return EntriesOf(*this).rowCount();
}

std::string ListControl::List(int index) const {
    const QStandardItem* const entry = EntriesOf(*this).item(index);
    return entry ? FromQt(entry->text()) : std::string();
}

void ListControl::List(int index, const std::string& text) {
    if (QStandardItem* const entry = EntriesOf(*this).item(index)) {
        entry->setText(ToQt(text));
    }
}

void ListControl::AddItem(const std::string& text) {
    // The first entry of a list would be chosen by itself.
    const int chosen = Chosen();
    EntriesOf(*this).appendRow(new QStandardItem(ToQt(text)));
    Choose(chosen);
}

void ListControl::Clear() {
    Choose(-1);
    EntriesOf(*this).clear();
}

void ListControl::ListIndex(int index) {
    if (index < -1 || index >= ListCount() || index == Chosen()) {
        return;
    }
    Choose(index);
    Fire(*this, Click);
}

void ListControl::Properties(PropertyAccess& access) {
    access.At("ListCount", *this, &ListControl::ListCount);
    access.At("ListIndex", *this, &ListControl::ListIndex, &ListControl::ListIndex);
    access.At("Text", *this, &ListControl::Text);
    InteractiveControl::Properties(access);
}

}  // namespace trameli
