// Which keys reach a form, its controls and its buttons.
#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "platform/combo_box.h"
#include "platform/frame.h"
#include "platform/keys.h"
#include "platform/qt/desktop_services.h"
#include "platform/qt/form_window.h"
#include "platform/scripted_form.h"

namespace trameli {
namespace {

class KeysTest : public ScriptedProgram {
protected:
    /// A key event as the window system reports it, also those that it makes up by itself.
    static void Send(QEvent::Type type, QWidget& window, int key, bool autoRepeat,
                     Qt::KeyboardModifiers modifiers = Qt::NoModifier, quint32 scanCode = 0) {
        QKeyEvent event(type, key, modifiers, scanCode, 0, 0, QString(), autoRepeat);
        QCoreApplication::sendEvent(static_cast<QObject*>(window.windowHandle()), &event);
        Pump();
    }
    /// A key held down: the press, and `repeats` more with or without releases between them.
    static void Hold(QWidget& window, int key, int repeats, bool releasesToo) {
        Send(QEvent::KeyPress, window, key, false);
        for (int i = 0; i < repeats; ++i) {
            if (releasesToo) {
                Send(QEvent::KeyRelease, window, key, true);
            }
            Send(QEvent::KeyPress, window, key, true);
        }
    }
};

TEST_F(KeysTest, HaveTheirCodes) {
    struct Row {
        int Key;
        Qt::KeyboardModifiers Modifiers;
        int Code;
    };
    const Row rows[] = {
        {Qt::Key_Left, {}, 37},
        {Qt::Key_Up, {}, 38},
        {Qt::Key_Right, {}, 39},
        {Qt::Key_Down, {}, 40},
        {Qt::Key_Left, Qt::KeypadModifier, 37},
        {Qt::Key_2, Qt::KeypadModifier, 98},
        {Qt::Key_4, Qt::KeypadModifier, 100},
        {Qt::Key_6, Qt::KeypadModifier, 102},
        {Qt::Key_8, Qt::KeypadModifier, 104},
        {Qt::Key_8, {}, 56},
        {Qt::Key_Return, {}, 13},
        {Qt::Key_Enter, Qt::KeypadModifier, 13},
        {Qt::Key_Space, {}, 32},
        {Qt::Key_Escape, {}, 27},
        {Qt::Key_A, {}, 65},
        {Qt::Key_Z, Qt::ShiftModifier, 90},
        {Qt::Key_F1, {}, 112},
        {Qt::Key_F12, {}, 123},
        {Qt::Key_Shift, Qt::ShiftModifier, 16},
        {Qt::Key_Control, Qt::ControlModifier, 17},
        {Qt::Key_VolumeUp, {}, 0},
        {Qt::Key_unknown, {}, 0},
    };
    ScriptedForm& form = Bring("A");
    form.Board.SetFocus();
    for (const Row& row : rows) {
        Seen.clear();
        Send(QEvent::KeyPress, WindowOf(form), row.Key, false, row.Modifiers);
        Send(QEvent::KeyRelease, WindowOf(form), row.Key, false, row.Modifiers);
        EXPECT_EQ(Seen, Log{"A KeyUp " + std::to_string(row.Code)}) << "key " << row.Key;
    }
}

TEST_F(KeysTest, BringTheShiftBits) {
    ScriptedForm& form = Bring("A");
    std::vector<int> bits;
    form.Board.KeyUp = [&](int, int shift) { bits.push_back(shift); };
    form.Board.SetFocus();
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ShiftModifier),
          Qt::KeyboardModifiers(Qt::ControlModifier), Qt::KeyboardModifiers(Qt::AltModifier),
          Qt::KeyboardModifiers(Qt::KeypadModifier),
          Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier}) {
        Send(QEvent::KeyPress, WindowOf(form), Qt::Key_Right, false, modifiers);
        Send(QEvent::KeyRelease, WindowOf(form), Qt::Key_Right, false, modifiers);
    }
    EXPECT_EQ(bits, (std::vector{0, 1, 2, 4, 0, 7}));
}

