#include "platform/qt/printer_properties.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include "platform/qt/convert.h"
#include "platform/qt/printer_facts.h"
#include "platform/qt/run_dialog.h"

namespace trameli {

namespace {

/// As many as four digits say, which is what a box for copies takes.
constexpr int MostCopies = 9999;
/// Letters of a paper's name that are shown at least; a longer one is cut off.
constexpr int LettersOfPaper = 30;

/// Two options of which one is chosen, in a box with a title.
class EitherOr : public QGroupBox {
public:
    EitherOr(const std::string& title, const std::string& first, const std::string& second,
             bool isFirst)
        : QGroupBox(ToQt(title)), first_(*new QRadioButton(ToQt(first))) {
        auto* const other = new QRadioButton(ToQt(second));
        auto* const row = new QHBoxLayout(this);
        row->addWidget(&first_);
        row->addWidget(other);
        (isFirst ? &first_ : other)->setChecked(true);
    }

    bool IsFirst() const { return first_.isChecked(); }

private:
    QRadioButton& first_;
};

/// Shows settings, and has a control only for what the printer lets one choose.
class PropertiesDialog : public QDialog {
public:
    PropertiesDialog(const PrinterSettings& settings, const std::string& printer,
                     const PropertyChoices& choices, const PropertyTexts& texts, QWidget* parent)
        : QDialog(parent) {
        setWindowTitle(ToQt(texts.Title + printer));
        auto& rows = *new QFormLayout(this);
        rows.setRowWrapPolicy(QFormLayout::WrapLongRows);
        rows.setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
        AddPapers(rows, settings, choices, texts);
        orientation_ = new EitherOr(texts.Orientation, texts.Portrait, texts.Landscape,
                                    settings.Orientation != PrinterSettings::Landscape);
        rows.addRow(orientation_);
        if (choices.CanColour) {
            colour_ = new EitherOr(texts.Colour, texts.Coloured, texts.Grey,
                                   settings.Colour != PrinterSettings::Grey);
            rows.addRow(colour_);
        }
        copies_ = new QSpinBox;
        copies_->setRange(1, MostCopies);
        copies_->setValue(settings.Copies);
        rows.addRow(ToQt(texts.Copies), copies_);
        auto* const buttons = new QDialogButtonBox;
        auto* const ok = buttons->addButton(ToQt(texts.Ok), QDialogButtonBox::AcceptRole);
        buttons->addButton(ToQt(texts.Cancel), QDialogButtonBox::RejectRole);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        rows.addRow(buttons);
        ok->setDefault(true);  // once it is in the dialog, or it would not stay so
    }

    /// Puts what was chosen into `settings`.
    void Read(PrinterSettings& settings) const {
        if (papers_ && papers_->currentIndex() >= 0) {
            settings.Other[PaperSetting] = FromQt(papers_->currentData().toString());
        }
        settings.Orientation =
            orientation_->IsFirst() ? PrinterSettings::Portrait : PrinterSettings::Landscape;
        if (colour_) {
            settings.Colour =
                colour_->IsFirst() ? PrinterSettings::Coloured : PrinterSettings::Grey;
        }
        settings.Copies = copies_->value();
    }

private:
    void AddPapers(QFormLayout& rows, const PrinterSettings& settings,
                   const PropertyChoices& choices, const PropertyTexts& texts) {
        if (choices.Papers.empty()) {
            return;
        }
        papers_ = new QComboBox;
        papers_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        papers_->setMinimumContentsLength(LettersOfPaper);
        for (const auto& [key, name] : choices.Papers) {
            papers_->addItem(ToQt(name), ToQt(key));
        }
        if (const auto paper = settings.Other.find(PaperSetting); paper != settings.Other.end()) {
            papers_->setCurrentIndex(papers_->findData(ToQt(paper->second)));
        }
        rows.addRow(ToQt(texts.Paper), papers_);
    }

    QComboBox* papers_ = nullptr;
    EitherOr* orientation_ = nullptr;
    EitherOr* colour_ = nullptr;
    QSpinBox* copies_ = nullptr;
};

}  // namespace

bool AskProperties(PrinterSettings& settings, const std::string& printer,
                   const PropertyChoices& choices, const PropertyTexts& texts) {
    const QPointer dialog =
        new PropertiesDialog(settings, printer, choices, texts, QApplication::activeWindow());
    RunDialog(*dialog);
    const bool accepted = dialog && dialog->result() == QDialog::Accepted;
    if (accepted) {
        dialog->Read(settings);
    }
    delete dialog;
    return accepted;
}

}  // namespace trameli
