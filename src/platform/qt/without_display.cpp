#include "platform/without_display.h"

#include <QGuiApplication>

#include "platform/qt/environment.h"
#include "platform/qt/local_file_system.h"
#include "platform/qt/toolkit.h"
#include "platform/qt/whole_file.h"

namespace trameli {

struct WithoutDisplay::Native {
    Native(int& argc, char** argv)
        : Application(argc, argv), Files(UserDataFolder(), FindProgramFolder(ThisExecutable())) {}

    QGuiApplication Application;
    LocalFileSystem Files;
};

WithoutDisplay::WithoutDisplay(int& argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // It is about desktops, which nobody at this terminal has to have.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QGuiApplication::setApplicationName(QStringLiteral("trameli"));
    native_ = std::make_unique<Native>(argc, argv);
    LoadPictures();
}

WithoutDisplay::~WithoutDisplay() = default;

FileSystem& WithoutDisplay::Files() const {
    return native_->Files;
}

std::string WithoutDisplay::Locale() const {
    return LocaleOfMessages();
}

bool WithoutDisplay::Write(const std::string& path, const std::string& bytes) const {
    return ReplaceWhole(path, bytes);
}

}  // namespace trameli