TEST_F(KeysTest, HeldDownAreOnePressAndOneRelease) {
    ScriptedForm& form = Bring("A");
    form.Board.SetFocus();
    for (const bool releasesToo : {false, true}) {
        Seen.clear();
        Hold(WindowOf(form), Qt::Key_Right, 10, releasesToo);
        EXPECT_EQ(Seen, Log{});
        Send(QEvent::KeyRelease, WindowOf(form), Qt::Key_Right, false);
        EXPECT_EQ(Seen, Log{"A KeyUp 39"});
        Send(QEvent::KeyRelease, WindowOf(form), Qt::Key_Right, false);
        EXPECT_EQ(Seen, Log{"A KeyUp 39"}) << "one release belongs to one press";
    }
}

TEST_F(KeysTest, AreThemselvesWhateverNumLockDoesMeanwhile) {
    constexpr quint32 padFour = 83;
    QWidget& window = WindowOf(Bring("A"));
    Send(QEvent::KeyPress, window, Qt::Key_4, false, Qt::KeypadModifier, padFour);
    Send(QEvent::KeyRelease, window, Qt::Key_Left, false, Qt::KeypadModifier, padFour);
    EXPECT_EQ(Seen, Log{"A KeyUp 37"});
    Send(QEvent::KeyRelease, window, Qt::Key_4, false, Qt::KeypadModifier, padFour);
    EXPECT_EQ(Seen.size(), 1U);
}

TEST_F(KeysTest, GoToTheFormBeforeItsControl) {
    ScriptedForm& form = Bring("A");
    form.First.SetFocus();
    Tap(form, Qt::Key_Space);
    EXPECT_EQ(Seen, (Log{"A KeyUp 32", "A First_KeyUp 32", "A First_Click"}));
}

TEST_F(KeysTest, ThatTheFormKeepsNeverReachItsControl) {
    ScriptedForm& form = Bring("A");
    form.First.SetFocus();
    bool keep = true;
    Scripts["A"].KeyDown = [&](ScriptedForm& self, int code) {
        self.Note("KeyDown " + std::to_string(code));
        return keep;
    };
    Hold(WindowOf(form), Qt::Key_Space, 3, true);
    keep = false;  // what was said at the press holds until the release
    Send(QEvent::KeyPress, WindowOf(form), Qt::Key_Space, true);
    Send(QEvent::KeyRelease, WindowOf(form), Qt::Key_Space, false);
    EXPECT_EQ(Seen, (Log{"A KeyDown 32", "A KeyUp 32"}));
    Seen.clear();
    Tap(form, Qt::Key_Space);
    EXPECT_EQ(Seen, (Log{"A KeyDown 32", "A KeyUp 32", "A First_KeyUp 32", "A First_Click"}));
}

TEST_F(KeysTest, WhosePressUnloadsTheFormGoNoFurther) {
    Bring("B");
    ScriptedForm& form = Bring("A");
    form.First.SetFocus();
    Scripts["A"].KeyDown = [](ScriptedForm& self, int) {
        self.Forms().Unload(self);
        return false;
    };
    Press(form, Qt::Key_Tab);
    EXPECT_EQ(Seen, (Log{"A Unload", "B Activate"}));
    Seen.clear();
    Release(Get("B"), Qt::Key_Tab);
    EXPECT_EQ(Seen, Log{});
}

// Releases whose press went elsewhere.

