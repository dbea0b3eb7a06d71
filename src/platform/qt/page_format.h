// How pages lie on their paper.
#pragma once

#include <QSizeF>
#include <QTransform>

#include "platform/printers.h"
#include "platform/qt/printer_facts.h"

namespace trameli {

/// The pages that a printer makes with certain settings.
struct PageFormat {
    /// The part that can be printed on.
    SheetSize Millimetres;
    SheetSize Pixels;

    QSizeF Page;          ///< in millimetres, as the printer gets it
    QTransform OntoPage;  ///< from those pixels to millimetres of the page
    bool Grey = false;

    /// False if the margins take up the whole sheet.
    bool HasRoom() const { return Pixels.Width > 0 && Pixels.Height > 0; }
};

/// Settings that do not fit the printer count as `Fitting` has them.
PageFormat FormatOf(const PrinterFacts& printer, const PrinterSettings& settings);

}  // namespace trameli
