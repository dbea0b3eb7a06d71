// The life of a form: loading, size, activation, and the end of the program.
#include <QTimer>
#include <QWindow>

#include "platform/control_array.h"
#include "platform/label.h"
#include "platform/scripted_form.h"

namespace trameli {
namespace {

class FormTest : public ScriptedProgram {
protected:
    /// Shows A in a further program, which has no other form.
    ScriptedForm& BringIn(Forms& program) {
        Introduce(program);
        program.Show("A");
        Pump();
        auto& form = dynamic_cast<ScriptedForm&>(*program.Find("A"));
        form.First.SetFocus();
        Seen.clear();
        return form;
    }
};

TEST_F(FormTest, IsLoadedThenSizedThenActivatedOnce) {
    Scripts["A"].Load = [](ScriptedForm& form) {
        EXPECT_EQ(form.Width(), 6000) << "the design's size";
        EXPECT_EQ(form.Height(), 3000);
        EXPECT_TRUE(form.Loaded());
    };
    double height = 0;
    Scripts["A"].Activate = [&](ScriptedForm& form) { height = form.Height(); };
    Program.Show("A");
    EXPECT_EQ(Times("A Activate"), 0) << "Show returns before Form_Activate";
    Pump();
    Time.Advance(1);

    ASSERT_GE(Seen.size(), 3U);
    EXPECT_EQ(Seen.front(), "A Load");
    EXPECT_EQ(Seen.back(), "A Activate");
    EXPECT_EQ(Times("A Load"), 1);
    EXPECT_GE(Times("A Resize"), 1);
    EXPECT_EQ(Times("A Activate"), 1);

    EXPECT_EQ(WindowOf(Get("A")).size(), QSize(1024, 768));
    EXPECT_EQ(Get("A").Width(), 1024 * 15);
    EXPECT_EQ(Get("A").Height(), height);
}

TEST_F(FormTest, IsActivatedAgainWhenItComesBackToTheFront) {
    Bring("A");
    Bring("B");
    ASSERT_TRUE(WindowOf(Get("B")).isActiveWindow());
    Program.Show("A");
    Pump();
    EXPECT_TRUE(WindowOf(Get("A")).isActiveWindow());
    EXPECT_EQ(Seen, Log{"A Activate"});
    for (int round = 0; round < 2; ++round) {
        Program.Unload(Bring("B"));
        Pump();
        EXPECT_EQ(Seen, (Log{"B Unload", "A Activate"}));
        EXPECT_TRUE(WindowOf(Get("A")).isActiveWindow());
        EXPECT_EQ(ScriptedForm::Alive, 1);
    }
}

TEST_F(FormTest, IsPresentedAfterItsLoadWhateverHappensMeanwhile) {
    struct Case {
        const char* What;
        std::function<void(Forms&)> Meanwhile;
        Log Seen;
    };
    const Log shown{"B Load", "B Load over", "B Resize", "B Activate"};
    const Case cases[] = {
        {"shown again", [](Forms& forms) { forms.Show("B"); }, shown},
        {"loaded again", [](Forms& forms) { forms.Load("B"); }, shown},
        {"the last form on the screen goes",
         [](Forms& forms) { forms.Unload(*forms.Find("A")); },
         {"B Load", "A Unload", "B Load over", "B Resize", "B Activate"}},
        {"unloaded",
         [](Forms& forms) { forms.Unload(*forms.Find("B")); },
         {"B Load", "B Unload", "B Load over"}},
        {"the end", [](Forms& forms) { forms.End(); }, {"B Load", "B Load over"}},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.What);
        Forms program{Time, Display};
        BringIn(program);
        Scripts["B"].Load = [&](ScriptedForm& form) {
            one.Meanwhile(program);
            program.ServeEvents();
            EXPECT_FALSE(WindowOf(form).isVisible());
            form.Note("Load over");
        };
        program.Show("B");
        Pump();
        EXPECT_EQ(Seen, one.Seen);
    }
}

TEST_F(FormTest, ThatIsOnlyLoadedComesUpIfSomebodyShowsItMeanwhile) {
    EXPECT_FALSE(WindowOf(Program.Load("A")).isVisible());
    Scripts["B"].Load = [](ScriptedForm& form) { form.Forms().Show("B"); };
    EXPECT_TRUE(WindowOf(Program.Load("B")).isVisible());
}

TEST_F(FormTest, ControlsAreWalkedOverThoughTheyGo) {
    ScriptedForm& form = Bring("A");
    ControlArray<Label> labels("Labels");
    for (int i = 0; i < 4; ++i) {
        labels.Add(form, Bounds{0, 0, 100, 100}, "");
    }
    Log walked;
    const auto walk = [&](const std::function<void(int)>& at) {
        walked.clear();
        Program.ForEachControl(form, [&](Control& control) {
            if (control.Index()) {
                walked.push_back(std::to_string(*control.Index()));
                at(*control.Index());
            }
        });
        return walked;
    };
    EXPECT_EQ(walk([](int) {}), (Log{"0", "1", "2", "3"}));
    EXPECT_EQ(walk([&](int index) {
                  if (index == 1) {
                      labels.Unload(0);
                      labels.Unload(1);
                      labels.Unload(2);
                  }
              }),
              (Log{"0", "1", "3"}));
    EXPECT_EQ(walk([&](int) {
                  Program.Unload(form);
                  Program.ServeEvents();
              }),
              Log{"3"});
}

TEST_F(FormTest, RunsItsUnloadOnceWhateverHappensInIt) {
    Bring("B");
    ScriptedForm& form = Bring("A");
    Scripts["A"].Unload = [](ScriptedForm& self) {
        self.Forms().Unload(self);
        WindowOf(self).close();
        EXPECT_TRUE(self.Wait(1)) << "it is loaded until its Form_Unload has returned";
    };
    Time.In(0.5, [&] { Program.Unload(form); });
    Program.Unload(form);
    EXPECT_EQ(Seen.front(), "A Unload");
    EXPECT_EQ(Times("A Unload"), 1);
    Pump();
    EXPECT_EQ(ScriptedForm::Alive, 1);
    EXPECT_FALSE(Program.Ended());
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
    Press(form, Qt::Key_Space);
    Release(form, Qt::Key_Space);
    EXPECT_EQ(Seen, Log{"A KeyUp 32"}) << "the button must not see the key any more";
    EXPECT_TRUE(Program.Ended());
    EXPECT_FALSE(form.Loaded());

    ClickOn(form.Second);
    Tap(form, Qt::Key_E, Qt::ControlModifier);
    WindowOf(form).resize(500, 400);
    WindowOf(form).close();
    Program.Show("B");
    Program.Unload(form);
    Time.Advance(5);
    Program.Run();  // returns at once
    EXPECT_EQ(Seen, Log{"A KeyUp 32"});
}

TEST_F(FormTest, GoesWithItsProgramWithoutAnyRoutine) {
    {
        Forms program{Time, Display};
        BringIn(program).Ticker.Enabled(true);
    }
    Pump();
    Time.Advance(1);
    EXPECT_EQ(Seen, Log{});
    EXPECT_EQ(ScriptedForm::Alive, 0);
    EXPECT_EQ(Time.TimersRunning(), 0);
}

}  // namespace
}  // namespace trameli
