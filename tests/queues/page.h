// What comes out of a printer, and a ruler.
#pragma once

#include <QBitmap>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegion>
#include <QTransform>
#include <stdexcept>

#include "support/stage.h"

namespace trameli {

/// Enough for a renderer to leave the pixels of a picture as they are instead of mixing them.
inline constexpr int PixelsPerMillimetre = 13;

/// The only sheet of a job in PDF or PostScript, as it lies before the reader of a landscape page:
/// its upper edge is the left one of the paper.
inline QImage Rendered(const QByteArray& job) {
    const TemporaryFolder folder;
    const QString place = QString::fromStdString(folder.Path().string());
    const QString resolution = QString::number(25.4 * PixelsPerMillimetre);
    Write(folder.Path() / "job", job.toStdString());
    if (job.startsWith("%!")) {
        QProcess::execute(
            "gs", {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=ppmraw", "-r" + resolution,
                   "-sOutputFile=" + place + "/page-%d.ppm", place + "/job"});
    } else {
        QProcess::execute("pdftoppm", {"-r", resolution, place + "/job", place + "/page"});
    }
    const QImage page(place + "/page-1.ppm");
    if (page.isNull() || QFile::exists(place + "/page-2.ppm")) {
        throw std::runtime_error("no job of one page");
    }
    return page.transformed(QTransform().rotate(90));
}

/// The smallest rectangle that holds all that is not white.
inline QRectF NotWhite(const QImage& picture) {
    const QImage mask = picture.createMaskFromColor(qRgb(255, 255, 255));
    return QRegion(QBitmap::fromImage(mask)).boundingRect();
}

/// Where a picture lies on a sheet, in pixels of the sheet, by what is not white in both.
inline QRectF PlaceOf(const QImage& picture, const QImage& sheet) {
    const QRectF from = NotWhite(picture);
    const QRectF to = NotWhite(sheet);
    const QTransform onto = QTransform::fromTranslate(to.x(), to.y())
                                .scale(to.width() / from.width(), to.height() / from.height())
                                .translate(-from.x(), -from.y());
    return onto.mapRect(QRectF(picture.rect()));
}

/// Whether each pixel of a picture is seen in its place on a sheet.
inline bool ShowsWhole(const QImage& sheet, const QImage& picture) {
    const QImage seen = sheet.copy(PlaceOf(picture, sheet).toRect()).scaled(picture.size());
    // Four bits of each colour are left: what makes PostScript may round.
    return seen.convertToFormat(QImage::Format_RGB444) ==
           picture.convertToFormat(QImage::Format_RGB444);
}

}  // namespace trameli