TEST_F(KeysTest, PressedInAnotherFormAreNotReleasedInThisOne) {
    Bring("A");
    ScriptedForm& front = Bring("B");
    front.Board.SetFocus();
    Press(front, Qt::Key_Right);
    Program.Show("A");
    Pump();
    Seen.clear();
    Release(Get("A"), Qt::Key_Right);
    EXPECT_EQ(Seen, Log{});
    // And back again: the form that saw the press lost the keyboard meanwhile.
    Program.Show("B");
    Pump();
    Seen.clear();
    Release(front, Qt::Key_Right);
    EXPECT_EQ(Seen, Log{});
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
         {{'p', menu},
          {'r', menu},
          {'t', Qt::Key_Down},
          {'p', Qt::Key_Return},
          {'r', Qt::Key_Return}},
         {"A Other_Click"}},
        {"that of the numeric pad too",
         {{'p', menu},
          {'r', menu},
          {'t', Qt::Key_Down},
          {'p', Qt::Key_Enter},
          {'r', Qt::Key_Enter}},
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
    };
    ScriptedForm& form = Bring("A");
    for (const Row& row : rows) {
        form.Board.SetFocus();
        Seen.clear();
        for (const auto& [how, key] : row.Strokes) {
            const auto stroke = how == 'p' ? Press : how == 'r' ? Release : Tap;
            stroke(form, key.key(), key.keyboardModifiers());
        }
        EXPECT_EQ(Seen, row.Events) << row.What;
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << row.What;
    }
}

TEST_F(KeysTest, ThatWalkTheMenuBarAreTheBars) {
    ScriptedForm& form = Bring("A");
    form.Board.SetFocus();
    Tap(form, Qt::Key_Alt);
    auto* const bar = dynamic_cast<FormWindow&>(WindowOf(form)).menuBar();
    ASSERT_TRUE(bar->hasFocus());
    Seen.clear();
    Tap(form, Qt::Key_Right);
    Tap(form, Qt::Key_Left);
    Tap(form, Qt::Key_Escape);
    EXPECT_EQ(Seen, Log{});
    EXPECT_FALSE(bar->hasFocus());
    Tap(form, Qt::Key_Left);
    EXPECT_EQ(Seen, Log{"A KeyUp 37"});
}

TEST_F(KeysTest, OfTheMenuBarGoToAControlThatTheFormFetchesThemFor) {
    ScriptedForm& form = Bring("A");
    form.First.SetFocus();
    Tap(form, Qt::Key_Alt);
    ASSERT_TRUE(dynamic_cast<FormWindow&>(WindowOf(form)).menuBar()->hasFocus());
    Seen.clear();
    Scripts["A"].KeyDown = [](ScriptedForm& self, int) {
        self.First.SetFocus();
        return false;
    };
    Tap(form, Qt::Key_Space);
    EXPECT_EQ(Seen, (Log{"A KeyUp 32", "A First_KeyUp 32", "A First_Click"}));
}

TEST_F(KeysTest, HeldThroughAMenuEntryAreNoPressOfTheForm) {
    ScriptedForm& form = Bring("A");
    form.First.SetFocus();
    Press(form, Qt::Key_M, Qt::AltModifier);
    Release(form, Qt::Key_M, Qt::AltModifier);
    Press(form, Qt::Key_Return);
    ASSERT_EQ(Seen, Log{"A Entry_Click"});
    Send(QEvent::KeyPress, WindowOf(form), Qt::Key_Return, true);
    Send(QEvent::KeyPress, WindowOf(form), Qt::Key_Return, true);
    Send(QEvent::KeyRelease, WindowOf(form), Qt::Key_Return, false);
    EXPECT_EQ(Seen, Log{"A Entry_Click"});
}

TEST_F(KeysTest, ThatAnswerAMessageBoxAreTheBoxes) {
    ScriptedForm& form = Bring("A");
    DesktopDialogs dialogs;
    form.First.SetFocus();
    for (const int key : {int{Qt::Key_Return}, int{Qt::Key_Space}, int{Qt::Key_Escape}}) {
        Seen.clear();
        form.Second.Click = [&] {
            QTimer::singleShot(0, [&] {
                QWidget* box = QApplication::activeModalWidget();
                ASSERT_NE(box, nullptr);
                Pump();
                EXPECT_TRUE(box->isActiveWindow());
                QTest::keyPress(box->windowHandle(), static_cast<Qt::Key>(key));
                if (box->isVisible()) {
                    QTest::keyRelease(box->windowHandle(), static_cast<Qt::Key>(key));
                }
            });
            dialogs.Critical("text", "title");
        };
        ClickOn(form.Second);
        form.First.SetFocus();
        Seen.clear();
        Release(form, key);
        EXPECT_EQ(Seen, Log{}) << "key " << key;
    }
}

