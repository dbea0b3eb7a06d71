#include "platform/qt/run_dialog.h"

#include <QApplication>
#include <QPointer>

namespace trameli {

void RunDialog(QDialog& dialog) {
    // A dialog takes the keyboard by itself. Where nobody manages windows, nobody else gives it
    // back.
    const QPointer<QWidget> before = QApplication::activeWindow();
    dialog.exec();
    if (before && before->isVisible()) {
        before->activateWindow();
    }
}

}  // namespace trameli
