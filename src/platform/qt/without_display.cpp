#include "platform/without_display.h"

#include <QGuiApplication>
#include <array>

#include "platform/qt/environment.h"
#include "platform/qt/local_file_system.h"
#include "platform/qt/toolkit.h"
#include "platform/qt/whole_file.h"

namespace trameli {

struct WithoutDisplay::Native {
    Native() : Files(UserDataFolder(), FindProgramFolder(ThisExecutable())) {}

    // The toolkit gets no word of the command line: one of them could ask for a display.
    std::string Name = "trameli";
    std::array<char*, 2> Words{Name.data(), nullptr};
    int Count = 1;
    QGuiApplication Application{Count, Words.data()};
    LocalFileSystem Files;
};

WithoutDisplay::WithoutDisplay() {
    OutliveFileSizeLimit();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // It is about desktops, which nobody at this terminal has to have.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QGuiApplication::setApplicationName(QStringLiteral("trameli"));
    native_ = std::make_unique<Native>();
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
    const auto place = EndOfLinks(path);
    return place && MayBeReplaced(*place) && ReplaceWhole(*place, bytes);
}

}  // namespace trameli
