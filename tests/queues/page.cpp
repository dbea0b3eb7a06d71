#include "queues/page.h"

#include <QBitmap>
#include <QFile>
#include <QProcess>
#include <QRegion>
#include <QTransform>
#include <stdexcept>

#include "support/stage.h"

namespace trameli {

namespace {

QRectF NotWhite(const QImage& picture) {
    const QImage mask = picture.createMaskFromColor(qRgb(255, 255, 255), Qt::MaskInColor);
    return QRegion(QBitmap::fromImage(mask)).boundingRect();
}

}  // namespace

QImage Rendered(const QByteArray& job) {
    const TemporaryFolder folder;
    const QString place = QString::fromStdString(folder.Path().string());
    Write(folder.Path() / "job", job.toStdString());
    const QString resolution = QString::number(25.4 * PixelsPerMillimetre);
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

QRectF PlaceOf(const QImage& picture, const QImage& sheet) {
    const QRectF from = NotWhite(picture);
    const QRectF to = NotWhite(sheet);
    const double across = to.width() / from.width() / PixelsPerMillimetre;
    const double down = to.height() / from.height() / PixelsPerMillimetre;
    return {to.left() / PixelsPerMillimetre - from.left() * across,
            to.top() / PixelsPerMillimetre - from.top() * down, picture.width() * across,
            picture.height() * down};
}

bool ShowsWhole(const QImage& sheet, const QImage& picture) {
    const QRectF place = PlaceOf(picture, sheet);
    const QRectF pixels(place.topLeft() * PixelsPerMillimetre, place.size() * PixelsPerMillimetre);
    const QImage seen = sheet.copy(pixels.toRect()).scaled(picture.size());
    // Four bits of each colour are left: what makes PostScript may round.
    constexpr auto coarse = QImage::Format_RGB444;
    return seen.convertToFormat(coarse) == picture.convertToFormat(coarse);
}

}  // namespace trameli
