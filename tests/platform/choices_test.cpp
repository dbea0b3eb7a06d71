// What a player chooses and types, and what that fires.
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QListView>
#include <QMimeData>
#include <QTabBar>
#include <QTest>

#include "platform/bare_program.h"
#include "platform/check_box.h"
#include "platform/combo_box.h"
#include "platform/frame.h"
#include "platform/list_box.h"
#include "platform/option_button.h"
#include "platform/scroll_bar.h"
#include "platform/tab_strip.h"
#include "platform/text_box.h"

namespace trameli {
namespace {

using Names = std::vector<std::string>;

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
    void Type(const char* letters) {
        for (; *letters != 0; ++letters) {
            QTest::keyClick(WindowOf(TheForm).windowHandle(), *letters);
        }
    }
};

struct Stroke {
    int Key;
    Qt::KeyboardModifiers Modifiers;
    const char* Told;
};

TEST_F(ChoicesTest, KeysChangeWhatHasTheKeyboard) {
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
        std::vector<Stroke> Strokes;
    } rows[] = {
        {check,
         {{Qt::Key_Space, {}, "1 "},
          {Qt::Key_Return, {}, "0 "},
          {Qt::Key_Right, {}, ""},
          {Qt::Key_Space, {}, "1 "}}},
        {tabs,
         {{Qt::Key_Left, {}, ""},
          {Qt::Key_Right, {}, "2 "},
          {Qt::Key_End, {}, "3 "},
          {Qt::Key_Right, {}, ""},
          {Qt::Key_Home, {}, "1 "},
          {Qt::Key_W, Qt::AltModifier, "2 "},
          {Qt::Key_C, Qt::AltModifier, "0 "}}},  // the box
        {bar,
         {{Qt::Key_Left, {}, ""},
          {Qt::Key_Right, {}, "3 "},
          {Qt::Key_PageDown, {}, "7 "},
          {Qt::Key_End, {}, "60 "},
          {Qt::Key_Home, {}, "2 "}}},
        {list,
         {{Qt::Key_Down, {}, "0 "},
          {Qt::Key_Down, {}, "1 "},
          {Qt::Key_End, {}, "2 "},
          {Qt::Key_Down, {}, ""},
          {Qt::Key_X, {}, ""}}},
        {combo, {{Qt::Key_Down, {}, "0 "}, {Qt::Key_Down, {}, "1 "}, {Qt::Key_X, {}, ""}}},
    };
    Bring();
    for (const auto& row : rows) {
        row.Control.SetFocus();
        EXPECT_EQ(Told(), "") << "coming with the keyboard chooses nothing";
        for (const Stroke& stroke : row.Strokes) {
            SCOPED_TRACE(row.Control.Name() + " " + std::to_string(stroke.Key));
            Tap(TheForm, stroke.Key, stroke.Modifiers);
            EXPECT_EQ(Told(), stroke.Told);
        }
    }
    // By code, whatever is not there or is so already changes nothing.
    check.Value(true);
    for (const int value : {3, 3, 0, 4}) {
        tabs.SelectedTab(value);
    }
    for (const int value : {1, 1, -2, 3, -1, 0}) {
        combo.ListIndex(value);
        list.ListIndex(value);
    }
    EXPECT_EQ(Told(), "1 3 1 -1 -1 0 0 ");
}

TEST_F(ChoicesTest, MouseChoosesWhatItHits) {
    CheckBox check(TheForm, "Check", {300, 300, 3000, 450}, "Check");
    TabStrip tabs(TheForm, "Tabs", {300, 900, 6000, 1500}, {"One", "Two", "Three"});
    ListBox list(TheForm, "List", {300, 3000, 3000, 1200});
    list.AddItem("zero");
    list.AddItem("one");
    check.Click = NotingValue([&] { return int{check.Value()}; });
    tabs.Click = NotingValue([&] { return tabs.SelectedTab(); });
    list.Click = NotingValue([&] { return list.ListIndex(); });
    Bring();
    const auto click = [&](const VisualControl& control, QPoint where) {
        QWindow* const window = WindowOf(TheForm).windowHandle();
        QTest::mouseClick(window, Qt::LeftButton, {},
                          WidgetOf(control).mapTo(&WindowOf(TheForm), where));
        return Told();
    };
    const auto& bar = dynamic_cast<QTabBar&>(WidgetOf(tabs));
    const auto& view = dynamic_cast<QListView&>(WidgetOf(list));
    const QPoint second =
        view.viewport()->mapTo(&view, view.visualRect(view.model()->index(1, 0)).center());
    EXPECT_EQ(click(check, {100, 15}), "1 ");
    EXPECT_EQ(click(tabs, bar.tabRect(2).center()), "3 ");
    EXPECT_EQ(click(tabs, {200, 80}), "") << "the pages' ground";
    EXPECT_EQ(click(list, second), "1 ");
    EXPECT_EQ(click(list, second), "1 ") << "the same one again";
    EXPECT_EQ(click(list, {100, 70}), "") << "below the last entry";
    EXPECT_EQ(list.Text(), "one");
    list.Clear();
    EXPECT_EQ(Told() + list.Text(), "");
}

