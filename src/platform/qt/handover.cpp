#include "platform/qt/handover.h"

#include <system_error>
#include <utility>

namespace trameli {

Handover::Handover(std::shared_ptr<KnownQueues> queues, std::shared_ptr<PdfPrinter> pdf)
    : queues_(std::move(queues)), pdf_(std::move(pdf)), time_(pdf_->Now()) {}

PrinterFacts Handover::AskForDefault() {
    queues_->AskForAll();
    const std::string queue = queues_->All().Default;
    if (!queue.empty()) {
        queues_->AskFor(queue);
    }
    return queues_->FactsOf(queue).value_or(pdf_->Facts("PDF"));
}

bool Handover::Print(const PrinterFacts& printer, const PrinterSettings& settings,
                     const PrintedDocument& document, const std::function<bool()>& progress) {
    const PageFormat format = FormatOf(printer, settings);
    const std::string pdf = PdfOf(document.Pages, format, document.Name);
    if (!progress()) {
        return false;
    }
    if (printer.Kind == PrinterFacts::Kinds::Files) {
        made_ = pdf_->Print(document.Name, time_, pdf).value_or(std::filesystem::path());
        if (!progress() && !made_.empty()) {
            std::error_code error;
            std::filesystem::remove(std::exchange(made_, {}), error);
        }
        return !made_.empty();
    }
    const PrinterSettings fitting = Fitting(printer, settings);
    QueueJob job;
    job.Queue = printer.Name;
    job.Name = document.Name;
    job.Pdf = pdf;
    job.Paper = PaperOf(printer, fitting).Key;
    job.ColourWord = format.Grey ? printer.GreyWord : printer.ColourWord;
    job.Copies = fitting.Copies;
    return queues_->Submit(job, progress);
}

void Handover::Show() const {
    if (!made_.empty()) {
        pdf_->Show(made_);
    }
}

}  // namespace trameli
