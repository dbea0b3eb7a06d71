// What controls do: focus, pointers, names.
#include <QMouseEvent>
#include <QTest>
#include <cmath>
#include <numeric>

#include "platform/bare_program.h"
#include "platform/command_button.h"
#include "platform/frame.h"
#include "platform/image.h"
#include "platform/label.h"
#include "platform/line.h"
#include "platform/menu.h"
#include "platform/option_button.h"
#include "platform/picture_box.h"
#include "platform/shape.h"

namespace trameli {
namespace {

using Names = std::vector<std::string>;

class ControlsTest : public BareProgram {
protected:
    bool HasFocus(const VisualControl& control) const { return WidgetOf(control).hasFocus(); }
};

TEST_F(ControlsTest, MouseClicksWhatIsEnabledAndOnlyInside) {
    Frame frame(TheForm, "Frame", {0, 0, 9000, 6000});
    CommandButton button(frame, "Button", {300, 300, 1500, 600}, "Button");
    Label label(frame, "Label", {300, 1200, 1500, 600}, "Label");
    Image image(frame, "Image", {300, 2100, 1500, 600}, {"sole.svg"});
    button.Click = Noting("Button");
    label.Click = Noting("Label");
    image.Click = Noting("Image");
    Bring();
    for (InteractiveControl* control :
         std::initializer_list<InteractiveControl*>{&button, &label, &image}) {
        QWidget& widget = WidgetOf(*control);
        QWindow* window = WindowOf(TheForm).windowHandle();
        const QPoint middle = widget.mapTo(&WindowOf(TheForm), widget.rect().center());
        Seen.clear();
        QTest::mouseClick(window, Qt::RightButton, Qt::NoModifier, middle);
        // Pressed here and let go elsewhere is no click.
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, middle);
        QTest::mouseMove(window, middle + QPoint(300, 0));
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, middle + QPoint(300, 0));
        for (InteractiveControl* off : {control, static_cast<InteractiveControl*>(&frame)}) {
            off->Enabled(false);
            ClickOn(*control);
            off->Enabled(true);
        }
        EXPECT_EQ(Seen, Names{});
        ClickOn(*control);
        EXPECT_EQ(Seen, Names{control->Name()});
    }
}

// The keyboard.

TEST_F(ControlsTest, FocusGoesOnlyWhereItCan) {
    PictureBox home(TheForm, "Home", {300, 300, 900, 600});
    Frame frame(TheForm, "Frame", {1500, 300, 3000, 3000});
    CommandButton button(frame, "Button", {300, 300, 900, 600});
    button.GotFocus = Noting("Button");
    Bring();
    const std::pair<InteractiveControl&, const char*> rows[] = {
        {button, "Visible"}, {button, "Enabled"}, {frame, "Visible"}, {frame, "Enabled"}};
    for (const auto& [control, property] : rows) {
        home.SetFocus();
        control.Set(property, false);
        Seen.clear();
        button.SetFocus();
        control.Set(property, true);
        Pump();
        EXPECT_TRUE(HasFocus(home) && Seen.empty()) << control.Name() << property;
        button.SetFocus();
        button.SetFocus();
        EXPECT_TRUE(HasFocus(button));
        EXPECT_EQ(Seen.size(), 1U);
    }
    Program.Unload(Bring("B"));
    Pump();
    EXPECT_EQ(Seen.size(), 1U) << "it only came back with its window";
    home.SetFocus();
    Bring("B");
    button.SetFocus();
    Pump();
    EXPECT_TRUE(WindowOf(Get("B")).isActiveWindow()) << "no window comes to the front by it";
}

TEST_F(ControlsTest, TabKeyFollowsTheTabIndices) {
    CommandButton a(TheForm, "a", {0, 300, 900, 600});
    CommandButton b(TheForm, "b", {0, 2100, 900, 600});
    CommandButton c(TheForm, "c", {1000, 300, 900, 600});
    CommandButton late(TheForm, "l", {3000, 2100, 900, 600});
    late.Visible(false);
    a.TabIndex(4);
    b.TabIndex(1);
    c.TabIndex(3);
    for (InteractiveControl* control : {&a, &b, &c, &late}) {
        control->GotFocus = Noting(control->Name());
    }
    Bring();
    EXPECT_TRUE(HasFocus(b)) << "the first that takes the focus";
    const auto walk = [&](int key) {
        Seen.clear();
        for (int i = 0; i < 4; ++i) {
            Tap(TheForm, key);
        }
        return std::accumulate(Seen.begin(), Seen.end(), std::string());
    };
    EXPECT_EQ(walk(Qt::Key_Tab), "cabc");
    // Also for what comes or changes while the form is on the screen.
    c.Enabled(false);
    late.TabIndex(2);
    late.Visible(true);
    a.TabIndex(0);
    EXPECT_EQ(walk(Qt::Key_Backtab), "lbal");
}

