// Forms that go in the middle of something: no further routine acts on them, nothing dangles.
#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "platform/qt/desktop_services.h"
#include "platform/scripted_form.h"

namespace trameli {
namespace {

/// Clicks an entry of a form's first menu with the mouse.
void ChooseEntry(Form& form, int entry) {
    auto* bar = WindowOf(form).findChild<QMenuBar*>();
    QAction* menu = bar->actions().front();
    QTest::mouseClick(WindowOf(form).windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      bar->mapTo(&WindowOf(form), bar->actionGeometry(menu).center()));
    Pump();
    auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(popup, nullptr);
    QTest::mouseClick(popup->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      popup->actionGeometry(popup->actions().at(entry)).center());
}

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
    std::function<void(ScriptedForm&, HandClock&)> Unload;
};

void PrintTo(const Way& way, std::ostream* out) {
    *out << way.Name;
}

const Way Ways[] = {
    {"MenuEntry",
     [](ScriptedForm& form, HandClock&) {
         form.Entry.Click = [&form] { form.Forms().Unload(form); };
         ChooseEntry(form, 0);
     }},
    {"Shortcut",
     [](ScriptedForm& form, HandClock&) {
         form.Entry.Click = [&form] { form.Forms().Unload(form); };
         Press(form, Qt::Key_E, Qt::ControlModifier);
     }},
    {"Button",
     [](ScriptedForm& form, HandClock&) {
         form.Second.Click = [&form] { form.Forms().Unload(form); };
         ClickOn(form.Second);
     }},
    {"WindowClosed",
     [](ScriptedForm& form, HandClock&) { WindowOf(form).windowHandle()->close(); }},
    {"ClosedWhileAMenuIsOpen",
     [](ScriptedForm& form, HandClock&) {
         Press(form, Qt::Key_M, Qt::AltModifier);
         EXPECT_NE(QApplication::activePopupWidget(), nullptr);
         form.Forms().Unload(form);
         EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
     }},
    {"Timer",
     [](ScriptedForm& form, HandClock&) {
         form.Ticker.Tick = [&form] { form.Forms().Unload(form); };
         form.Ticker.Enabled(true);  // the wait under way lets it tick
     }},
    {"SecondWait",
     [](ScriptedForm& form, HandClock& clock) {
         clock.In(1, [&form] { form.Forms().Unload(form); });
         form.Second.Click = [&form] { EXPECT_FALSE(form.Wait(5)); };
         ClickOn(form.Second);
     }},
    {"AnotherForm",
     [](ScriptedForm& form, HandClock&) {
         form.Forms().Show("B");
         Pump();
         auto& other = dynamic_cast<ScriptedForm&>(*form.Forms().Find("B"));
         other.First.Click = [&form] { form.Forms().Unload(form); };
         ClickOn(other.First);
     }},
};

class UnloadInAWait : public ScriptedProgram, public testing::WithParamInterface<Way> {
protected:
    /// Waits in a click of A, unloads A meanwhile, and sees to it that nothing is left of it.
    void WaitAndUnload() {
        ScriptedForm& form = Bring("A");
        form.Ticker.Enabled(true);
        bool returned = false;
        int others = 0;
        form.First.Click = [&] {
            const double begin = Time.Now();
            Time.In(1, [&] { GetParam().Unload(form, Time); });
            EXPECT_FALSE(form.Wait(60));
            EXPECT_LT(Time.Now(), begin + 60) << "the wait is over with the form";

            EXPECT_FALSE(form.Loaded());
            EXPECT_EQ(Program.Find("A"), nullptr);
            EXPECT_FALSE(WindowOf(form).isVisible());
            EXPECT_FALSE(form.Ticker.Enabled());
            EXPECT_EQ(Times("A Unload"), 1);
            Seen.clear();
            SendLateEvents(form);
            Program.Unload(form);
            Time.Wait(10, [] { return false; });
            EXPECT_EQ(Times("A Activate") + Times("A Resize") + Times("A First_Click") +
                          Times("A Second_GotFocus") + Times("A KeyUp 32") +
                          Times("A First_KeyUp 32") + Times("A Ticker_Timer") +
                          Times("A Entry_Click") + Times("A MouseMove") + Times("A Unload"),
                      0);
            others = Program.Find("B") ? 1 : 0;
            EXPECT_EQ(ScriptedForm::Alive, others + 1) << "it lives until its routine has returned";
            form.Note("returns");
            returned = true;
        };
        ClickOn(form.First);
        EXPECT_TRUE(returned);
        Pump();
        EXPECT_EQ(ScriptedForm::Alive, others);
        EXPECT_EQ(Time.TimersRunning(), 0);
    }
};

TEST_P(UnloadInAWait, LeavesNothingDanglingWhileTheProgramGoesOn) {
    Bring("B");
    WaitAndUnload();
    EXPECT_FALSE(Program.Ended());
    // The rest of the program is as lively as before.
    ScriptedForm& other = Get("B");
    EXPECT_TRUE(WindowOf(other).isActiveWindow());
    Seen.clear();
    ClickOn(other.Second);
    EXPECT_EQ(Times("B Second_Click"), 1);
}

TEST_P(UnloadInAWait, LeavesNothingDanglingAtTheEndOfTheProgram) {
    WaitAndUnload();
    EXPECT_EQ(Program.Ended(), Program.Find("B") == nullptr);
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

TEST_F(UnloadTest, InLoadAndActivateThatWait) {
    Bring("A");
    for (auto* routine : {&Scripts["B"].Load, &Scripts["B"].Activate}) {
        *routine = [&](ScriptedForm& form) {
            Time.In(1, [&form] { form.Forms().Unload(form); });
            EXPECT_FALSE(form.Wait(5));
            EXPECT_EQ(ScriptedForm::Alive, 2);
        };
        Program.Show("B");
        Pump();
        *routine = {};
        EXPECT_EQ(Program.Find("B"), nullptr);
        EXPECT_EQ(Times("B Unload"), 1);
        EXPECT_EQ(ScriptedForm::Alive, 1);
        Seen.clear();
    }
}

TEST_F(UnloadTest, InTheMiddleOfAMessageBox) {
    Bring("B");
    ScriptedForm& form = Bring("A");
    DesktopDialogs dialogs;
    bool shown = false;
    form.First.Click = [&] {
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            shown = box->isVisible();
            Program.Unload(form);
            Pump();
            EXPECT_EQ(ScriptedForm::Alive, 2);
            box->defaultButton() ? box->defaultButton()->click() : box->accept();
        });
        dialogs.Critical("text", "title");
        EXPECT_FALSE(form.Loaded());
        EXPECT_FALSE(form.Wait(1));
    };
    ClickOn(form.First);
    EXPECT_TRUE(shown);
    Pump();
    EXPECT_EQ(ScriptedForm::Alive, 1);
}

TEST_F(UnloadTest, OfTheLastFormClosesAnOpenMessageBox) {
    ScriptedForm& form = Bring("A");
    DesktopDialogs dialogs;
    bool returned = false;
    form.First.Click = [&] {
        QTimer::singleShot(0, [&] { Program.Unload(form); });
        dialogs.Critical("text", "title");  // would be waiting for ever
        returned = true;
    };
    ClickOn(form.First);
    EXPECT_TRUE(returned);
    EXPECT_TRUE(Program.Ended());
}

TEST_F(UnloadTest, ByTheKeyThatTheControlWouldSeeNext) {
    Bring("B");
    ScriptedForm& form = Bring("A");
    form.First.SetFocus();
    Scripts["A"].KeyUp = [](ScriptedForm& self, int) { self.Forms().Unload(self); };
    Press(form, Qt::Key_Space);
    Seen.clear();
    Release(form, Qt::Key_Space);
    EXPECT_EQ(Seen, (Log{"A KeyUp 32", "A Unload", "B Activate"}));
    EXPECT_EQ(ScriptedForm::Alive, 1);
}

}  // namespace
}  // namespace trameli
