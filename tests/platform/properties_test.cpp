// The dialog for a printer's settings, by keyboard.
#include <QAccessible>
#include <QComboBox>
#include <QDialog>
#include <QTest>
#include <QTimer>

#include "platform/bare_program.h"
#include "platform/qt/printer_properties.h"

namespace trameli {
namespace {

class PropertiesTest : public BareProgram {
protected:
    /// Opens the dialog and does something with it. Returns whether the settings were taken over.
    bool Ask(const std::function<void(QDialog&)>& action) {
        QTimer::singleShot(0, [&] {
            Pump();  // until it has the keyboard
            action(dynamic_cast<QDialog&>(*QApplication::activeModalWidget()));
        });
        return AskProperties(Settings, Printer, Choices, Texts);
    }
    /// What assistive technology reads of what has the keyboard: its label, name and value.
    static std::string Read(const QDialog& dialog) {
        const auto* told = QAccessible::queryAccessibleInterface(dialog.focusWidget());
        QString read;
        for (const auto& [label, kind] : told->relations(QAccessible::Label)) {
            read += label->text(QAccessible::Name) + ": ";
        }
        read += told->text(QAccessible::Name);
        const QString value = told->text(QAccessible::Value);
        return (read + (value.isEmpty() ? "" : " " + value) +
                (told->state().checked ? " chosen" : ""))
            .toStdString();
    }
    static void Keys(QDialog& dialog, std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys) {
            QTest::keyClick(dialog.windowHandle(), key);
        }
    }

    std::string Printer = "Laser";
    PropertyChoices Choices{{{"a4", "A4 sheet"}, {"a5", "A5 sheet"}}, true};
    PropertyTexts Texts{"Properties of ", "Paper", "Turned", "Upright", "Across", "Ink",
                        "Colours",        "Grey",  "Copies", "Right",   "No"};
    PrinterSettings Settings{PrinterSettings::Portrait,
                             250,
                             PrinterSettings::Coloured,
                             "Laser",
                             {{"media", "a5"}, {"tray", "2"}}};
};

TEST_F(PropertiesTest, AreChangedByKeysAndReadAloudAndEscapeChangesNothing) {
    using enum Qt::Key;
    const PrinterSettings before = Settings;
    for (const Qt::Key end : {Key_Escape, Key_Return}) {
        const bool taken = Ask([&](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Properties of Laser");
            Log read{Read(dialog)};
            const auto change = [&](Qt::Key key) {
                Keys(dialog, {key});
                read.push_back(Read(dialog));
                Keys(dialog, {Key_Tab});
                read.push_back(Read(dialog));
            };
            change(Key_Up);
            change(Key_Right);
            change(Key_Right);
            change(Key_Up);
            EXPECT_EQ(read, (Log{"Paper: A5 sheet A5 sheet", "Paper: A4 sheet A4 sheet",
                                 "Turned: Upright chosen", "Turned: Across chosen",
                                 "Ink: Colours chosen", "Ink: Grey chosen", "Copies: Copies 250",
                                 "Copies: Copies 251", "Right"}));
            Keys(dialog, {Key_Backtab, end});
        });
        EXPECT_EQ(taken, end == Key_Return);
        EXPECT_EQ(Settings == before, !taken);
    }
    EXPECT_EQ(Settings, (PrinterSettings{PrinterSettings::Landscape,
                                         251,
                                         PrinterSettings::Grey,
                                         "Laser",
                                         {{"media", "a4"}, {"tray", "2"}}}));
}

TEST_F(PropertiesTest, OfferNoMoreThanThePrinterCanDoAndFitASmallScreen) {
    const std::string name(300, 'W');
    Printer = name;
    Choices = {{{"a4", name}}, false};
    Texts.Orientation = Texts.Paper = std::string(60, 'W');
    const PrinterSettings before = Settings;
    EXPECT_TRUE(Ask([](QDialog& dialog) {
        EXPECT_LT(dialog.frameGeometry().width(), 800);
        EXPECT_LT(dialog.frameGeometry().height(), 600);
        auto& papers = *dialog.findChild<QComboBox*>();
        QTest::keyClick(&papers, Qt::Key_F4);
        EXPECT_LE(QApplication::activePopupWidget()->width(), 800);
        QTest::keyClick(QApplication::activePopupWidget()->windowHandle(), Qt::Key_Return);
        Keys(dialog, {Qt::Key_Return});
    }));
    EXPECT_EQ(Settings.Colour, before.Colour);
    EXPECT_EQ(Settings.Copies, before.Copies);
}

TEST_F(PropertiesTest, AreCancelledWithTheirWindowAndTheProgram) {
    Bring("B");
    Bring();
    const PrinterSettings before = Settings;
    EXPECT_FALSE(Ask([this](QDialog&) { Program.Unload(TheForm); }));
    EXPECT_FALSE(Ask([this](QDialog&) { Program.End(); }));
    EXPECT_EQ(Settings, before);
}

}  // namespace
}  // namespace trameli
