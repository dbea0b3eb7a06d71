// What a player chooses.
#include <QListView>
#include <QTabBar>
#include <QTest>

#include "platform/bare_program.h"
#include "platform/list_box.h"
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

}  // namespace
}  // namespace trameli
