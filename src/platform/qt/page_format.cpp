#include "platform/qt/page_format.h"

#include <algorithm>
#include <utility>

namespace trameli {

namespace {

constexpr int Hundredths = 100;  // of a millimetre
constexpr double MillimetresPerInch = 25.4;

/// The paper as it lies before the reader, when what is read goes across its other side. It is
/// turned to the left to go in: the reader's upper edge is the left one then.
Paper TurnedToReader(const Paper& paper) {
    Paper turned;
    turned.Width = paper.Height;
    turned.Height = paper.Width;
    turned.Left = paper.Bottom;
    turned.Top = paper.Left;
    turned.Right = paper.Top;
    turned.Bottom = paper.Right;
    return turned;
}

/// Whole millimetres alone, so that as many pixels to each of them as on paper come out.
SheetSize PrintablePart(const Paper& paper) {
    return {std::max(0, paper.Width - paper.Left - paper.Right) / Hundredths,
            std::max(0, paper.Height - paper.Top - paper.Bottom) / Hundredths};
}

int PixelsOf(int millimetres, int dotsPerInch) {
    return qRound(millimetres * dotsPerInch / MillimetresPerInch);
}

}  // namespace

PageFormat FormatOf(const PrinterFacts& printer, const PrinterSettings& settings) {
    const PrinterSettings fitting = Fitting(printer, settings);
    const Paper& paper = PaperOf(printer, fitting);
    const bool landscape = fitting.Orientation == PrinterSettings::Landscape;
    const bool turned = landscape != (paper.Width > paper.Height);
    const Paper read = turned ? TurnedToReader(paper) : paper;
    std::pair dots(printer.DotsPerInchAcross, printer.DotsPerInchDown);
    if (turned) {
        std::swap(dots.first, dots.second);
    }

    PageFormat format;
    format.Grey = fitting.Colour == PrinterSettings::Grey;
    format.Millimetres = PrintablePart(read);
    format.Pixels = {PixelsOf(format.Millimetres.Width, dots.first),
                     PixelsOf(format.Millimetres.Height, dots.second)};

    QSizeF page(read.Width, read.Height);
    QTransform ontoPage;  // the last one that is named comes first
    ontoPage.scale(1.0 / Hundredths, 1.0 / Hundredths);
    if (turned && printer.Kind == PrinterFacts::Kinds::Queue) {
        page.transpose();
        ontoPage.translate(0, page.height());
        ontoPage.rotate(-90);
    }
    ontoPage.translate(read.Left, read.Top);
    if (format.HasRoom()) {
        const auto scale = [](int millimetres, int pixels) {
            return static_cast<double>(millimetres) * Hundredths / pixels;
        };
        ontoPage.scale(scale(format.Millimetres.Width, format.Pixels.Width),
                       scale(format.Millimetres.Height, format.Pixels.Height));
    }
    format.Page = page / Hundredths;
    format.OntoPage = ontoPage;
    return format;
}

}  // namespace trameli
