#include "platform/qt/printer_facts.h"

#include <algorithm>

namespace trameli {

const Paper& PaperOf(const PrinterFacts& printer, const PrinterSettings& settings) {
    const auto wanted = settings.Other.find(PaperSetting);
    const auto found =
        std::find_if(printer.Papers.begin(), printer.Papers.end(), [&](const Paper& paper) {
            return wanted != settings.Other.end() && paper.Key == wanted->second;
        });
    return found == printer.Papers.end() ? printer.Papers.front() : *found;
}

PrinterSettings Fitting(const PrinterFacts& printer, const PrinterSettings& wanted) {
    const bool own = wanted.FilledBy == printer.Name;
    const bool isOrientation = wanted.Orientation == PrinterSettings::Portrait ||
                               wanted.Orientation == PrinterSettings::Landscape;
    const bool canColour = wanted.Colour == PrinterSettings::Grey ||
                           (wanted.Colour == PrinterSettings::Coloured && printer.CanColour);
    PrinterSettings fitting;
    fitting.FilledBy = printer.Name;
    fitting.Orientation = isOrientation ? wanted.Orientation : printer.OwnOrientation;
    fitting.Colour = own && canColour ? wanted.Colour : printer.OwnColour;
    fitting.Copies = own ? std::max(wanted.Copies, 1) : 1;
    fitting.Other[PaperSetting] = PaperOf(printer, wanted).Key;
    return fitting;
}

}  // namespace trameli
