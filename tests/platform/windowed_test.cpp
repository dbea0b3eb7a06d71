// Forms that choose their own size, and forms that wait to be closed.
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
    };
    Scripts["A"].Activate = [&](ScriptedForm& form) {
        EXPECT_FALSE(WindowOf(form).isVisible()) << "nobody sees the size before";
        Put(form, inActivate);
    };
    ScriptedForm& form = Bring("A");
    ASSERT_TRUE(WindowOf(form).isVisible());
    EXPECT_EQ(PlaceOf(form), inActivate);
    EXPECT_EQ(WidgetOf(form.First).parentWidget()->size(), inActivate.size());
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

TEST_F(WindowedTest, ShowOfAModalFormReturnsWhenItIsGone) {
    ScriptedForm& caller = Bring("B");
    for (const bool end : {false, true}) {
        bool returned = false;
        caller.First.Click = [&] {
            QTimer::singleShot(0, [&] {
                Pump();
                EXPECT_TRUE(WindowOf(Get("A")).isVisible());
                ClickOn(caller.Second);
                end ? Program.End() : Program.Unload(Get("A"));
            });
            Program.Show("A", Modality::Modal);
            returned = true;
        };
        ClickOn(caller.First);
        EXPECT_TRUE(returned);
        EXPECT_EQ(Times("B Second_Click"), 0) << "the other has neither pointer nor keyboard";
    }
}

}  // namespace
}  // namespace trameli
