// Boxes for numbers, and the keys that lead through a form of them.
#include <QAccessible>
#include <QTest>

#include "platform/bare_program.h"
#include "platform/combo_box.h"
#include "platform/command_button.h"
#include "platform/frame.h"
#include "platform/label.h"
#include "platform/up_down.h"

namespace trameli {
namespace {

/// A form with a labelled number box and its arrows, a list and three buttons.
class NumbersTest : public BareProgram {
protected:
    NumbersTest() {
        Box.Change = Noting("Box");
        Arrows.Change = Noting("Arrows");
        Ok.Click = Noting("Ok");
        Close.Click = Noting("Close");
        Other.Click = Noting("Other");
        Ok.Default(true);
        Close.Cancel(true);
        Bring();
        Box.SetFocus();
    }

    void Type(const char* keys) {
        for (; *keys != 0; ++keys) {
            QTest::keyClick(WindowOf(TheForm).windowHandle(), *keys);
        }
    }
    /// Presses the mouse button on an arrow, or lets it go there.
    void OnArrow(bool upper, bool press) {
        const QWidget& arrows = WidgetOf(Arrows);
        const QPoint there(arrows.width() / 2, upper ? 3 : arrows.height() - 3);
        const QPoint where = arrows.mapTo(&WindowOf(TheForm), there);
        QWindow* const window = WindowOf(TheForm).windowHandle();
        if (press) {
            QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, where);
        } else {
            QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, where);
        }
    }

    trameli::Frame Frame{TheForm, "Frame", {300, 300, 4500, 1500}, "Frame"};
    Label Name{Frame, "Name", {120, 360, 735, 255}, "S&inistro:"};
    TextBox Box{Frame, "Box", {960, 360, 705, 285}};
    UpDown Arrows{Frame, "Arrows", {1665, 360, 240, 285}, Box, -20, 30, 3};
    ComboBox List{TheForm, "List", {300, 1950, 1500, 450}};
    CommandButton Ok{TheForm, "Ok", {300, 2700, 1500, 600}, "&Ok"};
    CommandButton Close{TheForm, "Close", {2100, 2700, 1500, 600}, "&Close"};
    CommandButton Other{TheForm, "Other", {3900, 2700, 1500, 600}, "O&ther"};
};

TEST_F(NumbersTest, ArrowsCountFromWhatTheBoxHolds) {
    const struct {
        const char* Text;
        int Value;
        const char* Up;
        const char* Down;
    } rows[] = {{"7", 7, "10", "4"},         {"", 0, "3", "-3"},
                {"abc", 0, "3", "-3"},       {"-", 0, "3", "-3"},
                {"500", 30, "30", "30"},     {"-19", -19, "-16", "-20"},
                {"-500", -20, "-20", "-20"}, {"99999999999", 30, "30", "30"},
                {"nan", 0, "3", "-3"},       {"5mm", 5, "8", "2"},
                {"1e3", 1, "4", "-2"}};
    for (const auto& row : rows) {
        for (const bool up : {true, false}) {
            for (const bool mouse : {true, false}) {
                Box.Text(row.Text);
                EXPECT_EQ(Arrows.Value(), row.Value);
                Seen.clear();
                if (mouse) {
                    OnArrow(up, true);
                    OnArrow(up, false);
                } else {
                    Tap(TheForm, up ? Qt::Key_Up : Qt::Key_Down);
                }
                EXPECT_EQ(Box.Text(), up ? row.Up : row.Down) << row.Text;
                EXPECT_EQ(Seen, (Log{"Box", "Arrows"})) << row.Text;
            }
        }
    }
    Seen.clear();
    Box.Text("30");
    Tap(TheForm, Qt::Key_Up);
    Arrows.Enabled(false);
    OnArrow(false, true);
    OnArrow(false, false);
    Tap(TheForm, Qt::Key_Down);
    EXPECT_EQ(Seen, Log{"Box"});
}

