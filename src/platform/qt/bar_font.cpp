#include "platform/qt/bar_font.h"

#include <QApplication>
#include <QFontInfo>
#include <algorithm>

#include "platform/qt/convert.h"

namespace trameli {

QFont BarFont(double twipsPerPixel, const char* widgetClass) {
    QFont font = ToQt(Font{"Arial", 9, false}, twipsPerPixel);
    // The size alone: letters of other shapes beside those of the forms would look odd.
    const int desktops = QFontInfo(QApplication::font(widgetClass)).pixelSize();
    font.setPixelSize(std::max(font.pixelSize(), desktops));
    return font;
}

}  // namespace trameli
