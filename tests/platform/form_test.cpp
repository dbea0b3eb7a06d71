// The life of a form: loading, size, activation, and the end of the program.
#include <QTimer>
#include <QWindow>

#include "platform/scripted_form.h"

namespace trameli {
namespace {

using FormTest = ScriptedProgram;

TEST_F(FormTest, HearsNothingWhileAnotherOneTakesItsPlace) {
    ScriptedForm& form = Bring("A");
    Scripts["B"].Load = [&](ScriptedForm&) { ClickOn(form.First); };
    Program.HandOver(form, "B");
    Pump();
    EXPECT_EQ(Seen, (Log{"B Load", "B Resize", "A Unload", "B Activate"}));
}

TEST_F(FormTest, TimerWhoseRoutineWaitsDoesNotEnterItAgain) {
    ScriptedForm& form = Bring("A");
    form.Ticker.Tick = [&] {
        Seen.push_back("tick");
        form.Wait(0.25);
    };
    form.Ticker.Enabled(true);
    Time.Advance(0.75);
    EXPECT_EQ(Times("tick"), 3);
}

TEST_F(FormTest, GoesByAKeyThatItsControlWouldSeeNext) {
    Bring("B");
    ScriptedForm* form = &Bring("A");
    form->First.SetFocus();
    Scripts["A"].KeyUp = [](ScriptedForm& self, int) { self.Forms().Unload(self); };
    Tap(*form, Qt::Key_Space);
    EXPECT_EQ(Seen, (Log{"A KeyUp 32", "A Unload", "B Activate"}));
    form = &Bring("A");
    Scripts["A"].KeyDown = [](ScriptedForm& self, int) {
        self.Forms().Unload(self);
        return false;
    };
    Press(*form, Qt::Key_Tab);
    Release(Get("B"), Qt::Key_Tab);
    EXPECT_EQ(Seen, (Log{"A Unload", "B Activate"}));
}

// The end of the program.

TEST_F(FormTest, LastOnTheScreenEndsTheProgramWhenItGoes) {
    Program.Load("B");
    Program.Show("A");
    // As in the program itself: everything happens in the loop of Run, which has to come back.
    QTimer::singleShot(0, [this] { WindowOf(Get("A")).close(); });
    Program.Run();
    EXPECT_TRUE(Program.Ended());
    EXPECT_EQ(Times("A Unload"), 1);
    EXPECT_EQ(Times("B Unload"), 0);
    EXPECT_FALSE(Program.Find("B")->Loaded());
}

TEST_F(FormTest, EndStartsNoFurtherRoutine) {
    ScriptedForm& form = Bring("A");
    form.First.SetFocus();
    form.Ticker.Enabled(true);
    Seen.clear();
    Scripts["A"].KeyUp = [](ScriptedForm& self, int) { self.Forms().End(); };
    Tap(form, Qt::Key_Space);
    ClickOn(form.Second);
    WindowOf(form).resize(500, 400);
    WindowOf(form).close();
    Program.Show("B");
    Program.Unload(form);
    Time.Advance(5);
    Program.Run();  // returns at once
    EXPECT_EQ(Seen, Log{"A KeyUp 32"}) << "not even the button sees the key any more";
    EXPECT_FALSE(form.Loaded());
}

}  // namespace
}  // namespace trameli
