// The clock of the desktop.
#include <gtest/gtest.h>

#include <vector>

#include "platform/qt/desktop_clock.h"

namespace trameli {
namespace {

// The clock of the desktop is the one thing that a clock moved by hand cannot stand in for. Nothing
// here asks that something is fast, so a busy machine breaks nothing.

TEST(DesktopClockTest, TicksAWholeIntervalAfterALateTick) {
    constexpr double interval = 0.06;
    DesktopClock clock;
    std::vector<double> moments;
    std::unique_ptr<Clock::Ticker> ticker;
    // Too much for the routine to be kept without memory of its own, which goes with the ticker.
    const std::vector<int> luggage(100, 1);
    ticker = clock.Every(static_cast<int>(interval * 1000), [&, luggage] {
        if (moments.size() == 1) {
            ticker.reset();
        }
        moments.insert(moments.end(), luggage.at(99), clock.Now());
    });
    // Nobody serves events until the first tick is nearly a whole interval late.
    const double busyUntil = clock.Now() + 1.8 * interval;
    while (clock.Now() < busyUntil) {
    }
    clock.Wait(20, [&] { return moments.size() == 2; });
    ASSERT_EQ(moments.size(), 2U) << "a ticker may be stopped in its own routine";
    EXPECT_GE(moments[1] - moments[0], interval - 0.001);
}

}  // namespace
}  // namespace trameli
