// The printers of a desktop.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/printers.h"
#include "platform/qt/errands.h"
#include "platform/qt/pdf_printer.h"
#include "platform/qt/print_queues.h"

namespace trameli {

/// The queues of the print service and, behind them, a printer that makes PDF files.
class DesktopPrinters final : public Printers {
public:
    /// Asks nobody yet.
    explicit DesktopPrinters(PdfOptions pdf = PdfOptions::OfDesktop());

    std::vector<std::string> Names() override;
    std::string Default() override;
    std::unique_ptr<Printer> Open(const std::string& name) override;
    std::unique_ptr<PrintContext> CreateContext(const std::string& name,
                                                const PrinterSettings& settings) override;
    void FormOrientation(int orientation) override { formOrientation_ = orientation; }
    void PrintForm(const Form& form, const std::string& name) override;

private:
    bool IsPdf(const std::string& name) const;

    PrintQueues queues_;
    std::shared_ptr<PdfPrinter> pdf_;  ///< also of the threads that print
    Errands errands_;
    int formOrientation_ = 0;
};

}  // namespace trameli
