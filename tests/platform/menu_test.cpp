// Menus: entries, marks, and entries that come and go.
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "platform/bare_program.h"
#include "platform/control_array.h"
#include "platform/menu.h"

namespace trameli {
namespace {

using Texts = std::vector<std::string>;

class MenuTest : public BareProgram {
protected:
    QMenuBar& Bar() { return *WindowOf(TheForm).findChild<QMenuBar*>(); }
    /// Opens the menu by hand; nothing if it does not open.
    QMenu* Open() {
        QTest::mouseClick(WindowOf(TheForm).windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          Bar().mapTo(&WindowOf(TheForm),
                                      Bar().actionGeometry(Bar().actions().front()).center()));
        Pump();
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    static void Close() {
        while (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
        }
        Pump();
    }
    /// The texts of the entries that can be seen, marked ones with a star, disabled ones in
    /// brackets.
    Texts Entries() {
        Texts texts;
        if (QMenu* menu = Open()) {
            for (QAction* entry : menu->actions()) {
                if (!menu->actionGeometry(entry).isEmpty()) {
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

    MenuItem Menu{TheForm, "mnuMenu", "&Menu"};
};

TEST_F(MenuTest, EntriesAreWhatWasSet) {
    MenuItem one(Menu, "mnuOne", "One", 'O');
    MenuItem two(Menu, "mnuTwo", "Two");
    one.Click = Noting("One");
    two.Click = Noting("Two");
    Bring();
    const auto tapOne = [this] { Tap(TheForm, Qt::Key_O, Qt::ControlModifier); };
    one.Enabled(false);
    one.Caption("Uno");
    two.Checked(true);
    EXPECT_EQ(Entries(), (Texts{"[Uno]", "*Two"}));
    tapOne();
    Choose(0);
    one.Enabled(true);
    one.Visible(false);
    EXPECT_EQ(Entries(), Texts{"*Two"});
    tapOne();
    EXPECT_TRUE(Seen.empty()) << "it is disabled, then invisible";
    one.Visible(true);
    Choose(0);
    tapOne();
    Choose(1);
    EXPECT_EQ(Seen, (Texts{"One", "One", "Two"}));
    EXPECT_EQ(Entries(), (Texts{"Uno", "*Two"})) << "choosing is not marking";
    two.Checked(false);
    Choose(1);
    EXPECT_EQ(Entries(), (Texts{"Uno", "Two"}));
    Menu.Enabled(false);
    EXPECT_TRUE(Entries().empty());
}

TEST_F(MenuTest, EntriesComeAndGo) {
    MenuItem before(Menu, "mnuBefore", "Before");
    ControlArray<MenuItem> entries("mnuUser");
    entries.Add(Menu, "User");
    MenuItem after(Menu, "mnuAfter", "After");
    Bring();
    for (const int index : {3, 1, 2}) {
        entries.Load(index).Caption("User " + std::to_string(index));
    }
    EXPECT_EQ(Entries(), (Texts{"Before", "User", "After"})) << "invisible at first";
    entries.ForEach([](MenuItem& entry) { entry.Visible(true); });
    EXPECT_EQ(Entries(), (Texts{"Before", "User", "User 1", "User 2", "User 3", "After"}))
        << "beside the first one, in the order of the indices";
    entries(2).Click = [this, &entries, text = std::string(100, 'x')] {
        entries.Unload(2);
        Seen.push_back(text);  // what the routine holds must live as long as it runs
    };
    Choose(3);
    EXPECT_EQ(Seen, Texts{std::string(100, 'x')});
    EXPECT_EQ(Entries(), (Texts{"Before", "User", "User 1", "User 3", "After"}));
    entries.Unload(1);
    entries.Unload(3);
    const MenuItem between(Menu, "mnuBetween", "Between", 0, &after);
    EXPECT_EQ(Entries(), (Texts{"Before", "User", "Between", "After"}));
}

}  // namespace
}  // namespace trameli
