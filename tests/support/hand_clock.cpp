#include "support/hand_clock.h"

#include <algorithm>

#include "support/stage.h"

namespace trameli {

/// A timer; it keeps its place in the clock's list while it runs.
class HandClock::HandTicker final : public Clock::Ticker {
public:
    HandTicker(HandClock& clock, int milliseconds, std::function<void()> tick)
        : Period(milliseconds / 1000.0),
          Due(clock.now_ + Period),
          Order(clock.made_++),
          Tick(std::move(tick)),
          clock_(clock) {
        clock_.tickers_.push_back(this);
    }
    ~HandTicker() override { std::erase(clock_.tickers_, this); }

    double Period;
    double Due;
    long Order;
    std::function<void()> Tick;

private:
    HandClock& clock_;
};

std::unique_ptr<Clock::Ticker> HandClock::Every(int milliseconds, std::function<void()> tick) {
    return std::make_unique<HandTicker>(*this, milliseconds, std::move(tick));
}

void HandClock::In(double seconds, std::function<void()> action) {
    appointments_.push_back({now_ + seconds, made_++, std::move(action)});
}

int HandClock::TimersRunning() const {
    return static_cast<int>(tickers_.size());
}

/// Runs what is due first, if anything is due up to `until`.
bool HandClock::RunNext(double until) {
    const auto earlier = [](const auto& a, const auto& b) {
        return a.Due != b.Due ? a.Due < b.Due : a.Order < b.Order;
    };
    const auto appointment = std::min_element(appointments_.begin(), appointments_.end(), earlier);
    const auto ticker =
        std::min_element(tickers_.begin(), tickers_.end(),
                         [&](const auto* a, const auto* b) { return earlier(*a, *b); });
    const bool hasAppointment = appointment != appointments_.end() && appointment->Due <= until;
    const bool hasTicker = ticker != tickers_.end() && (*ticker)->Due <= until;
    if (hasAppointment && (!hasTicker || appointment->Due <= (*ticker)->Due)) {
        const Appointment due = std::move(*appointment);
        appointments_.erase(appointment);
        now_ = std::max(now_, due.Due);
        due.Action();
    } else if (hasTicker) {
        HandTicker& due = **ticker;
        now_ = std::max(now_, due.Due);
        due.Due = now_ + due.Period;
        const auto tick = due.Tick;  // the routine may stop its own timer
        tick();
    } else {
        return false;
    }
    Pump();
    return true;
}

void HandClock::Wait(double seconds, const std::function<bool()>& over) {
    if (seconds <= 0) {
        return;
    }
    const double end = now_ + seconds;
    ++waits_;
    Pump();
    while (!over() && now_ < end) {
        if (!RunNext(end)) {
            now_ = end;
        }
    }
    --waits_;
}

void HandClock::Advance(double seconds) {
    const double end = now_ + seconds;
    Pump();
    while (RunNext(end)) {
    }
    now_ = std::max(now_, end);
    Pump();
}

}  // namespace trameli
