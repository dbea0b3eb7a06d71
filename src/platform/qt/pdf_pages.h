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
    QImage Picture;  ///< as `PictureOf` makes it
};
using PrintedPage = std::vector<PlacedPicture>;

/// A copy of the pixels of a block; null if they are none.
QImage PictureOf(const PixelBlock& block);

/// The bytes of a document, which has every picture in its own pixels and without loss. Any thread
/// can make one.
std::string PdfOf(const std::vector<PrintedPage>& pages, const PageFormat& format,
                  const std::string& title);

}  // namespace trameli
