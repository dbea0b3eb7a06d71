// Forms that go in the middle of something: no further routine acts on them, nothing dangles.
#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "platform/qt/desktop_dialogs.h"
#include "platform/scripted_form.h"

namespace trameli {
namespace {

/// Sends a form whose window is gone everything that could still be under way to it.
void SendLateEvents(ScriptedForm& form) {
    QWidget& window = WindowOf(form);
    QWidget& button = WidgetOf(form.First);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent key(type, Qt::Key_Space, Qt::NoModifier);
        QCoreApplication::sendEvent(static_cast<QObject*>(window.windowHandle()), &key);
        QCoreApplication::sendEvent(&button, &key);
    }
    const QPointF middle = button.rect().center();
    for (const QEvent::Type type :
         {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent mouse(type, middle, button.mapToGlobal(middle), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&button, &mouse);
    }
    QFocusEvent focus(QEvent::FocusIn);
    QCoreApplication::sendEvent(&WidgetOf(form.Second), &focus);
    QEvent activate(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&window, &activate);
    window.resize(700, 500);
    window.close();
    window.findChild<QMenuBar*>()->actions().front()->menu()->actions().front()->trigger();
    form.Ticker.Enabled(true);
}

/// How a form can be unloaded while one of its routines waits.
struct Way {
    const char* Name;
    void (*Unload)(ScriptedForm&);
};

void PrintTo(const Way& way, std::ostream* out) {
    *out << way.Name;
}

const Way Ways[] = {
    {"Button",
     [](ScriptedForm& form) {
         form.Second.Click = [&form] { form.Forms().Unload(form); };
         ClickOn(form.Second);
     }},
    {"WindowClosed", [](ScriptedForm& form) { WindowOf(form).windowHandle()->close(); }},
    {"ClosedWhileAMenuIsOpen",
     [](ScriptedForm& form) {
         Press(form, Qt::Key_M, Qt::AltModifier);
         EXPECT_NE(QApplication::activePopupWidget(), nullptr);
         form.Forms().Unload(form);
         EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
     }},
    {"Timer",
     [](ScriptedForm& form) {
         form.Ticker.Tick = [&form] { form.Forms().Unload(form); };
         form.Ticker.Enabled(true);  // the wait under way lets it tick
     }},
};

class UnloadInAWait : public ScriptedProgram, public testing::WithParamInterface<Way> {
protected:
    /// Waits in a click of A, unloads A meanwhile, and sees to it that nothing is left of it but
    /// so many other forms.
    void WaitAndUnload(int others) {
        ScriptedForm& form = Bring("A");
        form.Ticker.Enabled(true);
        bool returned = false;
        form.First.Click = [&] {
            const double begin = Time.Now();
            Time.In(1, [&] { GetParam().Unload(form); });
            EXPECT_FALSE(form.Wait(60));
            EXPECT_LT(Time.Now(), begin + 60) << "the wait is over with the form";

            EXPECT_FALSE(form.Loaded());
            EXPECT_EQ(Program.Find("A"), nullptr);
            EXPECT_FALSE(WindowOf(form).isVisible());
            EXPECT_EQ(Times("A Unload"), 1);
            Seen.clear();
            SendLateEvents(form);
            Program.Unload(form);
            EXPECT_EQ(Time.TimersRunning(), 0);
            Time.Wait(10, [] { return false; });
            EXPECT_TRUE(std::none_of(Seen.begin(), Seen.end(), [](const std::string& line) {
                return line.starts_with("A ");
            })) << testing::PrintToString(Seen);
            EXPECT_EQ(ScriptedForm::Alive, others + 1) << "it lives until its routine has returned";
            returned = true;
        };
        ClickOn(form.First);
        EXPECT_TRUE(returned);
        Pump();
        EXPECT_EQ(ScriptedForm::Alive, others);
    }
};

TEST_P(UnloadInAWait, LeavesNothingDanglingWhileTheProgramGoesOn) {
    Bring("B");
    WaitAndUnload(1);
    EXPECT_FALSE(Program.Ended());
    // The rest of the program is as lively as before.
    EXPECT_TRUE(WindowOf(Get("B")).isActiveWindow());
    ClickOn(Get("B").Second);
    EXPECT_EQ(Times("B Second_Click"), 1);
}

TEST_P(UnloadInAWait, LeavesNothingDanglingAtTheEndOfTheProgram) {
    WaitAndUnload(0);
    EXPECT_TRUE(Program.Ended());
}

INSTANTIATE_TEST_SUITE_P(Ways, UnloadInAWait, testing::ValuesIn(Ways),
                         [](const auto& tested) { return tested.param.Name; });

class UnloadTest : public ScriptedProgram {};

TEST_F(UnloadTest, WaitsOneInsideTheOtherAllEndWithTheForm) {
    Bring("B");
    ScriptedForm& form = Bring("A");
    std::vector<int> over;
    std::function<void(int)> wait = [&](int depth) {
        if (depth < 5) {
            Time.In(1, [&, depth] { wait(depth + 1); });
        } else {
            Time.In(1, [&] { WindowOf(form).windowHandle()->close(); });
        }
        EXPECT_FALSE(form.Wait(60 + depth));
        EXPECT_EQ(ScriptedForm::Alive, 2);
        over.push_back(depth);
    };
    form.First.Click = [&] { wait(1); };
    ClickOn(form.First);
    EXPECT_EQ(over, (std::vector{5, 4, 3, 2, 1}));
    Pump();
    EXPECT_EQ(ScriptedForm::Alive, 1);
}

TEST_F(UnloadTest, OfAnotherFormDoesNotEndAWait) {
    Bring("B");
    ScriptedForm& form = Bring("A");
    const double begin = Time.Now();
    Time.In(1, [&] { Program.Unload(Get("B")); });
    form.First.Click = [&] {
        EXPECT_TRUE(form.Wait(5));
        EXPECT_EQ(Time.Now(), begin + 5);
        // What was unloaded meanwhile must not go either while any routine is under way.
        EXPECT_EQ(ScriptedForm::Alive, 2);
    };
    ClickOn(form.First);
    Pump();
    EXPECT_EQ(ScriptedForm::Alive, 1);
}

TEST_F(UnloadTest, InTheMiddleOfAMessageBox) {
    for (const bool last : {false, true}) {
        Bring("B");
        ScriptedForm& form = Bring("A");
        if (last) {
            Program.Unload(Get("B"));
            Pump();
        }
        bool returned = false;
        form.First.Click = [&] {
            QTimer::singleShot(0, [&] {
                auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                ASSERT_NE(box, nullptr);
                Program.Unload(form);
                Pump();
                EXPECT_EQ(ScriptedForm::Alive, last ? 1 : 2);
                // With the last form it goes by itself, or it would be waiting for ever.
                if (!last) {
                    box->accept();
                }
            });
            DesktopDialogs().Message("text", "title", Icon::Critical, Buttons::Ok);
            EXPECT_FALSE(form.Wait(1));
            returned = true;
        };
        ClickOn(form.First);
        EXPECT_TRUE(returned);
        Pump();
        EXPECT_EQ(ScriptedForm::Alive, last ? 0 : 1);
        EXPECT_EQ(Program.Ended(), last);
    }
}

TEST_F(UnloadTest, ByAKeyThatTheControlWouldSeeNext) {
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
    EXPECT_EQ(ScriptedForm::Alive, 1);
}

}  // namespace
}  // namespace trameli
