// Forms that go in the middle of something: no further routine acts on them, nothing dangles.
#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QTest>
#include <QWindow>

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
    const struct {
        const char* Name;
        std::function<void(ScriptedForm&)> Unload;
    } ways[] = {
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
    Bring("B");
    for (const auto& way : ways) {
        SCOPED_TRACE(way.Name);
        ScriptedForm& form = Bring("A");
        bool returned = false;
        form.First.Click = [&] {
            const double begin = Time.Now();
            Time.In(1, [&] { way.Unload(form); });
            EXPECT_FALSE(form.Wait(60));
            EXPECT_LT(Time.Now(), begin + 60) << "the wait is over with the form";
            EXPECT_FALSE(form.Loaded() || Program.Find("A") || WindowOf(form).isVisible());
            Seen.clear();
            SendLateEvents(form);
            Program.Unload(form);
            Time.Wait(10, [] { return false; });
            EXPECT_EQ(Seen, Log{});
            EXPECT_EQ(ScriptedForm::Alive, 2) << "while its routine is under way";
            returned = true;
        };
        ClickOn(form.First);
        EXPECT_TRUE(returned);
        Pump();
        EXPECT_EQ(ScriptedForm::Alive, 1);
        EXPECT_EQ(Time.TimersRunning(), 0);
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
}

}  // namespace
}  // namespace trameli
