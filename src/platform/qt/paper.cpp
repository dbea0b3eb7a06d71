#include "platform/qt/paper.h"

#include <QLocale>
#include <QStringList>
#include <algorithm>

#include "platform/qt/convert.h"

namespace trameli {

namespace {

/// Those that do not follow ISO 216.
constexpr QLocale::Territory LetterCountries[] = {
    QLocale::UnitedStates, QLocale::Canada,    QLocale::Mexico,    QLocale::Belize,
    QLocale::Chile,        QLocale::Colombia,  QLocale::CostaRica, QLocale::ElSalvador,
    QLocale::Guatemala,    QLocale::Nicaragua, QLocale::Panama,    QLocale::Philippines,
    QLocale::PuertoRico,   QLocale::Venezuela,
};

QString Measure(int hundredths) {
    return QString::number(qRound(hundredths / 100.0));
}

}  // namespace

std::string NameOf(const Paper& paper) {
    // Between the key's first and last underscore stands the name; before it who gave it, behind
    // it the size.
    QStringList words = ToQt(paper.Key).section(u'_', 1, -2).split(u'-', Qt::SkipEmptyParts);
    for (QString& word : words) {
        word[0] = word[0].toUpper();
    }
    const QString name = words.isEmpty() ? ToQt(paper.Key) : words.join(u' ');
    return FromQt(
        QStringLiteral("%1 (%2 x %3 mm)").arg(name, Measure(paper.Width), Measure(paper.Height)));
}

std::vector<Paper> OfficePapers(bool withLetter) {
    std::vector<Paper> papers = {
        {"iso_a4_210x297mm", 21000, 29700},  {"na_letter_8.5x11in", 21590, 27940},
        {"iso_a3_297x420mm", 29700, 42000},  {"iso_a5_148x210mm", 14800, 21000},
        {"na_legal_8.5x14in", 21590, 35560},
    };
    if (withLetter) {
        std::swap(papers[0], papers[1]);
    }
    return papers;
}

bool UsesLetter(const std::string& locale) {
    return std::count(std::begin(LetterCountries), std::end(LetterCountries),
                      QLocale(ToQt(locale)).territory()) > 0;
}

}  // namespace trameli
