// A machine without printers.
#pragma once

#include "platform/printers.h"

namespace trameli {

/// Has no printer and prints nothing, for programs that do not print.
class NoPrinters : public Printers {
public:
    std::vector<std::string> Names() override { return {}; }
    std::string Default() override { return {}; }
    std::unique_ptr<Printer> Open(const std::string&) override { return nullptr; }
    std::unique_ptr<PrintContext> CreateContext(const std::string&,
                                                const PrinterSettings&) override {
        return nullptr;
    }
    void FormOrientation(int) override {}
    void PrintForm(const Form&, const std::string&) override {}
};

}  // namespace trameli