TEST_F(KeysTest, HeldWhenAMessageBoxOpensAreNotReleased) {
    ScriptedForm& form = Bring("A");
    DesktopDialogs dialogs;
    form.First.SetFocus();
    Press(form, Qt::Key_Space);
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    dialogs.Critical("text", "title");
    Pump();
    Seen.clear();
    Release(form, Qt::Key_Space);
    EXPECT_EQ(Seen, Log{});
}

TEST_F(KeysTest, ThatChooseInADroppedDownListAreTheLists) {
    ScriptedForm& form = Bring("A");
    ComboBox combo(form, "Combo", {200, 2500, 2000, 300});
    combo.AddItem("one");
    combo.AddItem("two");
    combo.Click = [&] { Seen.push_back("choice " + combo.Text()); };
    combo.SetFocus();
    Tap(form, Qt::Key_Space);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    Tap(form, Qt::Key_Down);
    Press(form, Qt::Key_Return);
    ASSERT_EQ(QApplication::activePopupWidget(), nullptr);
    Release(form, Qt::Key_Return);
    EXPECT_EQ(Seen, Log{"choice two"});
}

// Buttons.

TEST_F(KeysTest, SpaceAndEnterPressAButtonOnTheirReleaseAndOnlyOnce) {
    ScriptedForm& form = Bring("A");
    for (const int key : {int{Qt::Key_Space}, int{Qt::Key_Return}, int{Qt::Key_Enter}}) {
        form.First.SetFocus();
        Hold(WindowOf(form), key, 5, true);
        EXPECT_EQ(Times("A First_Click"), 0);
        Send(QEvent::KeyRelease, WindowOf(form), key, false);
        EXPECT_EQ(Times("A First_Click"), 1) << "key " << key;
        Send(QEvent::KeyRelease, WindowOf(form), key, false);
        EXPECT_EQ(Times("A First_Click"), 1) << "key " << key;
        Seen.clear();
    }
    Tap(form, Qt::Key_A);
    Tap(form, Qt::Key_Escape);
    EXPECT_EQ(Times("A First_Click"), 0);
}

TEST_F(KeysTest, DoNotPressAButtonThatGotTheFocusMeanwhile) {
    ScriptedForm& form = Bring("A");
    form.First.SetFocus();
    Press(form, Qt::Key_Space);
    form.Second.SetFocus();
    Seen.clear();
    Release(form, Qt::Key_Space);
    EXPECT_EQ(Seen, Log{"A KeyUp 32"});
    // There and back again is another matter than having stayed.
    form.First.SetFocus();
    Press(form, Qt::Key_Space);
    form.Second.SetFocus();
    form.First.SetFocus();
    Release(form, Qt::Key_Space);
    EXPECT_EQ(Times("A First_Click") + Times("A Second_Click"), 0);
}

TEST_F(KeysTest, DoNotPressAButtonThatGetsTheFocusFromTheForm) {
    // What a form does with the key may give the focus to a button, which sees the same release.
    ScriptedForm& form = Bring("A");
    form.Board.SetFocus();
    Scripts["A"].KeyUp = [](ScriptedForm& self, int) { self.Second.SetFocus(); };
    Tap(form, Qt::Key_Space);
    EXPECT_EQ(Times("A Second_Click"), 0);
    Tap(form, Qt::Key_Space);
    EXPECT_EQ(Times("A Second_Click"), 1);
}

