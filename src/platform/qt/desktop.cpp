#include "platform/desktop.h"

#include <QApplication>
#include <QLocale>
#include <QTimer>
#include <chrono>
#include <utility>

#include "platform/qt/convert.h"
#include "platform/qt/desktop_clock.h"
#include "platform/qt/desktop_dialogs.h"
#include "platform/qt/desktop_documents.h"
#include "platform/qt/desktop_printers.h"
#include "platform/qt/desktop_screen.h"
#include "platform/qt/environment.h"
#include "platform/qt/first_paint.h"
#include "platform/qt/folder_lock.h"
#include "platform/qt/graphics.h"
#include "platform/qt/local_file_system.h"
#include "platform/qt/mixer_sounds.h"
#include "platform/qt/quiet_start.h"
#include "platform/qt/toolkit.h"

namespace trameli {

namespace {

/// By then the first window is on the screen of most machines.
constexpr std::chrono::milliseconds FirstPicture{100};

/// The value of the toolkit's option for a kind of display. The last one counts.
const char* AskedPlatform(const std::vector<const char*>& words) {
    const char* platform = nullptr;
    for (std::size_t i = 1; i + 1 < words.size(); ++i) {
        if (words[i] == std::string_view("-platform")) {
            platform = words[i + 1];
        }
    }
    return platform;
}

}  // namespace

struct Desktop::Native {
    Native(int& argc, char** argv, std::unique_ptr<FirstPaint> paint)
        : Application(argc, argv),
          Files(UserDataFolder(), FindProgramFolder(ThisExecutable())),
          Lock(UserDataFolder()),
          Sounds(Files),
          Documents(Files),
          Paint(std::move(paint)) {}

    QApplication Application;
    DesktopClock Clock;
    DesktopScreen Screen;
    LocalFileSystem Files;
    DesktopDialogs Dialogs;
    FolderLock Lock;
    MixerSounds Sounds;
    DesktopDocuments Documents;
    DesktopPrinters Printers;
    std::unique_ptr<FirstPaint> Paint;  // over before the toolkit is
    std::function<void()> Farewell = [] {};
};

namespace {

/// The toolkit ends the process by itself where its display has gone; nothing is told or unwound.
/// What was made for a regular end is still there then.
template <typename Native>
void BidFarewell(int /*code*/, void* native) {
    const std::unique_ptr<std::weak_ptr<Native>> own(static_cast<std::weak_ptr<Native>*>(native));
    if (const auto left = own->lock()) {
        left->Farewell();
    }
}

}  // namespace

Desktop::Desktop(int& argc, char** argv, const FirstSight& firstSight) {
    OutliveFileSizeLimit();
    auto paint = std::make_unique<FirstPaint>(firstSight);
    QApplication::setApplicationName(QStringLiteral("trameli"));
    QApplication::setDesktopFileName(QStringLiteral("trameli"));
    {
        const QuietStart quiet(AskedPlatform({argv, argv + argc}));
        native_ = std::make_shared<Native>(argc, argv, std::move(paint));
    }
    PrepareToolkit();
    native_->Paint->ToolkitStarted();
    // Drawing the icon and having it framed would only hold up the first window.
    QTimer::singleShot(FirstPicture, &native_->Application,
                       [] { QApplication::setWindowIcon(WindowIcon()); });
}

Desktop::~Desktop() = default;

void Desktop::WhenDisplayIsLost(std::function<void()> action) {
    native_->Farewell = std::move(action);
    on_exit(BidFarewell<Native>, new std::weak_ptr<Native>(native_));
}

Services Desktop::Services() const {
    return {native_->Clock,     native_->Screen,
            native_->Files,     native_->Dialogs,
            native_->Lock,      native_->Sounds,
            native_->Documents, native_->Printers,
            LocaleOfMessages(), FromQt(QLocale::system().decimalPoint())};
}

}  // namespace trameli
