// Which keys reach a form, its controls and its buttons.
#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "platform/combo_box.h"
#include "platform/qt/desktop_dialogs.h"
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
};

TEST_F(KeysTest, HaveTheirCodesAndShiftBits) {
    struct Row {
        int Key;
        Qt::KeyboardModifiers Modifiers;
        int Code;
        int Bits;
    };
    const Row rows[] = {
        {Qt::Key_Left, {}, 37, 0},
        {Qt::Key_Up, Qt::ShiftModifier, 38, 1},
        {Qt::Key_Right, Qt::ControlModifier, 39, 2},
        {Qt::Key_Down, Qt::AltModifier, 40, 4},
        {Qt::Key_Left, Qt::KeypadModifier, 37, 0},
        {Qt::Key_2, Qt::KeypadModifier, 98, 0},
        {Qt::Key_8, {}, 56, 0},
        {Qt::Key_Return, {}, 13, 0},
        {Qt::Key_Enter, Qt::KeypadModifier, 13, 0},
        {Qt::Key_Escape, {}, 27, 0},
        {Qt::Key_Z, Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier, 90, 7},
        {Qt::Key_F1, {}, 112, 0},
        {Qt::Key_F12, {}, 123, 0},
        {Qt::Key_VolumeUp, {}, 0, 0},
    };
    std::vector<std::pair<int, int>> seen;
    A.Board.KeyUp = [&](int code, int bits) { seen.emplace_back(code, bits); };
    A.Board.SetFocus();
    for (const Row& row : rows) {
        seen.clear();
        Seen.clear();
        Send(QEvent::KeyPress, row.Key, false, row.Modifiers);
        Send(QEvent::KeyRelease, row.Key, false, row.Modifiers);
        EXPECT_EQ(seen, (std::vector{std::pair{row.Code, row.Bits}})) << "key " << row.Key;
        EXPECT_EQ(Seen, Log{"A KeyUp " + std::to_string(row.Code)}) << "key " << row.Key;
    }
}

