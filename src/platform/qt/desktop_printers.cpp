#include "platform/qt/desktop_printers.h"

#include <algorithm>
#include <utility>

#include "platform/form.h"
#include "platform/qt/handover.h"
#include "platform/qt/page_context.h"
#include "platform/qt/printer_properties.h"

namespace trameli {

namespace {

/// A printer of which all is known.
class KnownPrinter final : public Printer {
public:
    explicit KnownPrinter(PrinterFacts facts) : facts_(std::move(facts)) {}

    bool Merge(PrinterSettings& settings) override {
        settings = Fitting(facts_, settings);
        return true;
    }
    bool Properties(PrinterSettings& settings, const PropertyTexts& texts) override {
        PropertyChoices choices;
        for (const Paper& paper : facts_.Papers) {
            choices.Papers.emplace_back(paper.Key, NameOf(paper));
        }
        choices.CanColour = facts_.CanColour;
        PrinterSettings fitting = Fitting(facts_, settings);
        fitting.Copies = settings.Copies;  // which any printer can make, one job after the other
        if (!AskProperties(fitting, facts_.Name, choices, texts)) {
            return false;
        }
        settings = fitting;
        return true;
    }

private:
    PrinterFacts facts_;
};

/// What the printer that makes files is called. A queue can have the plain name, but none can have
/// a blank in it.
std::string PdfName(const QueueList& queues) {
    const auto& names = queues.Names;
    const bool taken = std::find(names.begin(), names.end(), "PDF") != names.end();
    return taken ? "PDF (Trameli)" : "PDF";
}

QImage ClientPicture(const Form& form) {
    const PixelSize size = form.ClientPixels();
    PixelBlock block{size.Width, size.Height, (size.Width * 3 + 3) / 4 * 4, nullptr};
    std::vector<std::uint8_t> bits(static_cast<std::size_t>(block.BytesPerRow) *
                                   static_cast<std::size_t>(std::max(0, size.Height)));
    block.Bits = bits.data();
    return form.ReadClientPixels(block) > 0 ? PictureOf(block) : QImage();
}

/// The middle of a page, as much of it as a picture can fill without changing its proportions.
PixelRectangle Largest(const PageFormat& format, QSize picture) {
    // Pixels need not be square, millimetres are.
    const QSizeF sheet(format.Millimetres.Width, format.Millimetres.Height);
    const QSizeF size = QSizeF(picture).scaled(sheet, Qt::KeepAspectRatio);
    const double across = format.Pixels.Width / sheet.width();
    const double down = format.Pixels.Height / sheet.height();
    return {qRound((sheet.width() - size.width()) / 2 * across),
            qRound((sheet.height() - size.height()) / 2 * down), qRound(size.width() * across),
            qRound(size.height() * down)};
}

}  // namespace

DesktopPrinters::DesktopPrinters(PdfOptions pdf)
    : pdf_(std::make_shared<PdfPrinter>(std::move(pdf))) {}

std::vector<std::string> DesktopPrinters::Names() {
    const QueueList queues = queues_.All();
    std::vector<std::string> names = queues.Names;
    names.push_back(PdfName(queues));
    return names;
}

std::string DesktopPrinters::Default() {
    const QueueList queues = queues_.All();
    return queues.Default.empty() ? PdfName(queues) : queues.Default;
}

bool DesktopPrinters::IsPdf(const std::string& name) const {
    return name == PdfName(queues_.Known()->All());
}

std::unique_ptr<Printer> DesktopPrinters::Open(const std::string& name) {
    auto facts = IsPdf(name) ? pdf_->Facts(name) : queues_.Look(name);
    return facts ? std::make_unique<KnownPrinter>(std::move(*facts)) : nullptr;
}

std::unique_ptr<PrintContext> DesktopPrinters::CreateContext(const std::string& name,
                                                             const PrinterSettings& settings) {
    // The print window asks for the sheet at every turn, just after it has opened the printer.
    const auto printer = IsPdf(name) ? pdf_->Facts(name) : queues_.LastLook(name);
    if (!printer) {
        return nullptr;
    }
    return std::make_unique<PageContext>(
        FormatOf(*printer, settings),
        [this, printer = *printer, settings](const PrintedDocument& document) {
            const auto handover = std::make_shared<Handover>(queues_.Known(), pdf_);
            const bool taken = errands_.Run([=](const Errands::Progress& progress) {
                return handover->Print(printer, settings, document, progress);
            });
            if (taken) {
                handover->Show();
            }
            return taken;
        });
}

void DesktopPrinters::PrintForm(const Form& form, const std::string& name) {
    const QImage picture = ClientPicture(form);
    if (picture.isNull()) {
        return;
    }
    PrinterSettings settings;
    settings.Orientation = formOrientation_;
    const auto handover = std::make_shared<Handover>(queues_.Known(), pdf_);
    errands_.Send(
        [=](const Errands::Progress& progress) {
            const PrinterFacts printer = handover->AskForDefault();
            const PageFormat format = FormatOf(printer, settings);
            if (!format.HasRoom()) {
                return false;
            }
            const PixelRectangle where = Largest(format, picture.size());
            return handover->Print(printer, settings, {name, {{{where, picture}}}}, progress);
        },
        [handover](bool taken) {
            if (taken) {
                handover->Show();
            }
        });
}

}  // namespace trameli
