// What menus and status bars are written in.
#pragma once

#include <QFont>

namespace trameli {

/// The font of the bars of a form: it grows with the screen as the forms' own do, and is as large
/// at least as the desktop's font for widgets of that class of the toolkit.
QFont BarFont(double twipsPerPixel, const char* widgetClass);

}  // namespace trameli
