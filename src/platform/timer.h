// Timers.
#pragma once

#include "platform/clock.h"
#include "platform/control.h"

namespace trameli {

/// Fires again and again at its interval while it is enabled and its form is loaded. Switching it
/// on or changing the interval starts the interval anew. It does not fire while its own routine is
/// still under way, in a wait for instance.
class Timer : public Control {
public:
    /// interval in milliseconds; starts disabled.
    Timer(Form& form, ControlName name, int interval);

    /// Milliseconds from tick to tick; with 0 or less none comes.
    int Interval() const { return interval_; }
    void Interval(int milliseconds);
    bool Enabled() const { return enabled_; }
    void Enabled(bool enabled);

    /// The interval has passed.
    std::function<void()> Tick;

protected:
    void Properties(PropertyAccess& access) override;

private:
    friend class Forms;

    void Restart();

    int interval_;
    bool enabled_ = false;
    bool ticking_ = false;
    std::unique_ptr<Clock::Ticker> ticker_;
};

}  // namespace trameli
