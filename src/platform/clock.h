// Time as the program sees it.
#pragma once

#include <functional>
#include <memory>

namespace trameli {

/// The service that all timers and waits run on. In a test it is moved by hand.
class Clock {
public:
    /// A running timer; it stops when this handle is destroyed.
    class Ticker {
    public:
        virtual ~Ticker() = default;
    };

    virtual ~Clock() = default;

    /// Seconds since some fixed moment; never runs backwards, also over midnight.
    virtual double Now() const = 0;

    /// Calls `tick` every `milliseconds` (at least 1) until the handle goes. Ticks that come late
    /// are not made up for.
    virtual std::unique_ptr<Ticker> Every(int milliseconds, std::function<void()> tick) = 0;

    /// Serves window events until `seconds` have passed or `over` answers true, which is asked
    /// after each event. Uses no processor time of its own; with 0 or less no event is served.
    virtual void Wait(double seconds, const std::function<bool()>& over) = 0;
};

}  // namespace trameli
