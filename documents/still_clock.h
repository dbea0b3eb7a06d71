// Time for pictures.
#pragma once

#include <QCoreApplication>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/clock.h"

namespace trameli {

/// A clock on which no wait takes any time, and timers tick only when they are told to.
class StillClock final : public Clock {
public:
    double Now() const override { return now_; }

    std::unique_ptr<Ticker> Every(int milliseconds, std::function<void()> tick) override {
        auto timer = std::make_unique<Timer>(*this, milliseconds / 1000.0, std::move(tick));
        timers_.push_back(timer.get());
        return timer;
    }

    void Wait(double seconds, const std::function<bool()>& /*over*/) override {
        QCoreApplication::processEvents();
        now_ += seconds;
    }

    /// Has every timer that runs tick once.
    void TickOnce() {
        const auto running = timers_;
        for (Timer* timer : running) {
            // One may have stopped another.
            if (std::find(timers_.begin(), timers_.end(), timer) != timers_.end()) {
                now_ += timer->Seconds;
                const auto tick = timer->Tick;
                tick();
            }
        }
    }

private:
    struct Timer final : Ticker {
        Timer(StillClock& clock, double seconds, std::function<void()> tick)
            : Clock_(clock), Seconds(seconds), Tick(std::move(tick)) {}
        ~Timer() override { std::erase(Clock_.timers_, this); }

        StillClock& Clock_;
        double Seconds;
        std::function<void()> Tick;
    };

    double now_ = 0;
    std::vector<Timer*> timers_;
};

}  // namespace trameli
