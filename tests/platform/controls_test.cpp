// What controls do: choices, focus, visibility, pointers, names.
#include <QAccessible>
#include <QMouseEvent>
#include <QTest>
#include <cmath>
#include <numeric>

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
#include "platform/scroll_bar.h"
#include "platform/shape.h"
#include "platform/timer.h"

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
        SCOPED_TRACE(control->Name());
        QWidget& widget = WidgetOf(*control);
        QWindow* window = WindowOf(TheForm).windowHandle();
        const QPoint middle = widget.mapTo(&WindowOf(TheForm), widget.rect().center());
        Seen.clear();
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
        EXPECT_EQ(Seen, Names{});
        ClickOn(*control);
        EXPECT_EQ(Seen, Names{control->Name()});
    }
}

// Coming and going.

TEST_F(ControlsTest, ArraysGrowAndShrink) {
    constexpr Colour odd = Rgb(1, 2, 3);
    Bring();
    ControlArray<PictureBox> boxes("Box");
    PictureBox& first = boxes.Add(TheForm, Bounds{300, 300, 900, 600});
    first.BackColor(odd);
    first.DrawWidth(7);
    first.Enabled(false);
    PictureBox& second = boxes.Load(3);
    EXPECT_EQ(&boxes.Load(3), &second) << "what exists stays as it is";
    EXPECT_EQ(boxes.Count(), 2);
    // Like the first one, but invisible at first.
    EXPECT_EQ(second.Place(), first.Place());
    EXPECT_EQ(second.DrawWidth(), 7);
    EXPECT_FALSE(second.Enabled());
    EXPECT_FALSE(second.Visible());
    second.Left(1500);
    EXPECT_EQ(Count(Shot(TheForm), odd), 60 * 40);
    second.Visible(true);
    EXPECT_EQ(Count(Shot(TheForm), odd), 2 * 60 * 40);
    boxes.Unload(3);
    boxes.Unload(3);
    EXPECT_EQ(Count(Shot(TheForm), odd), 60 * 40);
}

// The keyboard.

TEST_F(ControlsTest, FocusGoesOnlyWhereItCan) {
    PictureBox home(TheForm, "Home", {300, 300, 900, 600});
    Frame frame(TheForm, "Frame", {1500, 300, 3000, 3000});
    CommandButton button(frame, "Button", {300, 300, 900, 600});
    Label label(TheForm, "Label", {300, 1500, 900, 600}, "text");
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
        EXPECT_TRUE(HasFocus(home)) << control.Name() << property;
        EXPECT_TRUE(Seen.empty());
        button.SetFocus();
        button.SetFocus();
        label.SetFocus();
        EXPECT_TRUE(HasFocus(button)) << "a label takes no focus";
        EXPECT_EQ(Seen.size(), 1U);
    }
    Bring("B");
    Program.Unload(Get("B"));
    Pump();
    EXPECT_EQ(Seen.size(), 1U) << "it only came back with its window";

    home.SetFocus();
    Bring("B");
    button.SetFocus();
    Pump();
    EXPECT_TRUE(WindowOf(Get("B")).isActiveWindow()) << "no window comes to the front by it";
}

TEST_F(ControlsTest, TabKeyFollowsTheTabIndices) {
    Frame frame(TheForm, "Frame", {0, 0, 6000, 2000});
    CommandButton off(TheForm, "off", {3000, 2100, 900, 600});
    CommandButton a(frame, "a", {0, 300, 900, 600});
    CommandButton b(TheForm, "b", {0, 2100, 900, 600});
    CommandButton c(frame, "c", {1000, 300, 900, 600});
    CommandButton d(TheForm, "d", {1000, 2100, 900, 600});
    CommandButton late(TheForm, "l", {3000, 2100, 900, 600});
    off.Enabled(false);
    late.Visible(false);
    a.TabIndex(4);
    b.TabIndex(1);
    c.TabIndex(3);
    d.TabIndex(3);
    for (InteractiveControl* control : {&a, &b, &c, &d, &late}) {
        control->GotFocus = Noting(control->Name());
    }
    Bring();
    EXPECT_TRUE(HasFocus(b)) << "the first that takes the focus";
    const auto walk = [&](int key, int steps) {
        Seen.clear();
        for (int i = 0; i < steps; ++i) {
            Tap(TheForm, key);
        }
        return std::accumulate(Seen.begin(), Seen.end(), std::string());
    };
    EXPECT_EQ(walk(Qt::Key_Tab, 5), "cdabc");
    EXPECT_EQ(walk(Qt::Key_Backtab, 3), "bad");
    // Also for what comes or changes while the form is on the screen.
    c.Enabled(false);
    d.TabIndex(9);
    late.TabIndex(2);
    late.Visible(true);
    EXPECT_EQ(walk(Qt::Key_Tab, 4), "blad");
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
    const std::initializer_list<InteractiveControl*> inTheWay{&label, &option, &button,
                                                              &image, &box,    &combo};
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
        QWindow* const window = WindowOf(TheForm).windowHandle();
        const QPoint middle = widget.mapTo(&WindowOf(TheForm), QPoint(20, 10));
        Seen.clear();
        QTest::mousePress(window, Qt::RightButton, {}, middle);
        QMouseEvent move(QEvent::MouseMove, QPointF(21, 11), widget.mapToGlobal(QPointF(21, 11)),
                         Qt::NoButton, Qt::RightButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &move);
        QTest::mouseRelease(window, Qt::RightButton, {}, middle);
        EXPECT_EQ(Times("Frame"), 0) << control->Name();
        EXPECT_GE(Times(control->Name()), 1) << control->Name();
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
    Label other(TheForm, "Other", {1500, 300, 900, 600}, "text");
    Bring();
    const auto pointerOver = [&](const InteractiveControl& control) {
        MoveOver(control);
        return WindowOf(TheForm).windowHandle()->cursor();
    };
    label.MouseIcon(PointerImage{{"puntatori/freccia_blu.svg"}, 5, 7});
    const QCursor own = pointerOver(label);
    EXPECT_EQ(own.hotSpot(), QPoint(5, 7));
    EXPECT_EQ(own.pixmap().deviceIndependentSize(), QSizeF(32, 32));
    EXPECT_LT(Share(own.pixmap().toImage(), 0), 1) << "there is something in it";
    EXPECT_EQ(pointerOver(other).shape(), Qt::ArrowCursor);
    TheForm.MouseIcon(PointerImage{{"puntatori/freccia_grande.svg"}, 1, 2});
    EXPECT_EQ(pointerOver(other).hotSpot(), QPoint(1, 2));
    EXPECT_EQ(pointerOver(label).hotSpot(), QPoint(5, 7));
    label.MouseIcon({});
    EXPECT_EQ(pointerOver(label).hotSpot(), QPoint(1, 2));
}

