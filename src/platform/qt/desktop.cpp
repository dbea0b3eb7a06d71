#include "platform/desktop.h"

#include <fontconfig/fontconfig.h>

#include <QApplication>
#include <QEventLoop>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <chrono>
#include <thread>

#include "platform/qt/convert.h"
#include "platform/qt/desktop_services.h"
#include "platform/qt/folder_lock.h"
#include "platform/qt/graphics.h"
#include "platform/qt/local_file_system.h"
#include "platform/qt/mixer_sounds.h"
#include "platform/qt/style.h"

/// The pictures lie in a static library, where nothing else makes the linker keep them. Outside
/// every namespace, as the toolkit wants it.
static void LoadPictures() {
    Q_INIT_RESOURCE(assets);
}

namespace trameli {

namespace {

/// By then the first window is on the screen of most machines.
constexpr std::chrono::milliseconds FirstPicture{100};

class DesktopTicker final : public Clock::Ticker {
public:
    DesktopTicker(int milliseconds, std::function<void()> tick) : tick_(std::move(tick)) {
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
            // The toolkit would hold on to its rhythm after a late tick, and bring the next one
            // almost at once.
            timer_.start();
            // The routine may stop this very timer.
            const auto routine = tick_;
            routine();
        });
        timer_.start(milliseconds);
    }

private:
    std::function<void()> tick_;
    QTimer timer_;
};

}  // namespace

double DesktopClock::Now() const {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

std::unique_ptr<Clock::Ticker> DesktopClock::Every(int milliseconds, std::function<void()> tick) {
    return std::make_unique<DesktopTicker>(milliseconds, std::move(tick));
}

void DesktopClock::Wait(double seconds, const std::function<bool()>& over) {
    const double end = Now() + seconds;
    QTimer alarm;
    alarm.setSingleShot(true);
    alarm.setTimerType(Qt::PreciseTimer);
    for (double left = seconds; left > 0 && !over(); left = end - Now()) {
        alarm.start(static_cast<int>(left * 1000) + 1);
        QEventLoop().processEvents(QEventLoop::WaitForMoreEvents);
    }
}

PixelSize DesktopScreen::Size() const {
    const QSize size = QGuiApplication::primaryScreen()->size();
    return {size.width(), size.height()};
}

PixelSize DesktopScreen::Available() const {
    const QSize size = QGuiApplication::primaryScreen()->availableGeometry().size();
    return {size.width(), size.height()};
}

void DesktopDialogs::Critical(const std::string& text, const std::string& title) {
    QMessageBox box(QMessageBox::Critical, ToQt(title), ToQt(text), QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    // The box takes the keyboard by itself. Where nobody manages windows, nobody else gives it
    // back.
    const QPointer<QWidget> before = QApplication::activeWindow();
    box.exec();
    if (before && before->isVisible()) {
        before->activateWindow();
    }
}

void PrepareToolkit() {
    // The forms bring their own colours; with a desktop's dark or coloured theme the texts in
    // between could not be read.
    QApplication::setStyle(new SharedPicturesStyle);  // the application owns it
    QPalette palette(QColor(240, 240, 240), QColor(240, 240, 240));
    palette.setColor(QPalette::Base, Qt::white);
    QApplication::setPalette(palette);
    // A program ends with its forms, not with the toolkit's windows.
    QApplication::setQuitOnLastWindowClosed(false);
    LoadPictures();
    DescribeGraphics();
}

struct Desktop::Services {
    Services(int& argc, char** argv)
        : Application(argc, argv),
          Files(UserDataFolder(), FindProgramFolder(ThisExecutable())),
          Lock(UserDataFolder()),
          Sounds(Files) {}

    QApplication Application;
    DesktopClock Clock;
    DesktopScreen Screen;
    LocalFileSystem Files;
    DesktopDialogs Dialogs;
    FolderLock Lock;
    MixerSounds Sounds;
};

Desktop::Desktop(int& argc, char** argv) {
    // The toolkit asks for the system's fonts when it needs the first one. Reading which there are
    // takes as long as starting the toolkit, which mostly waits for the screen, so it goes beside.
    const std::jthread fonts([] { FcInit(); });
    QApplication::setApplicationName(QStringLiteral("trameli"));
    QApplication::setDesktopFileName(QStringLiteral("trameli"));
    services_ = std::make_unique<Services>(argc, argv);
    PrepareToolkit();
    // Drawing the icon and having it framed would only hold up the first window.
    QTimer::singleShot(FirstPicture, &services_->Application,
                       [] { QApplication::setWindowIcon(WindowIcon()); });
}

Desktop::~Desktop() = default;

Clock& Desktop::Clock() const {
    return services_->Clock;
}

Screen& Desktop::Screen() const {
    return services_->Screen;
}

FileSystem& Desktop::FileSystem() const {
    return services_->Files;
}

Dialogs& Desktop::Dialogs() const {
    return services_->Dialogs;
}

Instances& Desktop::Instances() const {
    return services_->Lock;
}

Sounds& Desktop::Sounds() const {
    return services_->Sounds;
}

}  // namespace trameli
