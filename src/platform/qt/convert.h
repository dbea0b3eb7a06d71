// Between the layer's plain values and the toolkit's.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <string>
#include <string_view>

#include "platform/colour.h"
#include "platform/font.h"

namespace trameli {

/// UTF-8 to the toolkit's text and back; bytes that are no UTF-8 become replacement characters.
inline QString ToQt(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) {
    return text.toStdString();
}

/// True for text that comes back unchanged from the toolkit.
bool IsUtf8(std::string_view text);

inline QColor ToQt(Colour colour) {
    return QColor(RedOf(colour), GreenOf(colour), BlueOf(colour));
}

/// A font's size follows the twips, so that a text keeps its proportion to its control.
QFont ToQt(const Font& font, double twipsPerPixel);

}  // namespace trameli
