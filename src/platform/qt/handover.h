// Documents on their way to a printer.
#pragma once

#include <QDateTime>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/printers.h"
#include "platform/qt/known_queues.h"
#include "platform/qt/pdf_pages.h"
#include "platform/qt/pdf_printer.h"

namespace trameli {

/// A document as it was put together.
struct PrintedDocument {
    std::string Name;
    std::vector<PrintedPage> Pages;
};

/// Hands one document over. The window thread makes it and asks for the result to be shown; what
/// lies in between takes its time and may be done by any thread.
class Handover {
public:
    Handover(std::shared_ptr<KnownQueues> queues, std::shared_ptr<PdfPrinter> pdf);

    /// The default printer, asked for now; the one that makes files if there is no other.
    PrinterFacts AskForDefault();
    /// False if the printer does not take the document, or `progress` said that nobody waits. What
    /// got through too late is taken back then.
    bool Print(const PrinterFacts& printer, const PrinterSettings& settings,
               const PrintedDocument& document, const std::function<bool()>& progress);

    /// Shows what was made, if it can be seen.
    void Show() const;

private:
    std::shared_ptr<KnownQueues> queues_;
    std::shared_ptr<PdfPrinter> pdf_;
    QDateTime time_;
    std::filesystem::path made_;
};

}  // namespace trameli
