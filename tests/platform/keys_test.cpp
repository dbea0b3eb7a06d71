// Which keys reach a form, its controls and its buttons.
#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <map>
#include <utility>

#include "platform/combo_box.h"
#include "platform/scripted_form.h"

namespace trameli {
namespace {

class KeysTest : public ScriptedProgram {
protected:
    /// A key event as the window system reports it, also those that it makes up by itself.
    void Send(QEvent::Type type, int key, bool autoRepeat, Qt::KeyboardModifiers modifiers = {},
              quint32 scanCode = 0) {
        QKeyEvent event(type, key, modifiers, scanCode, 0, 0, QString(), autoRepeat);
        QCoreApplication::sendEvent(static_cast<QObject*>(WindowOf(A).windowHandle()), &event);
        Pump();
    }
    /// Does what a line says, as in "press Left, focus First, release Left, tap Alt+M". Keys are
    /// those of the form that came to the front last.
    void Do(const std::string& line) {
        for (const QString& step : QString::fromStdString(line).split(", ", Qt::SkipEmptyParts)) {
            Actions.at(step.section(' ', 0, 0))(step.section(' ', 1));
        }
    }
    /// What was noted of A since the last call, in a line, and of other forms with their names.
    std::string Told() {
        QStringList told;
        for (const std::string& note : std::exchange(Seen, {})) {
            const QString text = QString::fromStdString(note);
            told << (text.startsWith("A ") ? text.sliced(2) : text);
        }
        return told.join(", ").toStdString();
    }
    /// A key held down: the press, and some more with or without releases between them.
    void Hold(int key, bool releasesToo) {
        Send(QEvent::KeyPress, key, false);
        for (int i = 0; i < 5; ++i) {
            if (releasesToo) {
                Send(QEvent::KeyRelease, key, true);
            }
            Send(QEvent::KeyPress, key, true);
        }
    }

    ScriptedForm& A = Bring("A");
    ScriptedForm* Front = &A;

private:
    using Hand = void (*)(Form&, int, Qt::KeyboardModifiers);
    std::function<void(const QString&)> With(Hand hand) {
        return [this, hand](const QString& name) {
            const QKeyCombination key = QKeySequence::fromString(name)[0];
            hand(*Front, key.key(), key.keyboardModifiers());
        };
    }
    std::function<void(const QString&)> Setting(const char* property, bool value) {
        return
            [this, property, value](const QString& name) { ControlOf(name).Set(property, value); };
    }
    InteractiveControl& ControlOf(const QString& name) {
        const auto& controls = A.Controls();
        return dynamic_cast<InteractiveControl&>(**std::find_if(
            controls.begin(), controls.end(),
            [&](const Control* control) { return control->Name() == name.toStdString(); }));
    }

