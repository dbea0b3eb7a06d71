#include "platform/qt/toolkit.h"

#include <QApplication>
#include <QPalette>

#include "platform/qt/accessibility.h"
#include "platform/qt/style.h"

/// The pictures lie in a static library, where nothing else makes the linker keep them. Outside
/// every namespace, as the toolkit wants it.
static void LoadResources() {
    Q_INIT_RESOURCE(assets);
}

namespace trameli {

void LoadPictures() {
    LoadResources();
}

void PrepareToolkit() {
    // The forms bring their own colours; with a desktop's dark or coloured theme the texts in
    // between could not be read.
    QApplication::setStyle(new SharedPicturesStyle);  // the application owns it
    QPalette palette(QColor(240, 240, 240), QColor(240, 240, 240));
    palette.setColor(QPalette::Base, Qt::white);
    QApplication::setPalette(palette);
    // A program ends with its forms, not with the toolkit's windows.
    QApplication::setQuitOnLastWindowClosed(false);
    LoadPictures();
    LetWidgetsDescribeThemselves();
}

}  // namespace trameli
