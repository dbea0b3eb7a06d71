#include "platform/qt/desktop_screen.h"

#include <QGuiApplication>
#include <QScreen>

namespace trameli {

PixelSize DesktopScreen::Size() const {
    const QSize size = QGuiApplication::primaryScreen()->size();
    return {size.width(), size.height()};
}

PixelSize DesktopScreen::Available() const {
    const QSize size = QGuiApplication::primaryScreen()->availableGeometry().size();
    return {size.width(), size.height()};
}

}  // namespace trameli
