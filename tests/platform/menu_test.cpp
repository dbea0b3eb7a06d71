// Menus: entries, marks, and entries that come and go.
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "platform/bare_program.h"
#include "platform/command_button.h"
#include "platform/control_array.h"
#include "platform/menu.h"

namespace trameli {
namespace {

class MenuTest : public BareProgram {
protected:
    QMenuBar& Bar() { return *WindowOf(TheForm).findChild<QMenuBar*>(); }
    /// Opens the first menu of the bar by hand.
    QMenu* Open(int number = 0) {
        QTest::mouseClick(WindowOf(TheForm).windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          Bar().mapTo(&WindowOf(TheForm),
                                      Bar().actionGeometry(Bar().actions().at(number)).center()));
        Pump();
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    static void Close() {
        while (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
        }
        Pump();
    }
    /// The texts of the entries that can be seen in the first menu, disabled ones in brackets.
    std::vector<std::string> Entries() {
        std::vector<std::string> texts;
        if (QMenu* menu = Open()) {
            for (const QAction* entry : menu->actions()) {
                if (!menu->actionGeometry(const_cast<QAction*>(entry)).isEmpty()) {
                    const std::string text =
                        (entry->isChecked() ? "*" : "") + entry->text().toStdString();
                    texts.push_back(entry->isEnabled() ? text : "[" + text + "]");
                }
            }
        }
        Close();
        return texts;
    }
    void Choose(int entry) {
        QMenu* menu = Open();
        ASSERT_NE(menu, nullptr);
        QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          menu->actionGeometry(menu->actions().at(entry)).center());
        Close();
    }
};

using Texts = std::vector<std::string>;

TEST_F(MenuTest, ShowsWhatWasSet) {
    MenuItem menu(TheForm, "mnuMenu", "&Menu");
    MenuItem one(menu, "mnuOne", "One", 'O');
    MenuItem two(menu, "mnuTwo", "Two");
    one.Click = Noting("One");
    two.Click = Noting("Two");
    Bring();
    EXPECT_EQ(Entries(), (Texts{"One", "Two"}));
    one.Enabled(false);
    two.Checked(true);
    EXPECT_EQ(Entries(), (Texts{"[One]", "*Two"}));
    Tap(TheForm, Qt::Key_O, Qt::ControlModifier);
    Choose(0);
    EXPECT_TRUE(Seen.empty()) << "it is disabled";
    one.Enabled(true);
    one.Visible(false);
    two.Checked(false);
    EXPECT_EQ(Entries(), Texts{"Two"});
    Tap(TheForm, Qt::Key_O, Qt::ControlModifier);
    EXPECT_TRUE(Seen.empty()) << "it is invisible";
    one.Visible(true);
    one.Caption("Uno");
    EXPECT_EQ(Entries(), (Texts{"Uno", "Two"}));
    Choose(0);
    Choose(1);
    Tap(TheForm, Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(Seen, (Texts{"One", "Two", "One"}));
    menu.Enabled(false);
    Tap(TheForm, Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(Seen.size(), 3U) << "with its menu all entries are out of reach";
    EXPECT_TRUE(Entries().empty());
}

TEST_F(MenuTest, MarkIsTheProgramsToSet) {
    MenuItem menu(TheForm, "mnuMenu", "&Menu");
    MenuItem entry(menu, "mnuEntry", "Entry", 'E');
    entry.Click = Noting("Entry");
    Bring();
    for (const bool checked : {true, false}) {
        entry.Checked(checked);
        Choose(0);
        EXPECT_EQ(entry.Checked(), checked);
        EXPECT_EQ(Entries(), Texts{checked ? "*Entry" : "Entry"}) << "choosing is not marking";
        Tap(TheForm, Qt::Key_E, Qt::ControlModifier);
        EXPECT_EQ(Entries(), Texts{checked ? "*Entry" : "Entry"});
    }
    entry.Click = [&] { entry.Checked(!entry.Checked()); };
    Choose(0);
    EXPECT_EQ(Entries(), Texts{"*Entry"});
    Choose(0);
    EXPECT_EQ(Entries(), Texts{"Entry"});
}

TEST_F(MenuTest, EntriesComeAndGo) {
    MenuItem menu(TheForm, "mnuMenu", "&Menu");
    MenuItem before(menu, "mnuBefore", "Before");
    ControlArray<MenuItem> entries("mnuUser");
    entries.Add(menu, "User");
    MenuItem after(menu, "mnuAfter", "After");
    Bring();
    for (const int index : {3, 1, 2}) {
        entries.Load(index);
        EXPECT_FALSE(entries(index).Visible());
    }
    EXPECT_EQ(Entries(), (Texts{"Before", "User", "After"})) << "invisible at first";
    for (const int index : {1, 2, 3}) {
        entries(index).Caption("User " + std::to_string(index));
        entries(index).Visible(true);
        entries(index).Click = Noting("User " + std::to_string(index));
    }
    EXPECT_EQ(Entries(), (Texts{"Before", "User", "User 1", "User 2", "User 3", "After"}))
        << "beside the first one, in the order of the indices";
    entries.Unload(2);
    EXPECT_EQ(Entries(), (Texts{"Before", "User", "User 1", "User 3", "After"}));
    EXPECT_EQ(entries.Count(), 3);
    Choose(static_cast<int>(Bar().actions().front()->menu()->actions().size()) - 2);
    EXPECT_EQ(Seen, Texts{"User 3"});
}

TEST_F(MenuTest, EntryMayGoInItsOwnClick) {
    MenuItem menu(TheForm, "mnuMenu", "&Menu");
    ControlArray<MenuItem> entries("mnuUser");
    entries.Add(menu, "User");
    Bring();
    entries.Load(1).Visible(true);
    entries(1).Click = [this, &entries, text = std::string(100, 'x')] {
        entries.Unload(1);
        Seen.push_back(text);  // what the routine holds must live as long as it runs
    };
    Choose(1);
    EXPECT_EQ(Seen, Texts{std::string(100, 'x')});
    EXPECT_EQ(Entries(), Texts{"User"});
}

TEST_F(MenuTest, BarTakesItsRoomFromTheWindowNotFromTheForm) {
    const double before = TheForm.Height();
    MenuItem menu(TheForm, "mnuMenu", "&Menu");
    EXPECT_EQ(TheForm.Height(), before);
    CommandButton button(TheForm, "Button", {0, 0, 900, 600});
    Bring();
    EXPECT_EQ(TheForm.Height() / 15 + Bar().height(), 600);
    EXPECT_EQ(WidgetOf(button).mapTo(&WindowOf(TheForm), QPoint(0, 0)).y(), Bar().height());
}

}  // namespace
}  // namespace trameli