TEST_F(KeysTest, HeldDownAreOneStroke) {
    struct Row {
        int Key;
        InteractiveControl& On;
        Log Events;
    };
    const Row rows[] = {
        {Qt::Key_Right, A.Board, {"A KeyUp 39"}},
        {Qt::Key_Space, A.First, {"A KeyUp 32", "A First_KeyUp 32", "A First_Click"}},
        {Qt::Key_Return, A.First, {"A KeyUp 13", "A First_KeyUp 13", "A First_Click"}},
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

TEST_F(KeysTest, ThatTheFormKeepsNeverReachItsControl) {
    A.First.SetFocus();
    bool keep = true;
    Scripts["A"].KeyDown = [&](ScriptedForm& self, int code) {
        self.Note("KeyDown " + std::to_string(code));
        return keep;
    };
    Hold(Qt::Key_Space, true);
    keep = false;  // what was said at the press holds until the release
    Send(QEvent::KeyPress, Qt::Key_Space, true);
    Send(QEvent::KeyRelease, Qt::Key_Space, false);
    EXPECT_EQ(Seen, (Log{"A KeyDown 32", "A KeyUp 32"}));
    Seen.clear();
    Tap(A, Qt::Key_Space);
    EXPECT_EQ(Seen, (Log{"A KeyDown 32", "A KeyUp 32", "A First_KeyUp 32", "A First_Click"}));
}

// Releases whose press went elsewhere.

TEST_F(KeysTest, PressedInAnotherFormAreNotReleasedInThisOne) {
    ScriptedForm& front = Bring("B");
    front.Board.SetFocus();
    Press(front, Qt::Key_Right);
    // And back again: the form that saw the press lost the keyboard meanwhile.
    for (ScriptedForm* form : {&A, &front}) {
        Bring(form->Name());
        Release(*form, Qt::Key_Right);
        EXPECT_EQ(Seen, Log{});
    }
    Tap(front, Qt::Key_Right);
    EXPECT_EQ(Seen, Log{"B KeyUp 39"});
}

TEST_F(KeysTest, BelongToWhomTheyWerePressedFor) {
    using Keys = std::vector<std::pair<char, QKeyCombination>>;  // press, release or tap
    const QKeyCombination menu = Qt::ALT | Qt::Key_M;
    struct Row {
        const char* What;
        Keys Strokes;
        Log Events;
    };
    const Row rows[] = {
        {"several at once are released each on its own",
         {{'p', Qt::Key_Left}, {'p', Qt::Key_Up}, {'r', Qt::Key_Left}, {'r', Qt::Key_Up}},
         {"A KeyUp 37", "A KeyUp 38"}},
        {"one that chooses a menu entry is the menu's",
         {{'t', menu}, {'t', Qt::Key_Down}, {'p', Qt::Key_Return}, {'r', Qt::Key_Return}},
         {"A Other_Click"}},
        {"one that opened the menu is the menu's too",
         {{'p', menu}, {'t', Qt::Key_E}, {'r', menu}},
         {"A Entry_Click"}},
        {"one held when a menu opens belongs to nobody after it",
         {{'p', Qt::Key_Down},
          {'p', menu},
          {'r', Qt::Key_Down},
          {'p', Qt::Key_Down},
          {'p', Qt::Key_Return},
          {'r', Qt::Key_Return},
          {'r', Qt::Key_Down}},
         {"A Other_Click"}},
        {"a shortcut is the menu's, but Ctrl itself is the form's",
         {{'p', Qt::CTRL | Qt::Key_E}, {'r', Qt::CTRL | Qt::Key_E}},
         {"A Entry_Click", "A KeyUp 17"}},
        {"arrows that walk the menu bar are the bar's, but not the first after it",
         {{'t', Qt::Key_Alt},
          {'t', Qt::Key_Right},
          {'t', Qt::Key_Left},
          {'t', Qt::Key_Escape},
          {'t', Qt::Key_Left}},
         {"A KeyUp 18", "A KeyUp 37"}},
    };
    for (const Row& row : rows) {
        A.Board.SetFocus();
        Seen.clear();
        for (const auto& [how, key] : row.Strokes) {
            const auto stroke = how == 'p' ? Press : how == 'r' ? Release : Tap;
            stroke(A, key.key(), key.keyboardModifiers());
        }
        EXPECT_EQ(Seen, row.Events) << row.What;
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << row.What;
    }
}

TEST_F(KeysTest, OfTheMenuBarGoToAControlThatTheFormFetchesThemFor) {
    Tap(A, Qt::Key_Alt);
    ASSERT_TRUE(qobject_cast<QMenuBar*>(QApplication::focusWidget()));
    Seen.clear();
    Scripts["A"].KeyDown = [](ScriptedForm& self, int) {
        self.First.SetFocus();
        return false;
    };
    Tap(A, Qt::Key_Space);
    EXPECT_EQ(Seen, (Log{"A KeyUp 32", "A First_KeyUp 32", "A First_Click"}));
}

TEST_F(KeysTest, ThatMeetAMessageBoxAreTheBoxes) {
    DesktopDialogs dialogs;
    for (const int key : {int{Qt::Key_Return}, int{Qt::Key_Space}, int{Qt::Key_Escape}}) {
        for (const bool heldBefore : {false, true}) {
            A.First.SetFocus();
            if (heldBefore) {
                Press(A, key);
            }
            QTimer::singleShot(0, [&] {
                QWidget* const box = QApplication::activeModalWidget();
                ASSERT_NE(box, nullptr);
                Pump();
                EXPECT_TRUE(box->isActiveWindow());
                if (heldBefore) {
                    box->close();
                    return;
                }
                QTest::keyPress(box->windowHandle(), static_cast<Qt::Key>(key));
                if (box->isVisible()) {
                    QTest::keyRelease(box->windowHandle(), static_cast<Qt::Key>(key));
                }
            });
            dialogs.Message("text", "title", Icon::Critical, Buttons::Ok);
            Pump();
            Seen.clear();
            Release(A, key);
            EXPECT_EQ(Seen, Log{}) << "key " << key << (heldBefore ? ", held before" : "");
        }
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

// Buttons.

TEST_F(KeysTest, DownTwoAtOnceAreOneClick) {
    A.First.SetFocus();
    for (const auto stroke : {Press, Release}) {
        stroke(A, Qt::Key_Space, {});
        stroke(A, Qt::Key_Return, {});
    }
    EXPECT_EQ(Times("A First_Click"), 1);
}

TEST_F(KeysTest, DoNotPressAButtonThatWasNotReadyAllTheTime) {
    struct Case {
        const char* What;
        std::function<void()> WhileDown;
    };
    const Case cases[] = {
        {"it got the focus meanwhile", [this] { A.Second.SetFocus(); }},
        {"there and back again is another matter than having stayed",
         [this] {
             A.Second.SetFocus();
             A.First.SetFocus();
         }},
        {"disabled for a while",
         [this] {
             A.First.Enabled(false);
             A.First.Enabled(true);
             A.First.SetFocus();
         }},
        {"hidden for a while",
         [this] {
             A.First.Visible(false);
             A.First.Visible(true);
             A.First.SetFocus();
         }},
        {"what the form does with the key gives the focus to a button, which sees the release",
         [this] {
             A.Board.SetFocus();
             Scripts["A"].KeyUp = [](ScriptedForm& self, int) { self.Second.SetFocus(); };
         }},
    };
    for (const Case& one : cases) {
        A.First.SetFocus();
        Press(A, Qt::Key_Space);
        one.WhileDown();
        Release(A, Qt::Key_Space);
        EXPECT_EQ(Times("A First_Click") + Times("A Second_Click"), 0) << one.What;
    }
    Tap(A, Qt::Key_Space);
    EXPECT_EQ(Times("A Second_Click"), 1);
}

TEST_F(KeysTest, ReachAControlThatHadTheFocusWhenTheyWentDown) {
    A.Board.SetFocus();
    Press(A, Qt::Key_Space);
    A.First.SetFocus();
    Release(A, Qt::Key_Space);
    EXPECT_EQ(Seen, Log{"A KeyUp 32"});
}

TEST_F(KeysTest, OfArrowsDoNotMoveTheFocusFromAButton) {
    A.First.SetFocus();
    for (const int key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down}) {
        Tap(A, key);
        EXPECT_TRUE(WidgetOf(A.First).hasFocus()) << key;
    }
    EXPECT_EQ(Times("A KeyUp 37") + Times("A First_KeyUp 37"), 2);
}

// Switches.

TEST_F(KeysTest, OfSwitchesThatNobodyCanMeanDoNothingAtAll) {
    bool inUse = true;
    Program.SwitchesInUse([&] { return inUse; });
    struct Row {
        const char* What;
        std::function<void()> Before;
        double Seconds;  // from then to the press
        Qt::Key Key;
        bool Meant;
    };
    const auto tap = [&] { Tap(A, Qt::Key_Space); };
    const auto front = [&] { Program.Unload(Bring("B")); };
    const auto appear = [](CommandButton& button) {
        button.Visible(false);
        button.Visible(true);
    };
    const Row rows[] = {
        {"a stroke", [] {}, 0, Qt::Key_Space, true},
        {"a bounce", tap, 0.14, Qt::Key_Space, false},
        {"a bounce after a bounce",
         [&] {
             tap();
             Time.Advance(0.1);
             tap();
         },
         0.1, Qt::Key_Space, false},
        {"the next stroke", tap, 0.16, Qt::Key_Space, true},
        {"another key", tap, 0, Qt::Key_Return, true},
        {"the window came to the front", front, 0.49, Qt::Key_Space, false},
        {"its letter with Alt", front, 0.49, Qt::Key_F, false},
        {"some time after that", front, 0.51, Qt::Key_Space, true},
        {"the button appeared", [&] { appear(A.First); }, 0.49, Qt::Key_Space, false},
        {"another button appeared", [&] { appear(A.Second); }, 0, Qt::Key_Space, true},
        {"the button was enabled",
         [&] {
             A.First.Enabled(false);
             A.First.Enabled(true);
         },
         0.49, Qt::Key_Space, false},
        {"Tab goes on in any case", front, 0, Qt::Key_Tab, true},
    };
    for (const bool used : {true, false}) {
        inUse = used;
        for (const Row& row : rows) {
            Time.Advance(10);
            A.First.SetFocus();
            row.Before();
            Pump();
            A.First.SetFocus();
            Time.Advance(row.Seconds);
            Seen.clear();
            Press(A, row.Key, row.Key == Qt::Key_F ? Qt::AltModifier : Qt::NoModifier);
            Release(A, row.Key);
            EXPECT_EQ(!Seen.empty(), row.Meant || !used) << row.What << ", " << used;
        }
    }
}

TEST_F(KeysTest, OfSwitchesPressNothingNewThatTheFormFetchesThemFor) {
    Program.SwitchesInUse([] { return true; });
    Scripts["A"].KeyDown = [](ScriptedForm& self, int) {
        self.Second.SetFocus();
        return false;
    };
    for (const bool isNew : {true, false}) {
        Time.Advance(10);
        A.Board.SetFocus();
        A.Second.Visible(!isNew);
        A.Second.Visible(true);
        Seen.clear();
        Tap(A, Qt::Key_Space);
        EXPECT_EQ(Times("A KeyUp 32"), 1) << "the form was told of the press";
        EXPECT_EQ(Times("A Second_Click"), isNew ? 0 : 1);
    }
}

TEST_F(KeysTest, AltOrCtrlWithALetterArePressedOnceHoweverLong) {
    OptionButton option(A, "Option", {200, 2500, 2000, 300}, "&Option");
    option.Click = [&] { Seen.push_back("A Option_Click"); };
    A.Board.SetFocus();
    struct Row {
        Qt::Key Key;
        Qt::KeyboardModifiers Modifier;
        const char* Event;
    };
    const Row rows[] = {
        {Qt::Key_F, Qt::AltModifier, "A First_Click"},
        {Qt::Key_O, Qt::AltModifier, "A Option_Click"},
        {Qt::Key_E, Qt::ControlModifier, "A Entry_Click"},
    };
    for (const Row& row : rows) {
        Press(A, row.Key, row.Modifier);
        EXPECT_EQ(Times(row.Event), 1);
        for (int i = 0; i < 5; ++i) {
            qt_sendShortcutOverrideEvent(WindowOf(A).windowHandle(), 0, row.Key, row.Modifier,
                                         QString(QChar(row.Key)).toLower(), true);
            Pump();
        }
        Release(A, row.Key, row.Modifier);
        EXPECT_EQ(Times(row.Event), 1);
        EXPECT_EQ(Times("A KeyUp " + std::to_string(row.Key)), 0) << "the press was not the form's";
    }
}

}  // namespace
}  // namespace trameli
