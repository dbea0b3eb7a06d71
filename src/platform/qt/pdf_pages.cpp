#include "platform/qt/pdf_pages.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>

#include "platform/qt/convert.h"

namespace trameli {

namespace {

/// The writer's own grid. Places are not bound to it, lengths of a letter's stroke would be.
constexpr int DotsPerInch = 1200;
constexpr double DotsPerMillimetre = DotsPerInch / 25.4;

QPageLayout LayoutOf(const PageFormat& format) {
    return QPageLayout(QPageSize(format.Page, QPageSize::Millimeter, {}, QPageSize::ExactMatch),
                       QPageLayout::Portrait, QMarginsF(), QPageLayout::Millimeter);
}

/// The toolkit's own grey weighs the colours, and would not be that of the preview.
QImage Greyed(const QImage& picture) {
    QImage grey(picture.size(), QImage::Format_Grayscale8);
    for (int y = 0; y < grey.height(); ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        std::transform(row, row + picture.width(), grey.scanLine(y), [](QRgb colour) {
            return GreyOf(static_cast<unsigned>(qRed(colour)),
                          static_cast<unsigned>(qGreen(colour)),
                          static_cast<unsigned>(qBlue(colour)));
        });
    }
    return grey;
}

}  // namespace

QImage PictureOf(const PixelBlock& block) {
    const QImage upsideDown(block.Bits, block.Width, block.Height, block.BytesPerRow,
                            QImage::Format_BGR888);
    return upsideDown.mirrored().convertToFormat(QImage::Format_RGB32);
}

std::string PdfOf(const std::vector<PrintedPage>& pages, const PageFormat& format,
                  const std::string& title) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(DotsPerInch);
    writer.setPageLayout(LayoutOf(format));
    writer.setTitle(ToQt(title));
    writer.setCreator(QStringLiteral("Trameli"));
    QPainter painter(&writer);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    bool first = true;
    for (const PrintedPage& page : pages) {
        if (!first) {
            writer.newPage();
        }
        first = false;
        QTransform onto = format.OntoPage;
        onto *= QTransform::fromScale(DotsPerMillimetre, DotsPerMillimetre);
        painter.setTransform(onto);
        for (const PlacedPicture& placed : page) {
            const PixelRectangle& where = placed.Where;
            painter.drawImage(QRectF(where.Left, where.Top, where.Width, where.Height),
                              format.Grey ? Greyed(placed.Picture) : placed.Picture);
        }
    }
    painter.end();
    return bytes.toStdString();
}

}  // namespace trameli