TEST_F(NumbersTest, AnArrowHeldDownGoesOnWhileThePointerIsOnIt) {
    Box.Text("-20");
    OnArrow(true, true);
    EXPECT_EQ(Box.Text(), "-17");
    Time.Advance(0.4);
    EXPECT_EQ(Box.Text(), "-17");
    Time.Advance(0.21);
    EXPECT_EQ(Box.Text(), "-11");
    MoveOver(Other);
    Time.Advance(1);
    EXPECT_EQ(Box.Text(), "-11");
    OnArrow(true, false);
    OnArrow(false, true);
    Bring("B");  // the button may be let go there
    Time.Advance(1);
    EXPECT_EQ(Box.Text(), "-14");
}

TEST_F(NumbersTest, EnterAndEscapePressTheirButtonsFromWhereverTheyHaveNoOtherMeaning) {
    struct Row {
        InteractiveControl* Focus;
        const char* Enter;
        const char* Escape;
    };
    const Row rows[] = {{&Box, "Ok", "Close"},
                        {&List, "Ok", "Close"},
                        {&Ok, "Ok", "Close"},
                        {&Other, "Other", "Close"},
                        {&Close, "Close", "Close"}};
    for (const Row& row : rows) {
        for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
            row.Focus->SetFocus();
            Seen.clear();
            Press(TheForm, key);
            QKeyEvent held(QEvent::KeyPress, key, {}, QString(), true);
            QApplication::sendEvent(WindowOf(TheForm).windowHandle(), &held);
            EXPECT_TRUE(Seen.empty());
            Release(TheForm, key);
            EXPECT_EQ(Seen, Log{key == Qt::Key_Escape ? row.Escape : row.Enter});
        }
    }
    Seen.clear();
    Box.SetFocus();
    Ok.Enabled(false);
    Close.Visible(false);
    Tap(TheForm, Qt::Key_Return);
    Tap(TheForm, Qt::Key_Escape);
    // Held while the keyboard goes away.
    Ok.Enabled(true);
    Press(TheForm, Qt::Key_Return);
    Bring("B");
    Bring();
    Release(TheForm, Qt::Key_Return);
    EXPECT_EQ(Seen, Log{});
}

TEST_F(NumbersTest, AnOpenListKeepsEnterAndEscape) {
    List.AddItem("One");
    List.AddItem("Two");
    for (const int key : {Qt::Key_Return, Qt::Key_Escape}) {
        List.SetFocus();
        Tap(TheForm, Qt::Key_F4);
        QWidget* const list = QApplication::activePopupWidget();
        ASSERT_TRUE(list);
        QTest::keyPress(list->windowHandle(), static_cast<Qt::Key>(key));
        Release(TheForm, key);
        EXPECT_FALSE(QApplication::activePopupWidget());
    }
    EXPECT_EQ(Seen, Log{});
}

TEST_F(NumbersTest, ABouncingSwitchPressesTheDefaultButtonOnce) {
    Program.SwitchesInUse([] { return true; });
    Time.Advance(1);
    Tap(TheForm, Qt::Key_Return);
    Tap(TheForm, Qt::Key_Return);
    EXPECT_EQ(Times("Ok"), 1);
    Time.Advance(1);
    Tap(TheForm, Qt::Key_Return);
    EXPECT_EQ(Times("Ok"), 2);
    Type("11");  // letters are not minded
    EXPECT_EQ(Box.Text(), "11");
}

TEST_F(NumbersTest, ALabelLeadsToItsBoxAndNamesIt) {
    const auto called = [](const VisualControl& control) {
        return QAccessible::queryAccessibleInterface(&WidgetOf(control))->text(QAccessible::Name);
    };
    Ok.SetFocus();
    Tap(TheForm, Qt::Key_I, Qt::AltModifier);
    EXPECT_TRUE(WidgetOf(Box).hasFocus());
    EXPECT_EQ(called(Box), "Sinistro:");
    EXPECT_EQ(called(Arrows), "Sinistro:");
    const QImage marked = Shot(Name);
    Name.Caption("Sinistro:");
    EXPECT_NE(Shot(Name), marked);
    EXPECT_EQ(called(Box), "Sinistro:");
    Box.AccessibleName("Left");
    EXPECT_EQ(called(Arrows), "Left");
    // The Tab key passes the arrows by.
    Tap(TheForm, Qt::Key_Tab);
    EXPECT_TRUE(WidgetOf(List).hasFocus());
}

}  // namespace
}  // namespace trameli