// The pointer.

TEST_F(ControlsTest, MovesReachExactlyWhatIsUnderThePointer) {
    Frame frame(TheForm, "Frame", {300, 300, 6000, 4500}, "Frame");
    Label label(frame, "Label", {600, 600, 900, 600}, "text");
    OptionButton option(frame, "Option", {2400, 600, 900, 600}, "text");
    CommandButton button(frame, "Button", {600, 1800, 900, 600});
    PictureBox box(frame, "Box", {600, 3000, 900, 600});
    Shape shape(frame, "Shape", {4200, 600, 900, 900}, 10, Black);
    Line line(frame, "Line", 4200, 3000, 5100, 3000, 10, Black);
    const std::initializer_list<InteractiveControl*> inTheWay{&label, &option, &button, &box};
    for (InteractiveControl* control : inTheWay) {
        control->MouseMove = Noting(control->Name());
    }
    frame.MouseMove = Noting("Frame");
    Bring();
    const auto over = [&](QWidget& widget, QPoint where) {
        Seen.clear();
        MoveOver(widget, where);
        return Seen;
    };
    for (InteractiveControl* control : inTheWay) {
        QWidget& widget = WidgetOf(*control);
        EXPECT_EQ(over(widget, {5, 5}), Names{control->Name()});
        // With a button held as well, as hands that tremble do.
        Seen.clear();
        QMouseEvent move(QEvent::MouseMove, QPointF(21, 11), widget.mapToGlobal(QPointF(21, 11)),
                         Qt::NoButton, Qt::RightButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &move);
        EXPECT_EQ(Seen, Names{control->Name()});
    }
    option.Enabled(false);
    label.Visible(false);
    for (const VisualControl* control :
         std::initializer_list<const VisualControl*>{&shape, &option, &label}) {
        EXPECT_EQ(over(WidgetOf(*control), {3, 3}), Names{"Frame"}) << control->Name();
    }
    EXPECT_EQ(over(WidgetOf(frame), {310, 200}), Names{"Frame"}) << "lines are not in the way";
    EXPECT_EQ(TheForm.MovesOverIt, 0);
    EXPECT_EQ(over(WindowOf(TheForm), {700, 500}), Names{});
    EXPECT_EQ(TheForm.MovesOverIt, 1);
}

TEST_F(ControlsTest, PointerIsTheControlsOwnOrElseTheForms) {
    Label label(TheForm, "Label", {300, 300, 900, 600}, "text");
    Bring();
    const auto spot = [&] { return WidgetOf(label).cursor().hotSpot(); };
    label.MouseIcon(PointerImage{{"puntatori/freccia_blu.svg"}, 5, 7});
    TheForm.MouseIcon(PointerImage{{"puntatori/freccia_grande.svg"}, 1, 2});
    EXPECT_EQ(spot(), QPoint(5, 7));
    label.MouseIcon({});
    EXPECT_EQ(spot(), QPoint(1, 2));
}

TEST_F(ControlsTest, PropertiesAreReadAndSetByName) {
    using enum PropertyCode;
    using Text = std::string;
    OptionButton option(TheForm, "Option", {300, 300, 900, 600}, "text");
    Line line(TheForm, "Line", 0, 15, 30, 45, 1, Black);
    MenuItem menu(TheForm, "Menu", "text");
    struct Row {
        Control& Of;
        const char* Property;
        PropertyValue Value;
        PropertyCode Setting;
        PropertyCode Reading = Done;
    };
    const Row rows[] = {
        {option, "Caption", Text("x"), Done},
        {option, "ToolTipText", Text("x"), Done},
        {option, "AccessibleName", Text("x"), Done},
        {option, "Left", 300.25, Done},
        {option, "Visible", false, Done},
        {option, "Name", Text("Option"), ReadOnly},
        {option, "Index", 0.0, NoSuchProperty, NoSuchProperty},
        {option, "X1", 300.0, NoSuchProperty, NoSuchProperty},
        {option, "Left", Text("300"), InvalidValue},
        {option, "Left", std::nan(""), InvalidValue},
        {line, "Y2", 7.5, Done},
        {line, "BorderWidth", 3.0, Done},
        {line, "Left", 7.5, NoSuchProperty, NoSuchProperty},
        {menu, "Checked", true, Done},
        {menu, "ToolTipText", Text("x"), NoSuchProperty, NoSuchProperty},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Of.Name() + "." + row.Property);
        EXPECT_EQ(row.Of.Set(row.Property, row.Value), row.Setting);
        PropertyValue value = Text("nothing");
        EXPECT_EQ(row.Of.Get(row.Property, value), row.Reading);
        EXPECT_EQ(value == row.Value, row.Reading == Done && row.Setting != InvalidValue);
    }
}

}  // namespace
}  // namespace trameli
