// What comes out of a printer, and a ruler.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QRectF>

namespace trameli {

/// Enough for a renderer to leave the pixels of a picture as they are instead of mixing them.
inline constexpr int PixelsPerMillimetre = 13;

/// The only sheet of a job in PDF or PostScript, as it lies before the reader of a landscape page:
/// its upper edge is the left one of the paper.
QImage Rendered(const QByteArray& job);

/// Where a picture lies on a sheet, in millimetres, by what is not white in both.
QRectF PlaceOf(const QImage& picture, const QImage& sheet);

/// Whether each pixel of a picture is seen in its place on a sheet.
bool ShowsWhole(const QImage& sheet, const QImage& picture);

}  // namespace trameli
