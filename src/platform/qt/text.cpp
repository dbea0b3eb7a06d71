#include "platform/text.h"

#include "platform/qt/convert.h"

namespace trameli {

namespace {

char32_t CapitalOf(char32_t letter) {
    const char32_t capital = QChar::toUpper(letter);
    const auto folded = [](char32_t one) { return QString::fromUcs4(&one, 1).toCaseFolded(); };
    return letter < 0x80 || folded(capital) == folded(letter) ? capital : letter;
}

}  // namespace

std::string Capitals(const std::string& text) {
    if (!IsUtf8(text)) {
        return text;
    }
    std::u32string letters = ToQt(text).toStdU32String();
    for (char32_t& letter : letters) {
        letter = CapitalOf(letter);
    }
    return FromQt(QString::fromStdU32String(letters));
}

}  // namespace trameli
