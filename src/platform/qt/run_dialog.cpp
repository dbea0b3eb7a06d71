#include "platform/qt/run_dialog.h"

#include <QAccessible>
#include <QApplication>
#include <QPointer>

namespace trameli {

namespace {

/// Parts that the toolkit has no name for, rows of buttons for instance, are called as the dialog.
void NameParts(const QDialog& dialog) {
    for (QWidget* const part : dialog.findChildren<QWidget*>()) {
        const QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(part);
        if (told && told->text(QAccessible::Name).trimmed().isEmpty()) {
            part->setAccessibleName(dialog.windowTitle());
        }
    }
}

}  // namespace

void RunDialog(QDialog& dialog) {
    // A dialog takes the keyboard by itself. Where nobody manages windows, nobody else gives it
    // back.
    const QPointer<QWidget> before = QApplication::activeWindow();
    NameParts(dialog);
    dialog.exec();
    if (before && before->isVisible()) {
        before->activateWindow();
    }
}

}  // namespace trameli
