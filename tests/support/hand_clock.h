// Time that stands still until a test moves it.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/clock.h"

namespace trameli {

/// A clock moved by hand. A wait of the program moves it too, to the wait's end at once, with all
/// timers and appointments on the way in their order: what takes minutes at a desk takes no time
/// here.
class HandClock final : public Clock {
public:
    double Now() const override { return now_; }
    std::unique_ptr<Ticker> Every(int milliseconds, std::function<void()> tick) override;
    void Wait(double seconds, const std::function<bool()>& over) override;

    /// Moves on by so many seconds, serving window events after each timer and appointment.
    void Advance(double seconds);

    /// Makes an appointment: `action` is called once, so many seconds from now, also in the middle
    /// of a wait.
    void In(double seconds, std::function<void()> action);

private:
    class HandTicker;

    /// An appointment, or the next tick of a timer.
    struct Engagement {
        double Due;
        long Order;  ///< in which they were made
        std::function<void()> Action;
        const HandTicker* Timer;  ///< null for an appointment
        double Period;            ///< of a timer, seconds
    };

    bool RunNext(double until);

    double now_ = 1000;
    long made_ = 0;
    std::vector<Engagement> engagements_;
};

}  // namespace trameli