// Properties by name.

TEST_F(ControlsTest, PropertiesAreReadAndSetByName) {
    using enum PropertyCode;
    using Text = std::string;
    ControlArray<OptionButton> options("Option");
    OptionButton& option = options.Add(TheForm, Bounds{300, 300, 900, 600}, "text");
    OptionButton single(TheForm, "Single", {300, 300, 900, 600}, "text");
    Line line(TheForm, "Line", 0, 15, 30, 45, 1, Black);
    MenuItem menu(TheForm, "Menu", "text");
    Timer timer(TheForm, "Timer", 100);
    HScrollBar bar(TheForm, "Bar", {300, 300, 900, 600}, 2, 60, 4);
    ComboBox combo(TheForm, "Combo", {300, 300, 900, 600});
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
        {option, "Tag", Text("x"), Done},
        {option, "AccessibleName", Text("x"), Done},
        {option, "Left", 300.25, Done},
        {option, "Height", 12.5, Done},
        {option, "Visible", false, Done},
        {option, "Enabled", false, Done},
        {option, "Value", true, Done},
        {option, "BackColor", 255.0, Done},
        {option, "TabIndex", 7.0, Done},
        {option, "Name", Text("Option"), ReadOnly},
        {option, "Index", 0.0, ReadOnly},
        {single, "Index", 0.0, NoSuchProperty, NoSuchProperty},
        {option, "left", 300.0, NoSuchProperty, NoSuchProperty},
        {option, "X1", 300.0, NoSuchProperty, NoSuchProperty},
        {option, "Left", Text("300"), InvalidValue},
        {option, "Left", std::nan(""), InvalidValue},
        {option, "Caption", 300.0, InvalidValue},
        {option, "Visible", 1.0, InvalidValue},
        {line, "X1", 7.5, Done},
        {line, "Y2", 7.5, Done},
        {line, "BorderWidth", 3.0, Done},
        {line, "Visible", false, Done},
        {line, "Left", 7.5, NoSuchProperty, NoSuchProperty},
        {line, "Caption", Text("x"), NoSuchProperty, NoSuchProperty},
        {menu, "Caption", Text("x"), Done},
        {menu, "Checked", true, Done},
        {menu, "Enabled", false, Done},
        {menu, "Visible", false, Done},
        {menu, "Width", 7.5, NoSuchProperty, NoSuchProperty},
        {menu, "ToolTipText", Text("x"), NoSuchProperty, NoSuchProperty},
        {timer, "Interval", 20.0, Done},
        {timer, "Enabled", true, Done},
        {timer, "Caption", Text("x"), NoSuchProperty, NoSuchProperty},
        {bar, "Value", 17.0, Done},
        {combo, "ListIndex", -1.0, Done},
        {combo, "Text", Text(), ReadOnly},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Of.Name() + "." + row.Property);
        EXPECT_EQ(row.Of.Set(row.Property, row.Value), row.Setting);
        PropertyValue value = Text("nothing");
        EXPECT_EQ(row.Of.Get(row.Property, value), row.Reading);
        EXPECT_EQ(value == row.Value, row.Reading == Done && row.Setting != InvalidValue);
    }
}

// Assistive technology.

TEST_F(ControlsTest, PicturesAreTakenForPicturesByAssistiveTechnology) {
    Image image(TheForm, "Image", {300, 300, 900, 600}, {"sole.svg"});
    PictureBox box(TheForm, "Box", {300, 300, 900, 600});
    Bring();
    for (InteractiveControl* control : std::initializer_list<InteractiveControl*>{&image, &box}) {
        control->AccessibleName("Sole");
        auto* interface = QAccessible::queryAccessibleInterface(&WidgetOf(*control));
        ASSERT_NE(interface, nullptr);
        EXPECT_EQ(interface->role(), QAccessible::Graphic) << control->Name();
        EXPECT_EQ(interface->text(QAccessible::Name), "Sole");
    }
    auto* window = QAccessible::queryAccessibleInterface(&WindowOf(TheForm));
    EXPECT_FALSE(window->text(QAccessible::Name).trimmed().isEmpty());
}

}  // namespace
}  // namespace trameli
