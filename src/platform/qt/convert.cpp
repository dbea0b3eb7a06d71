#include "platform/qt/convert.h"

#include <QStringDecoder>
#include <QStringList>
#include <algorithm>

#include "base/rounding.h"

namespace trameli {

namespace {

/// What takes the place of a family that is not installed.
struct Substitute {
    const char* Family;
    const char* StandIn;
};
constexpr Substitute Substitutes[] = {
    {"Comic Sans MS", "Comic Neue"},
    {"Arial", "Liberation Sans"},
};

constexpr double TwipsPerPoint = 20;

}  // namespace

bool IsUtf8(std::string_view text) {
    // Without the flag it would wait for the rest of a character that is cut off.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    [[maybe_unused]] const QString decoded =
        decoder.decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    return !decoder.hasError();
}

QFont ToQt(const Font& font, double twipsPerPixel) {
    QStringList families{ToQt(font.Family)};
    for (const Substitute& substitute : Substitutes) {
        if (font.Family == substitute.Family) {
            families << QString::fromLatin1(substitute.StandIn);
        }
    }
    QFont result;
    result.setFamilies(families);
    result.setPixelSize(std::max(1, Nearest(font.Points * TwipsPerPoint / twipsPerPixel)));
    result.setBold(font.Bold);
    return result;
}

}  // namespace trameli
