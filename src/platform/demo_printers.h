// Printers of a program that shows or measures windows.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/no_printers.h"

namespace trameli {

/// Printers that have sheets and put nothing on them.
class DemoPrinters final : public NoPrinters {
public:
    /// The first one is the default.
    explicit DemoPrinters(std::vector<std::string> names) : names_(std::move(names)) {}

    std::vector<std::string> Names() override { return names_; }
    std::string Default() override { return names_.empty() ? "" : names_.front(); }
    std::unique_ptr<Printer> Open(const std::string& name) override {
        return Has(name) ? std::make_unique<DemoPrinter>(name) : nullptr;
    }
    std::unique_ptr<PrintContext> CreateContext(const std::string& name,
                                                const PrinterSettings& settings) override {
        return Has(name) ? std::make_unique<Sheet>(settings.Orientation) : nullptr;
    }

private:
    struct DemoPrinter final : Printer {
        explicit DemoPrinter(std::string name) : Name(std::move(name)) {}

        bool Merge(PrinterSettings& settings) override {
            settings.Orientation = std::max<int>(settings.Orientation, PrinterSettings::Portrait);
            settings.Copies = 1;
            settings.Colour = PrinterSettings::Coloured;
            settings.FilledBy = Name;
            return true;
        }
        bool Properties(PrinterSettings& /*settings*/, const PropertyTexts& /*texts*/) override {
            return false;
        }

        std::string Name;
    };

    /// What an ordinary printer can reach of the usual paper.
    struct Sheet final : PrintContext {
        explicit Sheet(int orientation) : Landscape(orientation == PrinterSettings::Landscape) {}

        SheetSize Millimetres() const override {
            return Landscape ? SheetSize{287, 200} : SheetSize{200, 287};
        }
        SheetSize Pixels() const override { return Millimetres(); }
        int StartDocument(const std::string& /*name*/) override { return -1; }
        int StartPage() override { return 0; }
        int Stretch(const PixelRectangle& /*where*/, const PixelBlock& /*picture*/) override {
            return 0;
        }
        int EndPage() override { return 0; }
        int EndDocument() override { return 0; }

        bool Landscape;
    };

    bool Has(const std::string& name) const {
        return std::find(names_.begin(), names_.end(), name) != names_.end();
    }

    std::vector<std::string> names_;
};

}  // namespace trameli