TEST_F(KeysTest, DoNotPressAButtonThatWentDisabledOrHiddenMeanwhile) {
    ScriptedForm& form = Bring("A");
    const auto sets = {+[](ScriptedForm& f, bool on) { f.First.Enabled(on); },
                       +[](ScriptedForm& f, bool on) { f.First.Visible(on); }};
    for (const auto& set : sets) {
        form.First.SetFocus();
        Press(form, Qt::Key_Space);
        set(form, false);
        set(form, true);
        form.First.SetFocus();
        Release(form, Qt::Key_Space);
    }
    EXPECT_EQ(Times("A First_Click"), 0);
}

TEST_F(KeysTest, TwoDownOnAButtonAreOneClick) {
    ScriptedForm& form = Bring("A");
    form.First.SetFocus();
    Press(form, Qt::Key_Space);
    Press(form, Qt::Key_Return);
    Release(form, Qt::Key_Space);
    Release(form, Qt::Key_Return);
    EXPECT_EQ(Times("A First_Click"), 1);
}

TEST_F(KeysTest, ChooseAnOptionButtonOnTheirRelease) {
    ScriptedForm& form = Bring("A");
    Frame frame(form, "Frame", {200, 1000, 4000, 1500}, "Frame");
    OptionButton one(frame, {"Option", 0}, {100, 300, 2000, 300}, "one");
    OptionButton two(frame, {"Option", 1}, {100, 700, 2000, 300}, "two");
    two.Click = [&] { Seen.push_back("two"); };
    one.Value(true);
    two.SetFocus();
    Seen.clear();
    Press(form, Qt::Key_Space);
    EXPECT_FALSE(two.Value());
    Release(form, Qt::Key_Space);
    EXPECT_TRUE(two.Value());
    EXPECT_FALSE(one.Value());
    EXPECT_EQ(Seen, (Log{"A KeyUp 32", "two"}));
    Tap(form, Qt::Key_Space);
    EXPECT_EQ(Seen.size(), 3U) << "it is chosen already";
}

TEST_F(KeysTest, AltOrCtrlWithALetterArePressedOnceHoweverLong) {
    ScriptedForm& form = Bring("A");
    OptionButton option(form, "Option", {200, 2500, 2000, 300}, "&Option");
    option.Click = [&] { Seen.push_back("A Option_Click"); };
    form.Board.SetFocus();
    struct Row {
        Qt::Key Key;
        char Letter;
        Qt::KeyboardModifiers Modifier;
        const char* Event;
    };
    const Row rows[] = {
        {Qt::Key_F, 'f', Qt::AltModifier, "A First_Click"},
        {Qt::Key_O, 'o', Qt::AltModifier, "A Option_Click"},
        {Qt::Key_E, 'e', Qt::ControlModifier, "A Entry_Click"},
    };
    for (const Row& row : rows) {
        Press(form, row.Key, row.Modifier);
        EXPECT_EQ(Times(row.Event), 1);
        for (int i = 0; i < 5; ++i) {
            qt_sendShortcutOverrideEvent(WindowOf(form).windowHandle(), 0, row.Key, row.Modifier,
                                         QString(QLatin1Char(row.Letter)), true);
            Pump();
        }
        Release(form, row.Key, row.Modifier);
        EXPECT_EQ(Times(row.Event), 1);
        EXPECT_EQ(Times("A KeyUp " + std::to_string(row.Key)), 0) << "the press was not the form's";
    }
}

TEST_F(KeysTest, AThousandTimesInARowAreAThousandReleases) {
    ScriptedForm& form = Bring("A");
    form.Board.SetFocus();
    int released = 0;
    Scripts["A"].KeyUp = [&](ScriptedForm& self, int) {
        ++released;
        if (released % 100 == 0) {
            EXPECT_TRUE(self.Wait(0.5));  // more keys arrive in the middle of a routine
        }
    };
    for (int i = 0; i < 1000; ++i) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QCoreApplication::postEvent(static_cast<QObject*>(WindowOf(form).windowHandle()),
                                        new QKeyEvent(type, Qt::Key_Right, Qt::NoModifier));
        }
    }
    Pump();
    EXPECT_EQ(released, 1000);
}

}  // namespace
}  // namespace trameli
