// Forms that wait to be closed.
#include <QTimer>

#include "platform/scripted_form.h"

namespace trameli {
namespace {

class WindowedTest : public ScriptedProgram {
protected:
    WindowedTest() { Scripts["A"].Style = FormStyle::Windowed; }
};

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
