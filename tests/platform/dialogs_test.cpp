// The toolkit's dialogs as a player meets them, and documents opened outside the program.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QColorDialog>
#include <QDesktopServices>
#include <QMessageBox>
#include <QSpinBox>
#include <QTimer>
#include <QUrl>

#include "platform/qt/desktop_dialogs.h"
#include "platform/qt/desktop_documents.h"
#include "platform/scripted_form.h"

namespace trameli {
namespace {

class DialogsTest : public ScriptedProgram {
protected:
    /// Shows a message and does something with its box while it is open.
    Answer Ask(Buttons buttons, const std::function<void(QMessageBox&)>& action) {
        QTimer::singleShot(
            0, [&] { action(dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget())); });
        return Dialogs_.Message("text", "title", Icon::Question, buttons);
    }

    DesktopDialogs Dialogs_;
};

TEST_F(DialogsTest, MessagesReturnTheButtonThatWasPressed) {
    const struct {
        trameli::Buttons Buttons;
        QMessageBox::StandardButton Pressed;  ///< none: the box is closed
        trameli::Answer Answer;
    } rows[] = {
        {Buttons::Ok, QMessageBox::NoButton, Answer::Ok},
        {Buttons::OkCancel, QMessageBox::Ok, Answer::Ok},
        {Buttons::OkCancel, QMessageBox::NoButton, Answer::Cancel},
        {Buttons::YesNo, QMessageBox::Yes, Answer::Yes},
        {Buttons::YesNo, QMessageBox::NoButton, Answer::No},
        {Buttons::YesNoCancel, QMessageBox::NoButton, Answer::Cancel},
    };
    for (const auto& row : rows) {
        const Answer answer = Ask(row.Buttons, [&](QMessageBox& box) {
            row.Pressed == QMessageBox::NoButton ? void(box.close())
                                                 : box.button(row.Pressed)->click();
        });
        EXPECT_EQ(answer, row.Answer) << static_cast<int>(row.Buttons) << ", " << row.Pressed;
    }
}

TEST_F(DialogsTest, SpeakALanguageThatIsInstalledElseEnglish) {
    for (const auto& [language, text] : {std::pair{"it", "Annulla"},
                                         {"tlh", "Cancel"},
                                         {"de", "Abbrechen"},
                                         {"", "Cancel"},
                                         {"pt_PT", "Cancelar"},
                                         {"en", "Cancel"}}) {
        Dialogs_.Language(language);
        QString seen;
        Ask(Buttons::OkCancel, [&](QMessageBox& box) {
            seen = box.button(QMessageBox::Cancel)->text();
            box.close();
        });
        EXPECT_EQ(seen.remove('&'), text) << language;
    }
}

TEST_F(DialogsTest, AColourIsChosenByKeyboardOrNot) {
    Bring("A");
    for (const int key : {int{Qt::Key_Return}, int{Qt::Key_Escape}}) {
        QTimer::singleShot(0, [&] {
            auto& dialog = dynamic_cast<QColorDialog&>(*QApplication::activeModalWidget());
            EXPECT_EQ(dialog.currentColor(), QColor(Qt::black));
            // Hue, saturation, value, and then the three of the colour.
            auto* const red = dialog.findChildren<QSpinBox*>().value(3);
            red->setFocus();
            red->selectAll();
            QTest::keyClicks(red, "77");
            QTest::keyClick(&dialog, static_cast<Qt::Key>(key));
        });
        EXPECT_EQ(Dialogs_.ChooseColour(),
                  key == Qt::Key_Return ? std::optional(Rgb(77, 0, 0)) : std::nullopt);
    }
    EXPECT_EQ(Times("A KeyUp 13"), 0);
}

TEST_F(DialogsTest, ABouncingSwitchClosesNoneBeforeItCanBeRead) {
    Program.SwitchesInUse([] { return true; });
    for (const auto& [waited, pressed] : {std::pair{0.49, false}, {0.51, true}}) {
        Ask(Buttons::Ok, [&](QMessageBox& box) {
            Time.Advance(waited);
            QTest::keyClick(box.button(QMessageBox::Ok), Qt::Key_Space);
            EXPECT_EQ(!box.isVisible(), pressed) << waited;
            box.close();
        });
    }
}

TEST_F(DialogsTest, OutliveTheirWindowAndEndWithTheProgram) {
    Bring("B");
    Bring("A");
    EXPECT_EQ(Ask(Buttons::OkCancel,
                  [&](QMessageBox& box) {
                      const QPointer<QMessageBox> still = &box;
                      Program.Unload(Get("A"));
                      Pump();
                      if (still) {
                          still->button(QMessageBox::Ok)->click();
                      }
                  }),
              Answer::Cancel);
    QTimer::singleShot(0, [&] { Program.End(); });
    EXPECT_EQ(Dialogs_.ChooseColour(), std::nullopt);
}

/// Stands in for the program that shows documents.
class Viewer : public QObject {
    Q_OBJECT
public:
    QList<QUrl> Shown;

public slots:
    void Show(const QUrl& url) { Shown << url; }
};

TEST(DocumentsTest, AreHandedToTheDesktopIfTheyAreThere) {
    Viewer viewer;
    QDesktopServices::setUrlHandler("file", &viewer, "Show");
    const TemporaryFolder folder;
    Write(folder.Path() / "Manuale è #1.pdf", "");
    DesktopDocuments documents{LocalFileSystem(folder.Path())};
    documents.Open("C:\\manuale è #1.PDF");
    documents.Open("C:\\missing.pdf");
    documents.Open("C:\\");
    QDesktopServices::unsetUrlHandler("file");
    ASSERT_EQ(viewer.Shown.size(), 1);
    EXPECT_EQ(viewer.Shown[0].toLocalFile().toStdString(), folder.Path() / "Manuale è #1.pdf");
}

}  // namespace
}  // namespace trameli

#include "dialogs_test.moc"
