#include "platform/desktop.h"

#include <fontconfig/fontconfig.h>

#include <QApplication>
#include <QFontMetrics>
#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QSvgRenderer>
#include <QTimer>
#include <chrono>
#include <future>
#include <thread>
#include <utility>

#include "platform/qt/convert.h"
#include "platform/qt/desktop_clock.h"
#include "platform/qt/desktop_dialogs.h"
#include "platform/qt/desktop_documents.h"
#include "platform/qt/desktop_printers.h"
#include "platform/qt/desktop_screen.h"
#include "platform/qt/environment.h"
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

/// What the first window is written in, and its picture.
const Font FirstFont{"Comic Sans MS", 24, true};
constexpr const char* FirstPictureFile = ":/avvio/labirinto.svg";
constexpr double TwipsPerPixel = 15;

/// Finds out which fonts the system has, and which of them stand in for letters that another one
/// lacks. The toolkit does so when it needs the first font, and it takes half as long as starting
/// the toolkit: so it goes beside that, in a thread, and beside the making of the first window. Who
/// needs a font meanwhile waits at the toolkit's lock. Then there is time left to draw a picture to
/// nowhere, by which the code that does it is loaded and linked before it is needed.
void PrepareFirstPaint(const std::future<void>& toolkitStarted) {
    FcInit();
    toolkitStarted.wait();
    QFontMetrics(ToQt(FirstFont, TwipsPerPixel)).height();
    QImage nowhere(64, 64, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&nowhere);
    QSvgRenderer(QString::fromLatin1(FirstPictureFile)).render(&painter);
}

}  // namespace

struct Desktop::Native {
    Native(int& argc, char** argv)
        : Application(argc, argv),
          Files(UserDataFolder(), FindProgramFolder(ThisExecutable())),
          Lock(UserDataFolder()),
          Sounds(Files),
          Documents(Files) {}

    QApplication Application;
    DesktopClock Clock;
    DesktopScreen Screen;
    LocalFileSystem Files;
    DesktopDialogs Dialogs;
    FolderLock Lock;
    MixerSounds Sounds;
    DesktopDocuments Documents;
    DesktopPrinters Printers;
    std::jthread Beside;  // over before the toolkit is
};

Desktop::Desktop(int& argc, char** argv) {
    OutliveFileSizeLimit();
    std::promise<void> toolkitStarted;
    std::jthread beside(PrepareFirstPaint, toolkitStarted.get_future());
    QApplication::setApplicationName(QStringLiteral("trameli"));
    QApplication::setDesktopFileName(QStringLiteral("trameli"));
    {
        const QuietStart quiet;
        native_ = std::make_unique<Native>(argc, argv);
    }
    PrepareToolkit();
    toolkitStarted.set_value();
    native_->Beside = std::move(beside);
    // Drawing the icon and having it framed would only hold up the first window.
    QTimer::singleShot(FirstPicture, &native_->Application,
                       [] { QApplication::setWindowIcon(WindowIcon()); });
}

Desktop::~Desktop() = default;

Services Desktop::Services() const {
    return {native_->Clock,     native_->Screen,
            native_->Files,     native_->Dialogs,
            native_->Lock,      native_->Sounds,
            native_->Documents, native_->Printers,
            LocaleOfMessages(), FromQt(QLocale::system().decimalPoint())};
}

}  // namespace trameli
