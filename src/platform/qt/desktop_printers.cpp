#include "platform/qt/desktop_printers.h"

#include <algorithm>
#include <utility>

#include "platform/qt/page_format.h"
#include "platform/qt/pdf_pages.h"

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
    bool Properties(PrinterSettings&, const PropertyTexts&) override { return false; }

private:
    PrinterFacts facts_;
};

}  // namespace

DesktopPrinters::DesktopPrinters(PdfOptions pdf)
    : pdf_(std::make_shared<PdfPrinter>(std::move(pdf))) {}

std::string DesktopPrinters::PdfName() const {
    // A queue can have the plain name, but no blank in it.
    const std::vector<std::string> queues = queues_.LastAll().Names;
    const bool taken = std::find(queues.begin(), queues.end(), "PDF") != queues.end();
    return taken ? "PDF (Trameli)" : "PDF";
}

std::vector<std::string> DesktopPrinters::Names() {
    std::vector<std::string> names = queues_.All().Names;
    names.push_back(PdfName());
    return names;
}

std::string DesktopPrinters::Default() {
    const std::string queue = queues_.All().Default;
    return queue.empty() ? PdfName() : queue;
}

std::optional<PrinterFacts> DesktopPrinters::Facts(const std::string& name) {
    return name == PdfName() ? pdf_->Facts(name) : queues_.Facts(name);
}

std::unique_ptr<Printer> DesktopPrinters::Open(const std::string& name) {
    auto facts = Facts(name);
    return facts ? std::make_unique<KnownPrinter>(std::move(*facts)) : nullptr;
}

std::unique_ptr<PrintContext> DesktopPrinters::CreateContext(const std::string& name,
                                                             const PrinterSettings& settings) {
    const auto facts = Facts(name);
    if (!facts) {
        return nullptr;
    }
    const PageFormat format = FormatOf(*facts, settings);
    return std::make_unique<PageContext>(format, [this, format](PageContext::Document document) {
        return DeliverToPdf(document, format);
    });
}

bool DesktopPrinters::DeliverToPdf(const PageContext::Document& document,
                                   const PageFormat& format) {
    const auto place = std::make_shared<std::filesystem::path>();
    const bool printed =
        errands_.Run([pdf = pdf_, document, format, now = pdf_->Now(), place](const auto&) {
            const auto made =
                pdf->Print(document.Name, now, PdfOf(document.Pages, format, document.Name));
            *place = made.value_or(std::filesystem::path());
            return made.has_value();
        });
    if (printed) {
        pdf_->Show(*place);
    }
    return printed;
}

void DesktopPrinters::PrintForm(const Form&, const std::string&) {}

}  // namespace trameli
