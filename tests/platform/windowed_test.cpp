// Forms that choose their own size, and forms that wait to be closed.
#include <QMessageBox>
#include <QTimer>
#include <QWindow>

#include "platform/scripted_form.h"

namespace trameli {
namespace {

/// Twips of a pixel.
constexpr int Twips = 15;

class WindowedTest : public ScriptedProgram {
protected:
    WindowedTest() { Scripts["A"].Style = FormStyle::Windowed; }

    /// What the form says of its place, in pixels.
    static QRectF PlaceOf(const Form& form) {
        return {form.Left() / Twips, form.Top() / Twips, form.Width() / Twips,
                form.Height() / Twips};
    }
    static void Put(Form& form, QRect place) {
        form.Left(place.left() * Twips);
        form.Top(place.top() * Twips);
        form.Width(place.width() * Twips);
        form.Height(place.height() * Twips);
    }
};

TEST_F(WindowedTest, FormHasTheSizeItAsksForBeforeAndAfterItIsSeen) {
    const QRect inLoad(100, 50, 700, 500);
    const QRect inActivate(10, 20, 300, 200);
    Scripts["A"].Load = [&](ScriptedForm& form) {
        EXPECT_EQ(PlaceOf(form).size(), QSizeF(400, 200)) << "the design's";
        Put(form, inLoad);
        EXPECT_EQ(PlaceOf(form), inLoad);
        EXPECT_EQ(Times("A Resize"), 2) << "for the width and for the height";
    };
    Scripts["A"].Activate = [&](ScriptedForm& form) {
        EXPECT_FALSE(WindowOf(form).isVisible()) << "nobody sees the size before";
        Put(form, inActivate);
    };
    Program.Show("A");
    EXPECT_EQ(Times("A Activate"), 0) << "Show returns before Form_Activate";
    Pump();
    ScriptedForm& form = Get("A");
    EXPECT_EQ(Times("A Activate"), 1);
    ASSERT_TRUE(WindowOf(form).isVisible());
    EXPECT_EQ(PlaceOf(form), inActivate);
    EXPECT_EQ(WidgetOf(form.First).parentWidget()->size(), inActivate.size());

    Seen.clear();
    form.Width(500 * Twips);
    form.Height(400 * Twips);
    form.Left(0);
    EXPECT_EQ(Seen, (Log{"A Resize", "A Resize"}));
    EXPECT_EQ(PlaceOf(form), QRectF(0, 20, 500, 400));
}

TEST_F(WindowedTest, FormThatCoversTheScreenKeepsToWhatIsLeftOfIt) {
    const QRect screen(0, 0, 1024, 768);
    double height = 0;
    Scripts["A"].Activate = [&](ScriptedForm& form) { Put(form, screen); };
    Scripts["A"].Resize = [&](ScriptedForm& form) { height = form.Height(); };
    ScriptedForm& form = Bring("A");
    EXPECT_EQ(WindowOf(form).size(), screen.size());
    EXPECT_EQ(form.Height(), WidgetOf(form.First).parentWidget()->height() * Twips);
    EXPECT_LT(form.Height(), 768 * Twips) << "less than it asked for";
    EXPECT_EQ(height, form.Height());
    Put(form, screen);
    EXPECT_EQ(Seen, Log{}) << "once more changes nothing";
}

TEST_F(WindowedTest, FormWithoutActivationRoutineComesUpToo) {
    EXPECT_TRUE(WindowOf(Bring("A")).isVisible());
    Scripts["A"].Activate = [](ScriptedForm& form) {
        EXPECT_TRUE(form.Wait(1));
        EXPECT_TRUE(WindowOf(form).isVisible()) << "nobody waits in front of nothing";
    };
    Program.Unload(Get("A"));
}

TEST_F(WindowedTest, FormUnloadedInItsActivationIsNeverSeen) {
    Bring("B");
    Scripts["A"].Activate = [](ScriptedForm& form) { form.Forms().Unload(form); };
    Program.Show("A");
    Pump();
    EXPECT_EQ(Seen, (Log{"A Load", "A Activate", "A Unload"}));
    EXPECT_EQ(ScriptedForm::Alive, 1);
}

TEST_F(WindowedTest, StatesAreNormalMinimisedAndMaximised) {
    ScriptedForm& form = Bring("A");
    EXPECT_EQ(form.WindowState(), Form::Normal);
    form.WindowState(Form::Minimised);
    EXPECT_EQ(form.WindowState(), Form::Minimised);
    form.WindowState(Form::Maximised);
    EXPECT_EQ(form.WindowState(), Form::Maximised);
    EXPECT_EQ(WindowOf(form).size(), QSize(1024, 768));
    form.Width(15);
    EXPECT_EQ(form.Width(), 1024 * Twips) << "the desktop's as long as it is maximised";
    form.WindowState(Form::Normal);
    EXPECT_EQ(PlaceOf(form).size(), QSizeF(400, 200));
}

TEST_F(WindowedTest, PaintingIsHeldUntilTheLastHoldGoes) {
    ScriptedForm& form = Bring("A");
    const auto shown = [&] { return WidgetOf(form.First).updatesEnabled(); };
    {
        const Form::HoldPainting outer(form);
        { const Form::HoldPainting inner(form); }
        EXPECT_FALSE(shown());
    }
    EXPECT_TRUE(shown());
}

TEST_F(WindowedTest, ClosedByItsFrameAFormDecidesWhatBecomesOfIt) {
    Bring("B");
    ScriptedForm& form = Bring("A");
    Scripts["A"].QueryClose = [](ScriptedForm& self) { self.Note("QueryClose"); };
    WindowOf(form).windowHandle()->close();
    EXPECT_EQ(Seen, Log{"A QueryClose"});
    EXPECT_TRUE(form.Loaded() && WindowOf(form).isVisible());
}

TEST_F(WindowedTest, ShowOfAModalFormReturnsWhenItIsGone) {
    struct Case {
        const char* What;
        std::function<void(Forms&)> Go;
        bool Ended;
    };
    const Case cases[] = {
        {"by code", [](Forms& forms) { forms.Unload(*forms.Find("A")); }, false},
        {"by its frame", [](Forms& forms) { WindowOf(*forms.Find("A")).windowHandle()->close(); },
         false},
        {"after its caller",
         [](Forms& forms) {
             forms.Unload(*forms.Find("B"));
             forms.Unload(*forms.Find("A"));
         },
         true},
        {"by the end, with a message box above it",
         [](Forms& forms) {
             QTimer::singleShot(0, [&] { forms.End(); });
             QMessageBox().exec();
         },
         true},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.What);
        Forms program{Time, Display};
        Introduce(program);
        program.Show("B");
        Pump();
        auto& caller = dynamic_cast<ScriptedForm&>(*program.Find("B"));
        caller.First.Click = [&] {
            QTimer::singleShot(0, [&] {
                Pump();
                EXPECT_TRUE(WindowOf(*program.Find("A")).isVisible());
                ClickOn(caller.Second);
                one.Go(program);
            });
            program.Show("A", Modality::Modal);
            EXPECT_EQ(program.Ended(), one.Ended);
            EXPECT_TRUE(program.Ended() || !program.Find("A"));
            caller.Note("returned");
        };
        Seen.clear();
        ClickOn(caller.First);
        EXPECT_EQ(Times("B Second_Click"), 0) << "the other has neither pointer nor keyboard";
        EXPECT_EQ(Times("B returned"), 1);
    }
}

}  // namespace
}  // namespace trameli
