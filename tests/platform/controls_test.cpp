// What controls do: choices, focus, visibility, pointers, names.
#include <QAccessible>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QTest>
#include <QToolTip>

#include "platform/bare_program.h"
#include "platform/combo_box.h"
#include "platform/command_button.h"
#include "platform/control_array.h"
#include "platform/frame.h"
#include "platform/image.h"
#include "platform/label.h"
#include "platform/line.h"
#include "platform/menu.h"
#include "platform/option_button.h"
#include "platform/picture_box.h"
#include "platform/shape.h"
#include "platform/status_bar.h"
#include "platform/timer.h"

namespace trameli {
namespace {

class ControlsTest : public BareProgram {
protected:
    bool HasFocus(const VisualControl& control) const { return WidgetOf(control).hasFocus(); }
};

// Choosing.

TEST_F(ControlsTest, ListFiresClickWhenTheChoiceChanges) {
    ComboBox combo(TheForm, "Combo", {300, 300, 3000, 450});
    combo.Click = [&] { Seen.push_back(std::to_string(combo.ListIndex())); };
    combo.AddItem("zero");
    combo.AddItem("one");
    combo.AddItem("two");
    EXPECT_EQ(combo.ListIndex(), -1) << "nothing is chosen by itself";
    EXPECT_EQ(combo.Text(), "");
    EXPECT_TRUE(Seen.empty());

    combo.ListIndex(1);
    combo.ListIndex(1);
    combo.AddItem("three");
    EXPECT_EQ(Seen, std::vector<std::string>{"1"});
    EXPECT_EQ(combo.Text(), "one");
    combo.List(1, "uno");
    EXPECT_EQ(combo.Text(), "uno");
    EXPECT_EQ(combo.List(0), "zero");
    EXPECT_EQ(combo.List(4), "");
    EXPECT_EQ(combo.List(-1), "");
    EXPECT_EQ(Seen.size(), 1U);

    combo.ListIndex(-1);
    EXPECT_EQ(Seen.back(), "-1");
    combo.ListIndex(-1);
    combo.ListIndex(99);
    combo.ListIndex(-99);
    EXPECT_EQ(Seen.size(), 2U) << "there is no such entry: nothing has changed";
    combo.Clear();
    EXPECT_EQ(combo.ListCount(), 0);
    EXPECT_EQ(Seen.size(), 2U);
}

TEST_F(ControlsTest, ListIsChosenFromWithTheKeyboard) {
    ComboBox combo(TheForm, "Combo", {300, 300, 3000, 450});
    for (const char* entry : {"zero", "one", "two"}) {
        combo.AddItem(entry);
    }
    combo.ListIndex(0);
    combo.Click = [&] { Seen.push_back(combo.Text()); };
    Bring();
    combo.SetFocus();
    Tap(TheForm, Qt::Key_Down);
    EXPECT_EQ(Seen, std::vector<std::string>{"one"});
    Tap(TheForm, Qt::Key_X);
    EXPECT_EQ(combo.Text(), "one") << "nothing can be typed";
    Tap(TheForm, Qt::Key_Down, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    Tap(TheForm, Qt::Key_Down);
    EXPECT_EQ(Seen.size(), 1U) << "only looking";
    Tap(TheForm, Qt::Key_Return);
    EXPECT_EQ(Seen, (std::vector<std::string>{"one", "two"}));
    Tap(TheForm, Qt::Key_Down, Qt::AltModifier);
    Tap(TheForm, Qt::Key_Up);
    Tap(TheForm, Qt::Key_Escape);
    EXPECT_EQ(combo.Text(), "two");
}

TEST_F(ControlsTest, OneOptionOfAContainerIsChosen) {
    Frame left(TheForm, "Left", {0, 0, 3000, 3000});
    Frame right(TheForm, "Right", {3000, 0, 3000, 3000});
    ControlArray<OptionButton> options("Option");
    for (int i = 0; i < 4; ++i) {
        auto& option = options.Add(i < 2 ? left : right,
                                   Bounds{150, 300.0 + 600 * (i % 2), 1500, 400}, "text");
        option.Click = [this, i] { Seen.push_back(std::to_string(i)); };
    }
    const auto values = [&] {
        std::string text;
        options.ForEach([&](const OptionButton& option) { text += option.Value() ? '1' : '0'; });
        return text;
    };
    EXPECT_EQ(values(), "0000");
    options(0).Value(true);
    options(2).Value(true);
    EXPECT_EQ(values(), "1010");
    options(1).Value(true);
    EXPECT_EQ(values(), "0110");
    options(1).Value(true);
    EXPECT_EQ(Seen, (std::vector<std::string>{"0", "2", "1"}));
    options(0).Value(false);
    EXPECT_EQ(values(), "0110");
    options(1).Value(false);
    EXPECT_EQ(values(), "0010") << "the chosen one can be given up by code";
    EXPECT_EQ(Seen.size(), 3U);
    options(1).Value(true);

    Bring();
    ClickOn(options(0));
    EXPECT_EQ(values(), "1010");
    ClickOn(options(0));
    EXPECT_EQ(Seen, (std::vector<std::string>{"0", "2", "1", "1", "0"}));
    options(1).Enabled(false);
    ClickOn(options(1));
    EXPECT_EQ(values(), "1010");
    EXPECT_EQ(Seen.size(), 5U);
}

TEST_F(ControlsTest, MouseClicksWhatIsEnabledAndOnlyInside) {
    Frame frame(TheForm, "Frame", {0, 0, 9000, 6000});
    CommandButton button(frame, "Button", {300, 300, 1500, 600}, "Button");
    Label label(frame, "Label", {300, 1200, 1500, 600}, "Label");
    Image image(frame, "Image", {300, 2100, 1500, 600}, {"sole.svg"});
    button.Click = Noting("Button");
    label.Click = Noting("Label");
    image.Click = Noting("Image");
    Bring();
    for (VisualControl* control :
         {static_cast<VisualControl*>(&button), static_cast<VisualControl*>(&label),
          static_cast<VisualControl*>(&image)}) {
        SCOPED_TRACE(control->Name());
        QWidget& widget = WidgetOf(*control);
        QWindow* window = WindowOf(TheForm).windowHandle();
        const QPoint middle = widget.mapTo(&WindowOf(TheForm), widget.rect().center());
        Seen.clear();
        ClickOn(*control);
        EXPECT_EQ(Seen, std::vector<std::string>{control->Name()});
        QTest::mouseClick(window, Qt::RightButton, Qt::NoModifier, middle);
        // Pressed here and let go elsewhere is no click.
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, middle);
        QTest::mouseMove(window, middle + QPoint(300, 0));
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, middle + QPoint(300, 0));
        control->Enabled(false);
        ClickOn(*control);
        control->Enabled(true);
        frame.Enabled(false);
        EXPECT_TRUE(control->Enabled());
        ClickOn(*control);
        frame.Enabled(true);
        EXPECT_EQ(Seen.size(), 1U);
        ClickOn(*control);
        EXPECT_EQ(Seen.size(), 2U);
    }
}

// Existing, visible, enabled.

TEST_F(ControlsTest, ReportWhatWasSet) {
    Frame frame(TheForm, "Frame", {0, 0, 3000, 3000});
    Label label(frame, "Label", {0, 0, 900, 900}, "text");
    for (const bool shown : {false, true}) {
        if (shown) {
            Bring();
        }
        EXPECT_TRUE(label.Visible());
        frame.Visible(false);
        frame.Enabled(false);
        EXPECT_TRUE(label.Visible());
        EXPECT_TRUE(label.Enabled());
        EXPECT_FALSE(WidgetOf(label).isVisible());
        label.Visible(false);
        label.Enabled(false);
        frame.Visible(true);
        frame.Enabled(true);
        EXPECT_FALSE(label.Visible());
        EXPECT_FALSE(label.Enabled());
        EXPECT_FALSE(WidgetOf(label).isVisible());
        label.Visible(true);
        label.Enabled(true);
        EXPECT_EQ(WidgetOf(label).isVisible(), shown);
    }
}

TEST_F(ControlsTest, AreListedInTheOrderOfTheirMaking) {
    const auto names = [&] {
        std::vector<std::string> result;
        for (const Control* control : TheForm.Controls()) {
            result.push_back(control->Name() +
                             (control->Index() ? std::to_string(*control->Index()) : ""));
        }
        return result;
    };
    MenuItem menu(TheForm, "mnuMenu", "Menu");
    Frame frame(TheForm, "Frame", {0, 0, 3000, 3000});
    Label inner(frame, "Inner", {0, 0, 300, 300}, "");
    Timer timer(TheForm, "Timer", 100);
    ControlArray<MenuItem> entries("mnuEntry");
    entries.Add(menu, "Entry");
    ControlArray<PictureBox> boxes("Box");
    boxes.Add(TheForm, Bounds{0, 0, 300, 300});
    EXPECT_EQ(names(), (std::vector<std::string>{"mnuMenu", "Frame", "Inner", "Timer", "mnuEntry0",
                                                 "Box0"}));
    boxes.Load(5);
    entries.Load(1);
    boxes.Load(2);
    EXPECT_EQ(names().back(), "Box2");
    boxes.Unload(5);
    EXPECT_EQ(names(), (std::vector<std::string>{"mnuMenu", "Frame", "Inner", "Timer", "mnuEntry0",
                                                 "Box0", "mnuEntry1", "Box2"}));
}

TEST_F(ControlsTest, ArraysGrowAndShrink) {
    Bring();
    ControlArray<PictureBox> boxes("Box");
    PictureBox& first = boxes.Add(TheForm, Bounds{300, 300, 900, 600});
    first.BackColor(Rgb(1, 2, 3));
    first.DrawWidth(7);
    first.Enabled(false);
    PictureBox& second = boxes.Load(3);
    EXPECT_EQ(&boxes.Load(3), &second) << "what exists stays as it is";
    EXPECT_EQ(&boxes(3), &second);
    EXPECT_EQ(boxes.Count(), 2);
    EXPECT_EQ(second.Index(), 3);
    // Like the first one, but invisible at first.
    EXPECT_FALSE(second.Visible());
    EXPECT_FALSE(WidgetOf(second).isVisible());
    EXPECT_EQ(second.BackColor(), Rgb(1, 2, 3));
    EXPECT_EQ(second.Place(), first.Place());
    EXPECT_EQ(second.DrawWidth(), 7);
    EXPECT_FALSE(second.Enabled());
    second.Left(1500);
    second.Visible(true);
    EXPECT_EQ(Count(Shot(second), Rgb(1, 2, 3)), 60 * 40);
    EXPECT_EQ(Count(Shot(TheForm), Rgb(1, 2, 3)), 2 * 60 * 40);
    boxes.Unload(3);
    boxes.Unload(3);
    EXPECT_EQ(boxes.Count(), 1);
    EXPECT_EQ(Count(Shot(TheForm), Rgb(1, 2, 3)), 60 * 40);
}

// The keyboard.

TEST_F(ControlsTest, FocusGoesOnlyWhereItCan) {
    PictureBox home(TheForm, "Home", {300, 300, 900, 600});
    Frame frame(TheForm, "Frame", {1500, 300, 3000, 3000});
    CommandButton button(frame, "Button", {300, 300, 900, 600});
    Label label(TheForm, "Label", {300, 1500, 900, 600}, "text");
    button.GotFocus = Noting("Button");
    Bring();
    struct Row {
        const char* What;
        void (*Set)(Frame&, CommandButton&, bool);
    };
    const Row rows[] = {
        {"invisible", [](Frame&, CommandButton& b, bool on) { b.Visible(on); }},
        {"disabled", [](Frame&, CommandButton& b, bool on) { b.Enabled(on); }},
        {"on an invisible frame", [](Frame& f, CommandButton&, bool on) { f.Visible(on); }},
        {"on a disabled frame", [](Frame& f, CommandButton&, bool on) { f.Enabled(on); }},
    };
    for (const Row& row : rows) {
        home.SetFocus();
        row.Set(frame, button, false);
        Seen.clear();
        button.SetFocus();
        Pump();
        EXPECT_TRUE(HasFocus(home)) << row.What;
        row.Set(frame, button, true);
        Pump();
        EXPECT_TRUE(HasFocus(home)) << row.What << " no longer";
        EXPECT_TRUE(Seen.empty());
        button.SetFocus();
        EXPECT_TRUE(HasFocus(button));
        EXPECT_EQ(Seen.size(), 1U);
    }
    label.SetFocus();
    EXPECT_TRUE(HasFocus(button)) << "a label takes no focus";

    home.SetFocus();
    Bring("B");
    ASSERT_TRUE(WindowOf(Get("B")).isActiveWindow());
    button.SetFocus();
    Pump();
    EXPECT_TRUE(WindowOf(Get("B")).isActiveWindow()) << "no window comes to the front by it";
}

TEST_F(ControlsTest, TabKeyFollowsTheTabIndices) {
    Frame frame(TheForm, "Frame", {0, 0, 6000, 2000});
    CommandButton a(frame, "a", {0, 300, 900, 600});
    CommandButton b(TheForm, "b", {0, 2100, 900, 600});
    CommandButton c(frame, "c", {1000, 300, 900, 600});
    Label label(TheForm, "label", {0, 3000, 900, 600}, "text");
    CommandButton d(TheForm, "d", {1000, 2100, 900, 600});
    CommandButton e(TheForm, "e", {2000, 2100, 900, 600});
    a.TabIndex(4);
    b.TabIndex(1);
    c.TabIndex(2);
    label.TabIndex(0);
    d.TabIndex(3);
    e.TabIndex(3);
    for (VisualControl* control : {&a, &b, &c, &d, &e}) {
        control->GotFocus = Noting(control->Name());
    }
    Bring();
    EXPECT_TRUE(HasFocus(b)) << "the first that takes the focus";
    const auto walk = [&](int key, int steps) {
        std::string text;
        for (int i = 0; i < steps; ++i) {
            Seen.clear();
            Tap(TheForm, key);
            text += Seen.empty() ? "-" : Seen.back();
        }
        return text;
    };
    EXPECT_EQ(walk(Qt::Key_Tab, 6), "cdeabc");
    EXPECT_EQ(walk(Qt::Key_Backtab, 3), "bae");
    d.Enabled(false);
    c.Visible(false);
    b.SetFocus();
    EXPECT_EQ(walk(Qt::Key_Tab, 3), "eab");
    // Also for what comes or changes while the form is on the screen.
    d.Enabled(true);
    c.Visible(true);
    e.TabIndex(9);
    CommandButton late(TheForm, "late", {3000, 2100, 900, 600});
    late.TabIndex(2);
    late.GotFocus = Noting("late");
    EXPECT_EQ(walk(Qt::Key_Tab, 6), "clatedaeb");
}

TEST_F(ControlsTest, GotFocusComesOnlyFromAnotherControl) {
    CommandButton first(TheForm, "First", {300, 300, 900, 600});
    CommandButton second(TheForm, "Second", {1500, 300, 900, 600});
    second.GotFocus = Noting("Second");
    Bring();
    second.SetFocus();
    second.SetFocus();
    EXPECT_EQ(Seen.size(), 1U);
    Bring("B");
    Program.Unload(Get("B"));
    Pump();
    ASSERT_TRUE(HasFocus(second));
    EXPECT_EQ(Seen.size(), 1U) << "it only came back with its window";
    ClickOn(first);
    ClickOn(second);
    EXPECT_EQ(Seen.size(), 2U);
}

// The pointer.

TEST_F(ControlsTest, MovesReachExactlyWhatIsUnderThePointer) {
    Frame frame(TheForm, "Frame", {300, 300, 6000, 4500}, "Frame");
    Label label(frame, "Label", {600, 600, 900, 600}, "text");
    OptionButton option(frame, "Option", {2400, 600, 900, 600}, "text");
    CommandButton button(frame, "Button", {600, 1800, 900, 600});
    Image image(frame, "Image", {2400, 1800, 900, 600}, {"sole.svg"});
    PictureBox box(frame, "Box", {600, 3000, 900, 600});
    ComboBox combo(frame, "Combo", {2400, 3000, 900, 450});
    Shape shape(frame, "Shape", {4200, 600, 900, 900}, 10, Black);
    Line line(frame, "Line", 4200, 3000, 5100, 3000, 10, Black);
    for (VisualControl* control : std::initializer_list<VisualControl*>{
             &frame, &label, &option, &button, &image, &box, &combo, &shape, &line}) {
        control->MouseMove = Noting(control->Name());
    }
    Bring();
    using Names = std::vector<std::string>;
    const auto over = [&](const VisualControl& control) {
        Seen.clear();
        MoveOver(control);
        return Seen;
    };
    for (VisualControl* control :
         std::initializer_list<VisualControl*>{&label, &option, &button, &image, &box, &combo}) {
        EXPECT_EQ(over(*control), Names{control->Name()});
        // With a button held as well, as hands that tremble do.
        const QPoint middle = WidgetOf(*control).mapTo(&WindowOf(TheForm), QPoint(20, 10));
        Seen.clear();
        QTest::mousePress(WindowOf(TheForm).windowHandle(), Qt::RightButton, {}, middle);
        QMouseEvent move(QEvent::MouseMove, QPointF(21, 11),
                         WidgetOf(*control).mapToGlobal(QPointF(21, 11)), Qt::NoButton,
                         Qt::RightButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&WidgetOf(*control), &move);
        QTest::mouseRelease(WindowOf(TheForm).windowHandle(), Qt::RightButton, {}, middle);
        EXPECT_EQ(std::count(Seen.begin(), Seen.end(), "Frame"), 0) << control->Name();
        EXPECT_GE(std::count(Seen.begin(), Seen.end(), control->Name()), 1) << control->Name();
    }
    EXPECT_EQ(over(shape), Names{"Frame"}) << "figures are not in the way";
    Seen.clear();
    MoveOver(WidgetOf(frame), QPoint(310, 200));
    EXPECT_EQ(Seen, Names{"Frame"}) << "nor lines";
    option.Enabled(false);
    EXPECT_EQ(over(option), Names{"Frame"}) << "what is disabled is not there for the pointer";
    label.Visible(false);
    EXPECT_EQ(over(label), Names{"Frame"});
    EXPECT_EQ(TheForm.MovesOverIt, 0);
    Seen.clear();
    MoveOver(WindowOf(TheForm), QPoint(700, 500));
    EXPECT_EQ(TheForm.MovesOverIt, 1);
    EXPECT_TRUE(Seen.empty());
}

TEST_F(ControlsTest, PointerIsTheControlsOwn) {
    Label label(TheForm, "Label", {300, 300, 900, 600}, "text");
    Label other(TheForm, "Other", {1500, 300, 900, 600}, "text");
    Bring();
    const auto pointerOver = [&](const VisualControl& control) {
        MoveOver(control);
        return WindowOf(TheForm).windowHandle()->cursor();
    };
    label.MouseIcon(PointerImage{{"puntatori/freccia_blu.svg"}, 5, 7});
    const QCursor own = pointerOver(label);
    EXPECT_EQ(own.shape(), Qt::BitmapCursor);
    EXPECT_EQ(own.hotSpot(), QPoint(5, 7));
    EXPECT_EQ(own.pixmap().deviceIndependentSize(), QSizeF(32, 32));
    EXPECT_LT(Share(own.pixmap().toImage(), 0), 1) << "there is something in it";
    EXPECT_EQ(pointerOver(other).shape(), Qt::ArrowCursor);
    // A form's pointer is that of all its controls that have none.
    TheForm.MouseIcon(PointerImage{{"puntatori/freccia_grande.svg"}, 1, 2});
    EXPECT_EQ(pointerOver(other).hotSpot(), QPoint(1, 2));
    EXPECT_EQ(pointerOver(label).hotSpot(), QPoint(5, 7));
    label.MouseIcon({});
    EXPECT_EQ(pointerOver(label).hotSpot(), QPoint(1, 2));
    TheForm.MouseIcon({});
    EXPECT_EQ(pointerOver(label).shape(), Qt::ArrowCursor);
}

TEST_F(ControlsTest, ToolTipIsShown) {
    Label label(TheForm, "Label", {300, 300, 900, 600}, "text");
    Bring();
    const auto tip = [&] {
        QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), WidgetOf(label).mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&WidgetOf(label), &help);
        return QToolTip::text().toStdString();
    };
    label.ToolTipText("perché?");
    EXPECT_EQ(label.ToolTipText(), "perché?");
    EXPECT_EQ(tip(), "perché?");
    EXPECT_TRUE(QToolTip::isVisible());
    QToolTip::hideText();
}

