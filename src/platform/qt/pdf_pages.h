// Pages as a PDF document.
#pragma once

#include <QImage>
#include <string>
#include <vector>

#include "platform/pixel_block.h"
#include "platform/qt/page_format.h"

namespace trameli {

/// A picture and its place on the printable part of a page, in the printer's pixels.
struct PlacedPicture {
    PixelRectangle Where;
    QImage Picture;
};
using PrintedPage = std::vector<PlacedPicture>;

/// The pixels of a block, with grey ones for a printer without colours.
QImage PictureOf(const PixelBlock& block, bool grey);

/// The bytes of a document, which has every picture in its own pixels and without loss. Any thread
/// can make one.
std::string PdfOf(const std::vector<PrintedPage>& pages, const PageFormat& format,
                  const std::string& title);

}  // namespace trameli
