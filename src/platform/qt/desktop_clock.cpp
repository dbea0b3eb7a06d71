#include "platform/qt/desktop_clock.h"

#include <QEventLoop>
#include <QTimer>
#include <chrono>

namespace trameli {

namespace {

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

}  // namespace trameli