    const std::map<QString, std::function<void(const QString&)>> Actions{
        {"press", With(Press)},
        {"release", With(Release)},
        {"tap", With(Tap)},
        {"focus", [this](const QString& name) { ControlOf(name).SetFocus(); }},
        {"hide", Setting("Visible", false)},
        {"show", Setting("Visible", true)},
        {"disable", Setting("Enabled", false)},
        {"enable", Setting("Enabled", true)},
        {"wait", [this](const QString& seconds) { Time.Advance(seconds.toDouble()); }},
        {"front",
         [this](const QString& name) {
             Program.Show(name.toStdString());
             Pump();
             Front = &Get(name.toStdString());
         }},
        {"fetch-for",
         [this](const QString& name) {
             Scripts["A"].KeyDown = [this, name](ScriptedForm&, int) {
                 ControlOf(name).SetFocus();
                 return false;
             };
         }},
        {"give-to",
         [this](const QString& name) {
             Scripts["A"].KeyUp = [this, name](ScriptedForm&, int) { ControlOf(name).SetFocus(); };
         }},
    };
};

TEST_F(KeysTest, HeldDownAreOneStroke) {
    struct Row {
        int Key;
        InteractiveControl& On;
        Log Events;
    };
    const Row rows[] = {
        {Qt::Key_Right, A.Board, {"A KeyUp 39"}},
        {Qt::Key_Space, A.First, {"A KeyUp 32", "A First_KeyUp 32", "A First_Click"}},
        {Qt::Key_Enter, A.First, {"A KeyUp 13", "A First_KeyUp 13", "A First_Click"}},
    };
    for (const Row& row : rows) {
        for (const bool releasesToo : {false, true}) {
            row.On.SetFocus();
            Seen.clear();
            Hold(row.Key, releasesToo);
            EXPECT_EQ(Seen, Log{});
            Send(QEvent::KeyRelease, row.Key, false);
            Send(QEvent::KeyRelease, row.Key, false);
            EXPECT_EQ(Seen, row.Events) << "key " << row.Key;
        }
    }
}

TEST_F(KeysTest, AreThemselvesWhateverNumLockDoesMeanwhile) {
    constexpr quint32 padFour = 83;
    Send(QEvent::KeyPress, Qt::Key_4, false, Qt::KeypadModifier, padFour);
    Send(QEvent::KeyRelease, Qt::Key_Left, false, Qt::KeypadModifier, padFour);
    Send(QEvent::KeyRelease, Qt::Key_4, false, Qt::KeypadModifier, padFour);
    EXPECT_EQ(Seen, Log{"A KeyUp 37"});
}

TEST_F(KeysTest, BelongToWhomTheyWerePressedFor) {
    const struct {
        const char* What;
        const char* Steps;
        const char* Told;
    } rows[] = {
        {"several at once are released each on its own",
         "focus Board, press Left, press Up, release Left, release Up", "KeyUp 37, KeyUp 38"},
        {"one that chooses a menu entry is the menu's",
         "focus Board, tap Alt+M, tap Down, press Return, release Return", "Other_Click"},
        {"one held when a menu opens belongs to nobody after it",
         "focus Board, press Down, press Alt+M, release Down, press Down, press Return, "
         "release Return, release Down",
         "Other_Click"},
        {"a shortcut is the menu's, but Ctrl itself is the form's",
         "focus Board, press Ctrl+E, release Ctrl+E", "Entry_Click, KeyUp 17"},
        {"arrows that walk the menu bar are the bar's, but not the first after it",
         "focus Board, tap Alt, tap Right, tap Left, tap Escape, tap Left", "KeyUp 18, KeyUp 37"},
        {"one of the menu bar goes to a control that the form fetches it for",
         "focus Board, tap Alt, fetch-for First, tap Space",
         "KeyUp 18, KeyUp 32, First_KeyUp 32, First_Click"},
        {"one held from form to form is released in none",
         "focus Board, press Right, front B, release Right, front A, release Right",
         "B Load, B Resize, B Activate, Activate"},
        {"two at once are one click",
         "focus First, press Space, press Return, release Space, release Return",
         "KeyUp 32, First_KeyUp 32, KeyUp 13, First_KeyUp 13, First_Click"},
        {"arrows do not lead away from a button", "focus First, tap Right, tap Space",
         "KeyUp 39, First_KeyUp 39, KeyUp 32, First_KeyUp 32, First_Click"},
        {"a button that got the focus meanwhile is not pressed",
         "focus First, press Space, focus Second, release Space", "Second_GotFocus, KeyUp 32"},
        {"nor one that the form gives the focus to for the release",
         "focus Board, give-to Second, press Space, release Space", "KeyUp 32, Second_GotFocus"},
    };
    for (const auto& row : rows) {
        Scripts["A"] = {};
        Do(row.Steps);
        EXPECT_EQ(Told(), row.Told) << row.What;
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << row.What;
    }
}

TEST_F(KeysTest, ThatChooseInADroppedDownListAreTheLists) {
    ComboBox combo(A, "Combo", {200, 2500, 2000, 300});
    combo.AddItem("one");
    combo.AddItem("two");
    combo.Click = [&] { Seen.push_back("choice " + combo.Text()); };
    combo.SetFocus();
    Tap(A, Qt::Key_Space);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    Tap(A, Qt::Key_Down);
    EXPECT_EQ(Seen, Log{}) << "only looking";
    Press(A, Qt::Key_Return);
    ASSERT_EQ(QApplication::activePopupWidget(), nullptr);
    Release(A, Qt::Key_Return);
    EXPECT_EQ(Seen, Log{"choice two"});
}

// Switches.

TEST_F(KeysTest, OfSwitchesThatNobodyCanMeanDoNothingAtAll) {
    bool inUse = true;
    Program.SwitchesInUse([&] { return inUse; });
    const struct {
        const char* Before;
        const char* Stroke;
        bool Meant;
    } rows[] = {
        {"", "tap Space", true},
        {"tap Space, wait 0.14", "tap Space", false},
        {"tap Space, wait 0.1, tap Space, wait 0.1", "tap Space", false},
        {"tap Space, wait 0.16", "tap Space", true},
        {"tap Space", "tap Return", true},
        {"front B, front A, wait 0.49", "tap Space", false},
        {"front B, front A, wait 0.49", "press Alt+F, release F", false},
        {"front B, front A, wait 0.51", "tap Space", true},
        {"front B, front A", "tap Tab", true},
        {"hide First, show First, wait 0.49", "tap Space", false},
        {"disable First, enable First, wait 0.49", "tap Space", false},
        {"hide Second, show Second", "tap Space", true},
    };
    for (const bool used : {true, false}) {
        inUse = used;
        for (const auto& row : rows) {
            SCOPED_TRACE(row.Before + (", then " + std::string(row.Stroke)));
            Scripts["A"] = {};
            Time.Advance(10);
            Do("focus First, " + std::string(row.Before) + ", focus First");
            Seen.clear();
            Do(row.Stroke);
            EXPECT_EQ(!Seen.empty(), row.Meant || !used);
        }
    }
}

TEST_F(KeysTest, OfSwitchesPressNothingNewThatTheFormFetchesThemFor) {
    Program.SwitchesInUse([] { return true; });
    for (const auto& [before, told] :
         {std::pair{"hide Second, show Second", "Second_GotFocus, KeyUp 32"},
          {"show Second", "Second_GotFocus, KeyUp 32, Second_Click"}}) {
        Time.Advance(10);
        Do("fetch-for Second, focus Board, " + std::string(before) + ", tap Space");
        EXPECT_EQ(Told(), told);
    }
}

TEST_F(KeysTest, AltOrCtrlWithALetterArePressedOnceHoweverLong) {
    A.Board.SetFocus();
    for (const auto& [key, modifier, told] :
         {std::tuple{Qt::Key_F, Qt::AltModifier, "First_Click, KeyUp 18"},
          {Qt::Key_E, Qt::ControlModifier, "Entry_Click, KeyUp 17"}}) {
        Press(A, key, modifier);
        for (int i = 0; i < 5; ++i) {
            qt_sendShortcutOverrideEvent(WindowOf(A).windowHandle(), 0, key, modifier,
                                         QString(QChar(key)).toLower(), true);
            Pump();
        }
        Release(A, key, modifier);
        EXPECT_EQ(Told(), told);
    }
}

}  // namespace
}  // namespace trameli
