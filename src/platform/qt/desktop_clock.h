// The machine's time.
#pragma once

#include "platform/clock.h"

namespace trameli {

/// Time that goes on by itself.
class DesktopClock final : public Clock {
public:
    double Now() const override;
    std::unique_ptr<Ticker> Every(int milliseconds, std::function<void()> tick) override;
    void Wait(double seconds, const std::function<bool()>& over) override;
};

}  // namespace trameli
