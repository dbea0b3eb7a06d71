// Makes one document that comes with the program:
//
//     make_documents PROGRAM_FOLDER LANGUAGE TEXT.md DOCUMENT.pdf
//
// LANGUAGE is the stem of a language file in the program folder, in which the windows of the
// pictures speak.
#include <QApplication>
#include <QFile>
#include <QHashSeed>
#include <QLoggingCategory>
#include <cstdio>
#include <exception>
#include <filesystem>

#include "pages.h"
#include "platform/qt/toolkit.h"
#include "shell/file_lingua.h"
#include "window_pictures.h"

namespace {

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error(path.toStdString() + " cannot be read");
    }
    return file.readAll();
}

void Make(const QString& program, const QString& language, const QString& text,
          const QString& document) {
    const trameli::FileLingua texts(
        BytesOf(program + "/lngtrameli/" + language + ".lng").toStdString());
    trameli::Facts facts;
    facts.Author = QStringLiteral("The Trameli authors");
    facts.Language = QString::fromStdString(texts.Valore("Language", "Locale"));

    const trameli::WindowPictures windows(program.toStdString(), language.toStdString());
    const QByteArray pdf = trameli::Pages(
        QString::fromUtf8(BytesOf(text)),
        [&](const std::string& name) {
            QImage picture = windows.Picture(name);
            if (picture.isNull()) {
                throw std::runtime_error(text.toStdString() + ": no picture " + name);
            }
            return picture;
        },
        facts);
    QFile file(document);
    if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size() || !file.flush()) {
        throw std::runtime_error(document.toStdString() + " cannot be written");
    }
}

}  // namespace

int main(int argc, char** argv) {
    QHashSeed::setDeterministicGlobalSeed();  // or the same text gives a new file each time
    // Twice as fine as on a screen, since paper is finer.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");
    qputenv("LC_ALL", "C.UTF-8");
    // What a screen without a desktop cannot do.
    QLoggingCategory::defaultCategory()->setEnabled(QtWarningMsg, false);
    QApplication application(argc, argv);
    trameli::PrepareToolkit();
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 5) {
        std::fputs("make_documents PROGRAM_FOLDER LANGUAGE TEXT.md DOCUMENT.pdf\n", stderr);
        return 2;
    }
    try {
        Make(arguments[1], arguments[2], arguments[3], arguments[4]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
