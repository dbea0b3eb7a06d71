#include "platform/timer.h"

#include <algorithm>

#include "platform/forms.h"
#include "platform/property_access.h"
#include "platform/qt/native.h"

namespace trameli {

Timer::Timer(Form& form, ControlName name, int interval)
    : Control(form, std::move(name)), interval_(interval) {}

void Timer::Interval(int milliseconds) {
    if (interval_ != milliseconds) {
        interval_ = milliseconds;
        Restart();
    }
}

void Timer::Enabled(bool enabled) {
    if (enabled_ != enabled) {
        enabled_ = enabled;
        Restart();
    }
}

void Timer::Properties(PropertyAccess& access) {
    access.At("Interval", *this, &Timer::Interval, &Timer::Interval);
    access.At("Enabled", *this, &Timer::Enabled, &Timer::Enabled);
    Control::Properties(access);
}

void Timer::Restart() {
    ticker_.reset();
    if (!enabled_ || interval_ <= 0 || !OwnerForm().Loaded()) {
        return;
    }
    ticker_ = OwnerForm().Forms().Clock().Every(interval_, [this] {
        // A routine that waits is not entered again by its own timer.
        if (ticking_) {
            return;
        }
        ticking_ = true;
        Fire(*this, Tick);
        ticking_ = false;
    });
}

}  // namespace trameli
