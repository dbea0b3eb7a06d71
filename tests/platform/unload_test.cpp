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

/// Sends a form whose window is gone what could still be under way to it.
void SendLateEvents(ScriptedForm& form) {
    QWidget& window = WindowOf(form);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent key(type, Qt::Key_Space, Qt::NoModifier);
        QCoreApplication::sendEvent(static_cast<QObject*>(window.windowHandle()), &key);
        QCoreApplication::sendEvent(&WidgetOf(form.First), &key);
    }
    QEvent activate(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&window, &activate);
    window.resize(700, 500);
    window.close();
    window.findChild<QMenuBar*>()->actions().front()->menu()->actions().front()->trigger();
    form.Ticker.Enabled(true);
}

class UnloadTest : public ScriptedProgram {};

TEST_F(UnloadTest, InAWaitLeavesNothingDangling) {
    struct Way {
        const char* Name;
        std::function<void(ScriptedForm&)> Unload;
    };
    const Way ways[] = {
        {"button",
         [](ScriptedForm& form) {
             form.Second.Click = [&form] { form.Forms().Unload(form); };
             ClickOn(form.Second);
         }},
        {"window closed", [](ScriptedForm& form) { WindowOf(form).windowHandle()->close(); }},
        {"a menu open",
         [](ScriptedForm& form) {
             Press(form, Qt::Key_M, Qt::AltModifier);
             EXPECT_NE(QApplication::activePopupWidget(), nullptr);
             form.Forms().Unload(form);
             EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
         }},
        {"timer",
         [](ScriptedForm& form) {
             form.Ticker.Tick = [&form] { form.Forms().Unload(form); };
             form.Ticker.Enabled(true);  // the wait under way lets it tick
         }},
    };
    for (const Way& way : ways) {
        for (const int others : {1, 0}) {
            SCOPED_TRACE(way.Name);
            Forms program{Time, Display};
            Introduce(program);
            for (const char* name : {"B", "A"}) {
                if (*name == 'A' || others > 0) {
                    program.Show(name);
                    Pump();
                }
            }
            auto& form = dynamic_cast<ScriptedForm&>(*program.Find("A"));
            bool returned = false;
            form.First.Click = [&] {
                const double begin = Time.Now();
                Time.In(1, [&] { way.Unload(form); });
                EXPECT_FALSE(form.Wait(60));
                EXPECT_LT(Time.Now(), begin + 60) << "the wait is over with the form";
                EXPECT_FALSE(form.Loaded() || program.Find("A") || WindowOf(form).isVisible());
                Seen.clear();
                SendLateEvents(form);
                program.Unload(form);
                Time.Wait(10, [] { return false; });
                EXPECT_EQ(Seen, Log{});
                EXPECT_EQ(ScriptedForm::Alive, others + 1) << "while its routine is under way";
                returned = true;
            };
            ClickOn(form.First);
            EXPECT_TRUE(returned);
            Pump();
            EXPECT_EQ(ScriptedForm::Alive, others);
            EXPECT_EQ(Time.TimersRunning(), 0);
            EXPECT_EQ(program.Ended(), others == 0);
        }
    }
}

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
