#include "support/hand_clock.h"

#include <algorithm>
#include <tuple>

#include "support/stage.h"

namespace trameli {

/// A timer; its engagement goes with it.
class HandClock::HandTicker final : public Clock::Ticker {
public:
    explicit HandTicker(HandClock& clock) : clock_(clock) {}
    ~HandTicker() override {
        std::erase_if(clock_.engagements_, [this](const auto& e) { return e.Timer == this; });
    }

private:
    HandClock& clock_;
};

std::unique_ptr<Clock::Ticker> HandClock::Every(int milliseconds, std::function<void()> tick) {
    auto timer = std::make_unique<HandTicker>(*this);
    const double period = milliseconds / 1000.0;
    engagements_.push_back({now_ + period, made_++, std::move(tick), timer.get(), period});
    return timer;
}

void HandClock::In(double seconds, std::function<void()> action) {
    engagements_.push_back({now_ + seconds, made_++, std::move(action), nullptr, 0});
}

/// Runs what is due first, if anything is due up to `until`; appointments before timers.
bool HandClock::RunNext(double until) {
    const auto next = std::min_element(engagements_.begin(), engagements_.end(),
                                       [](const auto& a, const auto& b) {
                                           return std::tuple(a.Due, a.Timer != nullptr, a.Order) <
                                                  std::tuple(b.Due, b.Timer != nullptr, b.Order);
                                       });
    if (next == engagements_.end() || next->Due > until) {
        return false;
    }
    now_ = std::max(now_, next->Due);
    const auto action = next->Action;  // a timer's routine may stop it
    if (next->Timer) {
        next->Due = now_ + next->Period;
    } else {
        engagements_.erase(next);
    }
    action();
    Pump();
    return true;
}

void HandClock::Wait(double seconds, const std::function<bool()>& over) {
    if (seconds <= 0) {
        return;
    }
    const double end = now_ + seconds;
    Pump();
    while (!over() && now_ < end) {
        if (!RunNext(end)) {
            now_ = end;
        }
    }
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
