// Starts one program, the game or an empty window, and prints what its first complete window cost:
// milliseconds from PROBE_START, kilobytes of memory then, and the clock ticks of
// processor time in the idle seconds after it.
//
//     startup_probe game|empty [idle seconds]
#include <sys/resource.h>
#include <sys/times.h>
#include <unistd.h>

#include <QApplication>
#include <QEventLoop>
#include <QPaintEvent>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "platform/desktop.h"
#include "platform/qt/form_window.h"
#include "program.h"
#include "resident.h"

namespace {

/// Milliseconds since the caller, just before it started this process, looked at the clock.
double Age() {
    const char* start = std::getenv("PROBE_START");  // nanoseconds
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    const double seconds =
        static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
    return start ? (seconds - std::stod(start) * 1e-9) * 1000 : 0;
}

long Ticks() {
    tms used{};
    times(&used);
    return static_cast<long>(used.tms_utime + used.tms_stime);
}

void ServeFor(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Waits for a window to be painted, with what `complete` asks for.
template <typename Complete>
void Report(Complete complete, int idleSeconds) {
    while (!complete()) {
        QEventLoop().processEvents(QEventLoop::WaitForMoreEvents);
    }
    const double age = Age();
    const long memory = ResidentKilobytes();
    long idle = 0;
    if (idleSeconds > 0) {
        ServeFor(2000);
        const long before = Ticks();
        ServeFor(idleSeconds * 1000);
        idle = Ticks() - before;
    }
    std::printf("%.1f %ld %ld\n", age, memory, idle);
    std::fflush(stdout);
    _exit(0);
}

class EmptyWindow : public QWidget {
public:
    bool Painted = false;

protected:
    void paintEvent(QPaintEvent*) override { Painted = true; }
};

/// True once the splash shows its painted background.
class PaintWatch : public QObject {
public:
    bool Painted = false;

    bool eventFilter(QObject*, QEvent* event) override {
        Painted = Painted || (event->type() == QEvent::Paint && Ready());
        return false;
    }
    std::function<bool()> Ready;
};

}  // namespace

int main(int argc, char** argv) {
    const bool game = argc > 1 && std::strcmp(argv[1], "game") == 0;
    const int idleSeconds = argc > 2 ? std::atoi(argv[2]) : 0;
    if (!game) {
        QApplication application(argc, argv);
        EmptyWindow window;
        window.showMaximized();
        Report([&] { return window.Painted; }, idleSeconds);
    }
    const trameli::Desktop desktop(argc, argv, trameli::Program::PrimaVista());
    trameli::Program program(desktop.Services());
    if (!program.Main()) {
        std::fputs("another instance runs\n", stderr);
        return 1;
    }
    auto& native = program.Forms().Find("FormAvvio")->NativePart();
    PaintWatch watch;
    watch.Ready = [&] { return native.Canvas != nullptr; };
    native.Window.Client().installEventFilter(&watch);
    Report([&] { return watch.Painted; }, idleSeconds);
}
