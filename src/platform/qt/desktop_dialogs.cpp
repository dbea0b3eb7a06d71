#include "platform/qt/desktop_dialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>

#include "platform/qt/convert.h"
#include "platform/qt/run_dialog.h"

namespace trameli {

namespace {

QMessageBox::Icon ToQt(Icon icon) {
    switch (icon) {
        case Icon::Critical:
            return QMessageBox::Critical;
        case Icon::Question:
            return QMessageBox::Question;
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ToQt(Buttons buttons) {
    switch (buttons) {
        case Buttons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case Buttons::Ok:
            break;
    }
    return QMessageBox::Ok;
}

/// What it means to close a box without pressing a button.
Answer Closed(Buttons buttons) {
    return buttons == Buttons::Ok      ? Answer::Ok
           : buttons == Buttons::YesNo ? Answer::No
                                       : Answer::Cancel;
}

}  // namespace

Answer DesktopDialogs::Message(const std::string& text, const std::string& title, Icon icon,
                               Buttons buttons) {
    const QPointer box = new QMessageBox(ToQt(icon), ToQt(title), ToQt(text), ToQt(buttons),
                                         QApplication::activeWindow());
    box->setTextFormat(Qt::PlainText);
    RunDialog(*box);
    const int pressed = box ? box->result() : QMessageBox::NoButton;
    delete box;
    switch (pressed) {
        case QMessageBox::Ok:
            return Answer::Ok;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        default:
            return Closed(buttons);
    }
}

std::optional<Colour> DesktopDialogs::ChooseColour() {
    const QPointer dialog = new QColorDialog(Qt::black, QApplication::activeWindow());
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    // The toolkit would keep these for the next user.
    for (int i = 0; i < QColorDialog::customCount(); ++i) {
        QColorDialog::setCustomColor(i, Qt::black);
    }
    RunDialog(*dialog);
    std::optional<Colour> chosen;
    if (dialog && dialog->result() == QDialog::Accepted) {
        const QColor colour = dialog->selectedColor();
        chosen = Rgb(colour.red(), colour.green(), colour.blue());
    }
    delete dialog;
    return chosen;
}

void DesktopDialogs::Language(const std::string& locale) {
    QCoreApplication::removeTranslator(&texts_);
    const QLocale wanted(ToQt(locale));
    // Of some languages there are only the texts of one country, which is better than none.
    for (const QLocale& language : {wanted, QLocale(wanted.language())}) {
        if (texts_.load(language, QStringLiteral("qtbase"), QStringLiteral("_"),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
            QCoreApplication::installTranslator(&texts_);
            return;
        }
    }
}

}  // namespace trameli
