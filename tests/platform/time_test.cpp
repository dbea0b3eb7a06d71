// Timers of a form, and the clock of the desktop that they run on.
#include <QCoreApplication>
#include <QTimer>
#include <vector>

#include "platform/qt/desktop_services.h"
#include "platform/scripted_form.h"

namespace trameli {
namespace {

class TimerTest : public ScriptedProgram {
protected:
    using Moments = std::vector<int>;

    /// When the timer ticked within the next seconds, in milliseconds from now, if its routine
    /// does that.
    Moments TicksIn(
        double seconds, const std::function<void(Timer&)>& routine = [](Timer&) {}) {
        const double start = Time.Now();
        Moments moments;
        Ticker.Tick = [&] {
            moments.push_back(static_cast<int>((Time.Now() - start) * 1000 + 0.5));
            routine(Ticker);
        };
        Time.Advance(seconds);
        Ticker.Tick = nullptr;
        return moments;
    }

    ScriptedForm& Form_ = Bring("A");
    Timer& Ticker = Form_.Ticker;
};

TEST_F(TimerTest, TicksOnlyWhileItIsEnabledAndHasAnInterval) {
    EXPECT_EQ(TicksIn(1), Moments{});
    Ticker.Enabled(true);
    EXPECT_EQ(TicksIn(0.35), (Moments{100, 200, 300}));
    Ticker.Interval(0);
    EXPECT_EQ(TicksIn(1), Moments{});
    Ticker.Interval(200);
    EXPECT_EQ(TicksIn(0.5), (Moments{200, 400}));
    Ticker.Enabled(false);
    Ticker.Interval(100);
    EXPECT_EQ(TicksIn(1), Moments{});
}

TEST_F(TimerTest, MayBeChangedOrWaitInItsOwnRoutine) {
    struct Row {
        const char* What;
        std::function<void(Timer&)> Routine;
        Moments Expected;
    };
    const Row rows[] = {
        {"stopped", [](Timer& timer) { timer.Enabled(false); }, {100}},
        {"slower", [](Timer& timer) { timer.Interval(200); }, {100, 300, 500, 700}},
        {"stopped and started",
         [](Timer& timer) {
             timer.Enabled(false);
             timer.Enabled(true);
         },
         {100, 200, 300, 400, 500, 600, 700}},
        {"not entered again", [this](Timer&) { EXPECT_TRUE(Form_.Wait(0.25)); }, {100, 400, 700}},
    };
    for (const Row& row : rows) {
        Ticker.Interval(100);
        Ticker.Enabled(false);
        Ticker.Enabled(true);
        EXPECT_EQ(TicksIn(0.75, row.Routine), row.Expected) << row.What;
    }
}

// The clock of the desktop is the one thing that a clock moved by hand cannot stand in for. Nothing
// here asks that something is fast, so a busy machine breaks nothing.

TEST(DesktopClockTest, TicksAWholeIntervalAfterALateTick) {
    constexpr int interval = 60;
    DesktopClock clock;
    std::vector<double> moments;
    const auto ticker = clock.Every(interval, [&] { moments.push_back(clock.Now()); });
    // Nobody serves events until the first tick is nearly a whole interval late.
    const double busyUntil = clock.Now() + 1.8 * interval / 1000;
    while (clock.Now() < busyUntil) {
    }
    clock.Wait(20, [&] { return moments.size() == 2; });
    ASSERT_EQ(moments.size(), 2U);
    EXPECT_GE((moments[1] - moments[0]) * 1000, interval - 1.0);
}

TEST(DesktopClockTest, StopsATickerInItsOwnRoutine) {
    DesktopClock clock;
    int ticks = 0;
    std::unique_ptr<Clock::Ticker> ticker;
    // Too much for the routine to be kept without memory of its own.
    const std::vector<int> luggage(100, 1);
    ticker = clock.Every(1, [&, luggage] {
        ticker.reset();
        ticks += luggage.at(99);
    });
    clock.Wait(20, [&] { return ticks > 0; });
    EXPECT_EQ(ticks, 1);
}

TEST(DesktopClockTest, WaitsNoLongerThanNeeded) {
    constexpr double anHour = 3600;
    DesktopClock clock;
    bool over = false;
    const auto isOver = [&] { return over; };
    // A wait that overlooks this would last until the test is killed.
    QTimer::singleShot(0, [&] { over = true; });
    clock.Wait(anHour, isOver);
    EXPECT_TRUE(over);

    // With nothing to wait for, no event is served.
    bool served = false;
    QObject context;
    QMetaObject::invokeMethod(
        &context, [&] { served = true; }, Qt::QueuedConnection);
    clock.Wait(anHour, isOver);
    over = false;
    clock.Wait(0, isOver);
    clock.Wait(-1, isOver);
    EXPECT_FALSE(served);

    const double start = clock.Now();
    clock.Wait(0.02, isOver);
    EXPECT_TRUE(served);
    EXPECT_GE(clock.Now() - start, 0.02);
}

}  // namespace
}  // namespace trameli