TEST_F(ChoicesTest, OneOptionOfAContainerIsChosen) {
    Frame frame(TheForm, "Frame", {0, 0, 3000, 3000});
    OptionButton one(frame, "one", {150, 300, 2500, 400}, "1");
    OptionButton two(frame, "two", {150, 900, 2500, 400}, "2");
    OptionButton apart(TheForm, "apart", {3300, 300, 2500, 400}, "3");
    for (OptionButton* option : {&one, &two, &apart}) {
        option->Click = Noting(option->Name());
    }
    apart.Value(true);
    two.Value(true);
    Bring();
    EXPECT_TRUE(WidgetOf(two).hasFocus()) << "the chosen one stands for its container";
    Tap(TheForm, Qt::Key_Up);
    EXPECT_TRUE(one.Value() && !two.Value() && apart.Value());
    ClickOn(two);
    ClickOn(two);
    Tap(TheForm, Qt::Key_Tab);
    EXPECT_TRUE(WidgetOf(apart).hasFocus());
    two.Value(false);
    EXPECT_FALSE(two.Value()) << "code can give up the chosen one";
    EXPECT_EQ(Seen, (Names{"apart", "two", "one", "two"}));
}

TEST_F(ChoicesTest, TextTakesOnlyWhatIsAccepted) {
    TextBox box(TheForm, "Box", {300, 300, 3000, 450});
    box.Accepts = [](const std::string& text) { return text.find('/') == std::string::npos; };
    box.Change = [&] { Seen.push_back(box.Text()); };
    Bring();
    box.SetFocus();
    const auto paste = [&](const QString& text) {
        QApplication::clipboard()->setText(text);
        Tap(TheForm, Qt::Key_V, Qt::ControlModifier);
        return Told();
    };
    const auto drop = [&](const QString& text) {
        QMimeData data;
        data.setText(text);
        QDragEnterEvent enter({5, 15}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&WidgetOf(box), &enter);
        QDropEvent event({5, 15}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&WidgetOf(box), &event);
        return Told();
    };
    Type("a/b");
    EXPECT_EQ(Told(), "a ab ");
    EXPECT_EQ(paste("c/d"), "");
    EXPECT_EQ(paste("cd"), "abcd ");
    EXPECT_EQ(drop("/"), "");
    EXPECT_EQ(drop("e"), "eabcd ");
    Tap(TheForm, Qt::Key_End);
    Tap(TheForm, Qt::Key_Backspace);
    EXPECT_EQ(Told(), "eabc ");
    box.Text("1/2");
    box.Text("");
    EXPECT_EQ(Told(), "1/2  ") << "code may set what it likes";
}

TEST_F(ChoicesTest, AssistiveTechnologyIsToldOfAll) {
    CheckBox check(TheForm, "Check", {300, 300, 3000, 450}, "&Check");
    OptionButton option(TheForm, "Option", {300, 300, 3000, 450}, "&Option");
    Frame frame(TheForm, "Frame", {300, 300, 3000, 450}, "&Frame");
    TabStrip tabs(TheForm, "Tabs", {300, 900, 6000, 1500}, {"&Tabs", "Two"});
    ListBox list(TheForm, "List", {300, 300, 3000, 450});
    TextBox text(TheForm, "Text", {300, 300, 3000, 450});
    HScrollBar bar(TheForm, "Bar", {300, 300, 3000, 450}, 0, 9, 1);
    for (InteractiveControl* control :
         std::initializer_list<InteractiveControl*>{&list, &text, &bar}) {
        control->AccessibleName(control->Name());
    }
    Bring();
    const struct {
        VisualControl& Control;
        QAccessible::Role Role;
    } rows[] = {
        {check, QAccessible::CheckBox}, {option, QAccessible::RadioButton},
        {frame, QAccessible::Grouping}, {tabs, QAccessible::PageTabList},
        {list, QAccessible::List},      {text, QAccessible::EditableText},
        {bar, QAccessible::ScrollBar},
    };
    for (const auto& row : rows) {
        auto* const seen = QAccessible::queryAccessibleInterface(&WidgetOf(row.Control));
        EXPECT_EQ(seen->role(), row.Role) << row.Control.Name();
        EXPECT_EQ(seen->text(QAccessible::Name), QString::fromStdString(row.Control.Name()));
    }
    auto* const tab = QAccessible::queryAccessibleInterface(&WidgetOf(tabs))->child(0);
    EXPECT_EQ(tab->role(), QAccessible::PageTab);
    EXPECT_EQ(tab->text(QAccessible::Name), "Tabs");
}

}  // namespace
}  // namespace trameli
