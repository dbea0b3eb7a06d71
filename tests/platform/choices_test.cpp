// What a player chooses, and what is told of it to those who cannot see it.
#include <QAccessible>
#include <QListView>
#include <QTabBar>
#include <QTest>

#include "platform/bare_program.h"
#include "platform/check_box.h"
#include "platform/frame.h"
#include "platform/image.h"
#include "platform/list_box.h"
#include "platform/option_button.h"
#include "platform/picture_box.h"
#include "platform/scroll_bar.h"
#include "platform/tab_strip.h"

namespace trameli {
namespace {

class ChoicesTest : public BareProgram {
protected:
    /// What a click there tells of.
    std::string Click(const QWidget& widget, QPoint where) {
        Seen.clear();
        QTest::mouseClick(WindowOf(TheForm).windowHandle(), Qt::LeftButton, {},
                          widget.mapTo(&WindowOf(TheForm), where));
        return Seen.empty() ? "" : Seen.back();
    }
};

TEST_F(ChoicesTest, ClicksChooseWhatTheyAreMeantFor) {
    TabStrip tabs(TheForm, "Tabs", {300, 900, 6000, 1500}, {"&One", "T&wo", "Three"});
    ListBox list(TheForm, "List", {300, 3300, 3000, 1200});
    for (const char* entry : {"zero", "one", "two"}) {
        list.AddItem(entry);
    }
    EXPECT_EQ(list.ListIndex(), -1) << "nothing is chosen by itself";
    tabs.Click = [&] { Seen.push_back(std::to_string(tabs.SelectedTab())); };
    list.Click = [&] { Seen.push_back(list.Text()); };
    Bring();
    list.SetFocus();
    EXPECT_EQ(Seen, Log{}) << "coming with the keyboard chooses nothing";
    const auto& tabBar = dynamic_cast<QTabBar&>(WidgetOf(tabs));
    const auto& view = dynamic_cast<QListView&>(WidgetOf(list));
    const QPoint second = view.visualRect(view.model()->index(1, 0)).center();
    EXPECT_EQ(Click(tabBar, tabBar.tabRect(2).center()), "3");
    EXPECT_EQ(Click(tabBar, {200, 80}), "") << "the pages' ground";
    EXPECT_EQ(Click(*view.viewport(), second), "one");
    EXPECT_EQ(Click(*view.viewport(), second), "one") << "the same one again";
    EXPECT_EQ(Click(*view.viewport(), {100, 70}), "") << "below the last entry";
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
