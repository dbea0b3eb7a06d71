#include "platform/qt/pdf_printer.h"

#include <QDesktopServices>
#include <QDir>
#include <QStandardPaths>
#include <QUrl>
#include <cstdlib>

#include "platform/qt/convert.h"
#include "platform/qt/environment.h"
#include "platform/qt/whole_file.h"

namespace fs = std::filesystem;

namespace trameli {

namespace {

constexpr int PdfDotsPerInch = 600;

/// In bytes, and leaves room for time, number and ending.
constexpr qsizetype LongestTitle = 200;

/// So many documents of one name and second are kept apart.
constexpr int MostOfOneName = 1000;

/// What a document can be called on the file systems of all desktops.
QString FileTitle(const std::string& name) {
    QString title = ToQt(name);
    for (QChar& letter : title) {
        if (!letter.isPrint() && !letter.isSurrogate()) {
            letter = u' ';
        } else if (QStringLiteral("/\\:*?\"<>|").contains(letter)) {
            letter = u'-';
        }
    }
    // A dot in front would hide the file.
    while (title.startsWith(u'.')) {
        title.remove(0, 1);
    }
    while (title.toUtf8().size() > LongestTitle) {
        title.chop(title.back().isLowSurrogate() ? 2 : 1);
    }
    return title.simplified();
}

}  // namespace

PdfOptions PdfOptions::OfDesktop() {
    PdfOptions options;
    options.Folder = FromQt(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    options.Home = FromQt(QDir::homePath());
    options.Show = [](const fs::path& document) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(ToQt(document.string())));
    };
    options.Letter = UsesLetter(LocaleOfPaper());
    return options;
}

PrinterFacts PdfPrinter::Facts(const std::string& name) const {
    PrinterFacts facts;
    facts.Name = name;
    facts.Kind = PrinterFacts::Kinds::Files;
    facts.Papers = OfficePapers(options_.Letter);
    facts.DotsPerInchAcross = PdfDotsPerInch;
    facts.DotsPerInchDown = PdfDotsPerInch;
    facts.CanColour = true;
    facts.OwnColour = PrinterSettings::Coloured;
    return facts;
}

fs::path PdfPrinter::Folder() const {
    std::error_code error;
    fs::create_directories(options_.Folder, error);
    return fs::is_directory(options_.Folder, error) ? options_.Folder : options_.Home;
}

std::optional<fs::path> PdfPrinter::Print(const std::string& name, const QDateTime& time,
                                          const std::string& pdf) {
    const std::lock_guard lock(oneAtATime_);
    const fs::path folder = Folder();
    const QString title =
        (FileTitle(name) + time.toString(QStringLiteral(" yyyy-MM-dd HH.mm.ss"))).trimmed();
    for (int number = 1; number <= MostOfOneName; ++number) {
        const QString numbered =
            number == 1 ? title : QStringLiteral("%1 %2").arg(title).arg(number);
        const fs::path place = folder / FromQt(numbered + QStringLiteral(".pdf"));
        switch (CreateWhole(place, pdf)) {
            case Creation::Made:
                return place;
            case Creation::Taken:
                break;
            case Creation::Failed:
                return std::nullopt;
        }
    }
    return std::nullopt;
}

}  // namespace trameli