// Assistive technology.

TEST_F(ControlsTest, HaveNamesAndRolesForAssistiveTechnology) {
    const Bounds place{300, 300, 900, 600};
    CommandButton button(TheForm, "Button", place, "&Avanti");
    OptionButton option(TheForm, "Option", place, "Livello 1");
    Label label(TheForm, "Label", place, "Un testo");
    Frame frame(TheForm, "Frame", place, "Scelte");
    Image image(TheForm, "Image", place, {"sole.svg"});
    PictureBox box(TheForm, "Box", place);
    ComboBox combo(TheForm, "Combo", place);
    StatusBar bar(TheForm, "Bar", 900, {"uno"});
    image.AccessibleName("Sole");
    box.AccessibleName("Labirinto");
    combo.AccessibleName("Giocatore");
    Bring();
    struct Row {
        const VisualControl& Control;
        QAccessible::Role Role;
        const char* Name;
    };
    const Row rows[] = {
        {button, QAccessible::Button, "Avanti"},
        {option, QAccessible::RadioButton, "Livello 1"},
        {label, QAccessible::StaticText, "Un testo"},
        {frame, QAccessible::Grouping, "Scelte"},
        {image, QAccessible::Graphic, "Sole"},
        {box, QAccessible::Graphic, "Labirinto"},
        {combo, QAccessible::ComboBox, "Giocatore"},
    };
    for (const Row& row : rows) {
        auto* interface = QAccessible::queryAccessibleInterface(&WidgetOf(row.Control));
        ASSERT_NE(interface, nullptr) << row.Name;
        EXPECT_EQ(interface->role(), row.Role) << row.Name;
        EXPECT_EQ(interface->text(QAccessible::Name).toStdString(), row.Name);
    }
    button.AccessibleName("Vai");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&WidgetOf(button))->text(QAccessible::Name),
              "Vai");
    auto* window = QAccessible::queryAccessibleInterface(&WindowOf(TheForm));
    EXPECT_FALSE(window->text(QAccessible::Name).trimmed().isEmpty());
    const auto panels = WidgetOf(bar).findChildren<QWidget*>();
    EXPECT_EQ(QAccessible::queryAccessibleInterface(panels.front())->text(QAccessible::Name),
              "uno");
}

}  // namespace
}  // namespace trameli
