// What a player chooses and types, and what that fires.
#include <QAccessible>
#include <QListView>
#include <QTabBar>
#include <QTest>

#include "platform/bare_program.h"
#include "platform/check_box.h"
#include "platform/combo_box.h"
#include "platform/frame.h"
#include "platform/image.h"
#include "platform/list_box.h"
#include "platform/menu.h"
#include "platform/option_button.h"
#include "platform/picture_box.h"
#include "platform/scroll_bar.h"
#include "platform/tab_strip.h"

namespace trameli {
namespace {

class ChoicesTest : public BareProgram {
protected:
    /// What was noted since the last call, in one text.
    std::string Told() {
        std::string all;
        for (const std::string& note : std::exchange(Seen, {})) {
            all += note + " ";
        }
        return all;
    }
    /// Notes `value` of a control whenever it tells of a change.
    template <typename Value>
    std::function<void()> NotingValue(Value value) {
        return [this, value] { Seen.push_back(std::to_string(value())); };
    }
};

TEST_F(ChoicesTest, KeysAndClicksChangeWhatTheyAreMeantFor) {
    CheckBox check(TheForm, "Check", {300, 300, 3000, 450}, "&Check");
    TabStrip tabs(TheForm, "Tabs", {300, 900, 6000, 1500}, {"&One", "T&wo", "Three"});
    HScrollBar bar(TheForm, "Bar", {300, 2700, 6000, 375}, 2, 60, 4);
    ListBox list(TheForm, "List", {300, 3300, 3000, 1200});
    ComboBox combo(TheForm, "Combo", {3600, 3300, 3000, 450});
    for (ListControl* lines : std::initializer_list<ListControl*>{&list, &combo}) {
        for (const char* entry : {"zero", "one", "two"}) {
            lines->AddItem(entry);
        }
        EXPECT_EQ(lines->ListIndex(), -1) << "nothing is chosen by itself";
    }
    bar.TakesKeyboard(true);
    check.Click = NotingValue([&] { return int{check.Value()}; });
    tabs.Click = NotingValue([&] { return tabs.SelectedTab(); });
    bar.Change = NotingValue([&] { return bar.Value(); });
    list.Click = NotingValue([&] { return list.ListIndex(); });
    combo.Click = NotingValue([&] { return combo.ListIndex(); });
    const struct {
        InteractiveControl& Control;
        std::vector<QKeyCombination> Keys;
        const char* Told;
    } rows[] = {
        {check, {Qt::Key_Space, Qt::Key_Return, Qt::Key_Right, Qt::Key_Space}, "1 0 1 "},
        {tabs, {Qt::Key_Left, Qt::Key_Right, Qt::Key_End, Qt::Key_Right, Qt::Key_Home}, "2 3 1 "},
        {tabs, {Qt::ALT | Qt::Key_W, Qt::ALT | Qt::Key_C}, "2 0 "},  // and the box
        {bar, {Qt::Key_Left, Qt::Key_Right, Qt::Key_PageDown, Qt::Key_End}, "3 7 60 "},
        {list, {Qt::Key_Down, Qt::Key_Down, Qt::Key_End, Qt::Key_Down, Qt::Key_X}, "0 1 2 "},
        {combo, {Qt::Key_Down, Qt::Key_Down, Qt::Key_X}, "0 1 "},
    };
    Bring();
    for (const auto& row : rows) {
        row.Control.SetFocus();
        EXPECT_EQ(Told(), "") << "coming with the keyboard chooses nothing";
        for (const QKeyCombination& stroke : row.Keys) {
            Tap(TheForm, stroke.key(), stroke.keyboardModifiers());
        }
        EXPECT_EQ(Told(), row.Told) << row.Control.Name();
    }
    const auto& tabBar = dynamic_cast<QTabBar&>(WidgetOf(tabs));
    const auto& view = dynamic_cast<QListView&>(WidgetOf(list));
    const auto click = [&](const QWidget& widget, QPoint where) {
        QTest::mouseClick(WindowOf(TheForm).windowHandle(), Qt::LeftButton, {},
                          widget.mapTo(&WindowOf(TheForm), where));
        return Told();
    };
    const QPoint second = view.visualRect(view.model()->index(1, 0)).center();
    EXPECT_EQ(click(tabBar, tabBar.tabRect(2).center()), "3 ");
    EXPECT_EQ(click(tabBar, {200, 80}), "") << "the pages' ground";
    EXPECT_EQ(click(*view.viewport(), second), "1 ");
    EXPECT_EQ(click(*view.viewport(), second), "1 ") << "the same one again";
    EXPECT_EQ(click(*view.viewport(), {100, 70}), "") << "below the last entry";
    // By code, whatever is not there or is so already changes nothing.
    for (const int value : {3, 0, 4, 1}) {
        tabs.SelectedTab(value);
    }
    for (const int value : {1, -2, 3, -1, 0}) {
        combo.ListIndex(value);
    }
    EXPECT_EQ(Told(), "1 -1 0 ");
}

TEST_F(ChoicesTest, AShortcutOfAnEntryThatCannotBeChosenDoesNothing) {
    MenuItem menu(TheForm, "Menu", "&Menu");
    MenuItem entry(menu, "Entry", "Entry", 'O');
    entry.Click = Noting("Entry");
    Bring();
    for (const char* property : {"Enabled", "Visible"}) {
        entry.Set(property, false);
        Tap(TheForm, Qt::Key_O, Qt::ControlModifier);
        EXPECT_EQ(Told(), "") << property;
        entry.Set(property, true);
        Tap(TheForm, Qt::Key_O, Qt::ControlModifier);
        EXPECT_EQ(Told(), "Entry ");
    }
}

TEST_F(ChoicesTest, AssistiveTechnologyIsToldOfAll) {
    CheckBox check(TheForm, "Check", {300, 300, 3000, 450}, "&Check");
    OptionButton option(TheForm, "Option", {300, 300, 3000, 450}, "&Option");
    Frame frame(TheForm, "Frame", {300, 300, 3000, 450}, "&Frame");
    TabStrip tabs(TheForm, "Tabs", {300, 900, 6000, 1500}, {"&Tabs", "Two"});
    ListBox list(TheForm, "List", {300, 300, 3000, 450});
    HScrollBar bar(TheForm, "Bar", {300, 300, 3000, 450}, 0, 9, 1);
    Image image(TheForm, "Image", {300, 300, 900, 600}, {"sole.svg"});
    PictureBox box(TheForm, "Box", {300, 300, 900, 600});
    Bring();
    const struct {
        InteractiveControl& Control;
        QAccessible::Role Role;
    } rows[] = {
        {check, QAccessible::CheckBox}, {option, QAccessible::RadioButton},
        {frame, QAccessible::Grouping}, {tabs, QAccessible::PageTabList},
        {list, QAccessible::List},      {bar, QAccessible::ScrollBar},
        {image, QAccessible::Graphic},  {box, QAccessible::Graphic},
    };
    for (const auto& [control, role] : rows) {
        auto* const seen = QAccessible::queryAccessibleInterface(&WidgetOf(control));
        EXPECT_EQ(seen->role(), role) << control.Name();
        const bool hasCaption = control.Set("Caption", control.Name()) == PropertyCode::Done;
        control.AccessibleName(hasCaption ? "" : control.Name());
        EXPECT_EQ(seen->text(QAccessible::Name), QString::fromStdString(control.Name()));
    }
    auto* const tab = QAccessible::queryAccessibleInterface(&WidgetOf(tabs))->child(0);
    EXPECT_EQ(tab->text(QAccessible::Name), "Tabs");
    auto* const window = QAccessible::queryAccessibleInterface(&WindowOf(TheForm));
    EXPECT_FALSE(window->text(QAccessible::Name).trimmed().isEmpty());
}

}  // namespace
}  // namespace trameli
