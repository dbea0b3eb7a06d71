// Documents on their way to a printer.
#pragma once

#include <functional>
#include <string>

#include "platform/printers.h"
#include "platform/qt/handover.h"
#include "platform/qt/page_format.h"

namespace trameli {

/// Collects the pages of a document, to be made and handed over when it ends.
class PageContext final : public PrintContext {
public:
    /// Takes a document to its printer; false if it was not taken. May serve window events.
    using Delivery = std::function<bool(PrintedDocument)>;

    PageContext(PageFormat format, Delivery deliver)
        : format_(std::move(format)), deliver_(std::move(deliver)) {}

    SheetSize Millimetres() const override { return format_.Millimetres; }
    SheetSize Pixels() const override { return format_.Pixels; }
    int StartDocument(const std::string& name) override;
    int StartPage() override;
    int Stretch(const PixelRectangle& where, const PixelBlock& picture) override;
    int EndPage() override;
    int EndDocument() override;

private:
    enum class State { Nothing, InDocument, InPage };

    PageFormat format_;
    Delivery deliver_;
    PrintedDocument document_;
    State state_ = State::Nothing;
};

}  // namespace trameli
