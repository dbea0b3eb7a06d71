// Makes one document that comes with the program, or a picture of one of its windows:
//
//     make_documents PROGRAM_FOLDER LANGUAGE TEXT.md DOCUMENT.pdf
//     make_documents PROGRAM_FOLDER LANGUAGE WINDOW PICTURE.png
//
// LANGUAGE is the stem of a language file in the program folder, in which the windows speak.
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

constexpr const char* Usage =
    "make_documents PROGRAM_FOLDER LANGUAGE TEXT.md DOCUMENT.pdf\n"
    "make_documents PROGRAM_FOLDER LANGUAGE WINDOW PICTURE.png\n";

bool IsPicture(const QString& path) {
    return path.endsWith(".png");
}

QImage PictureOf(const trameli::WindowPictures& windows, const std::string& name) {
    QImage picture = windows.Picture(name);
    if (picture.isNull()) {
        throw std::runtime_error("no picture " + name);
    }
    return picture;
}

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error(path.toStdString() + " cannot be read");
    }
    return file.readAll();
}

void MakePicture(const QString& program, const QString& language, const QString& window,
                 const QString& path) {
    const trameli::WindowPictures windows(program.toStdString(), language.toStdString());
    // Flat colours: a table of them is a third of the size, and nobody sees the difference.
    const QImage picture = PictureOf(windows, window.toStdString())
                               .convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither);
    if (!picture.save(path)) {
        throw std::runtime_error(path.toStdString() + " cannot be written");
    }
}

void MakeDocument(const QString& program, const QString& language, const QString& text,
                  const QString& document) {
    const trameli::FileLingua texts(
        BytesOf(program + "/lngtrameli/" + language + ".lng").toStdString());
    trameli::Facts facts;
    facts.Author = QStringLiteral("The Trameli authors");
    facts.Language = QString::fromStdString(texts.Valore("Language", "Locale"));

    const trameli::WindowPictures windows(program.toStdString(), language.toStdString());
    const QByteArray pdf = trameli::Pages(
        QString::fromUtf8(BytesOf(text)),
        [&](const std::string& name) { return PictureOf(windows, name); }, facts);
    QFile file(document);
    if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size() || !file.flush()) {
        throw std::runtime_error(document.toStdString() + " cannot be written");
    }
}

}  // namespace

int main(int argc, char** argv) {
    QHashSeed::setDeterministicGlobalSeed();  // or the same text gives a new file each time
    const bool wrong = argc != 5;
    const bool picture = !wrong && IsPicture(QString::fromLocal8Bit(argv[4]));
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Twice as fine as on a screen, since paper is finer. A picture by itself is for screens.
    qputenv("QT_SCALE_FACTOR", picture ? "1" : "2");
    qputenv("LC_ALL", "C.UTF-8");
    // What a screen without a desktop cannot do.
    QLoggingCategory::defaultCategory()->setEnabled(QtWarningMsg, false);
    QApplication application(argc, argv);
    trameli::PrepareToolkit();
    const QStringList arguments = QApplication::arguments();
    if (wrong || arguments.size() != 5) {
        std::fputs(Usage, stderr);
        return 2;
    }
    try {
        (picture ? MakePicture : MakeDocument)(arguments[1], arguments[2], arguments[3],
                                               arguments[4]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
