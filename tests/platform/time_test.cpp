// Timers of a form, and the clock of the desktop that they run on.
#include <QTimer>
#include <vector>

#include "platform/qt/desktop_clock.h"
#include "platform/scripted_form.h"

namespace trameli {
namespace {

using Moments = std::vector<int>;

class TimerTest : public ScriptedProgram {
protected:
    /// When the timer ticked within the next 750 milliseconds, if its routine does that.
    Moments TicksWith(const std::function<void()>& routine) {
        const double start = Time.Now();
        Moments moments;
        Ticker.Tick = [&] {
            moments.push_back(static_cast<int>((Time.Now() - start) * 1000 + 0.5));
            routine();
        };
        Time.Advance(0.75);
        Ticker.Tick = nullptr;
        return moments;
    }

    ScriptedForm& Form_ = Bring("A");
    Timer& Ticker = Form_.Ticker;
};

TEST_F(TimerTest, TicksWhileItIsEnabledAndMayBeChangedInItsOwnRoutine) {
    const struct {
        const char* What;
        bool Enabled;
        int Interval;
        std::function<void()> Routine;
        Moments Expected;
    } rows[] = {
        {"disabled", false, 100, [] {}, {}},
        {"enabled", true, 200, [] {}, {200, 400, 600}},
        {"without an interval", true, 0, [] {}, {}},
        {"once more with one", true, 300, [] {}, {300, 600}},
        {"stopped", true, 100, [&] { Ticker.Enabled(false); }, {100}},
        {"slower", true, 100, [&] { Ticker.Interval(200); }, {100, 300, 500, 700}},
        {"not entered again", true, 100, [&] { Form_.Wait(0.25); }, {100, 400, 700}},
    };
    for (const auto& row : rows) {
        Ticker.Enabled(row.Enabled);
        Ticker.Interval(row.Interval);
        EXPECT_EQ(TicksWith(row.Routine), row.Expected) << row.What;
    }
}

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

TEST(DesktopClockTest, WaitsNoLongerThanNeeded) {
    DesktopClock clock;
    bool over = false;
    // A wait that overlooks this would last until the test is killed.
    QTimer::singleShot(0, [&] { over = true; });
    clock.Wait(3600, [&] { return over; });
    EXPECT_TRUE(over);
    // An event in the middle does not end it.
    QTimer::singleShot(0, [] {});
    const double start = clock.Now();
    clock.Wait(0.02, [] { return false; });
    EXPECT_GE(clock.Now() - start, 0.02);
}

}  // namespace
}  // namespace trameli
