#include "platform/page_book.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPicture>
#include <QSvgRenderer>
#include <map>

#include "platform/qt/convert.h"

namespace trameli {

namespace {

constexpr int TwipsPerInch = 1440;
constexpr double TwipsPerPoint = 20;

/// The writer notes the moment in which it works, in always as many digits, as its standards have
/// them: year, month, day, and the time.
void FixMoments(QByteArray& pdf) {
    constexpr const char* always = "20000101000000";
    for (const char* before :
         {"/CreationDate (", "<xmp:CreateDate>", "<xmp:ModifyDate>", "<xmp:MetadataDate>"}) {
        qsizetype at = pdf.indexOf(before);
        for (const char* digit = always; at >= 0 && *digit != 0; ++at) {
            if (pdf[at] >= '0' && pdf[at] <= '9') {
                pdf[at] = *digit++;
            }
        }
    }
}

}  // namespace

struct PageBook::Native {
    QByteArray Bytes;
    QBuffer Buffer{&Bytes};
    std::unique_ptr<QPdfWriter> Writer;
    QPainter Painter;
    std::map<std::string, std::unique_ptr<QSvgRenderer>> Pictures;
};

PageBook::PageBook(double width, double height, const std::string& title)
    : native_(std::make_unique<Native>()) {
    native_->Buffer.open(QIODevice::WriteOnly);
    native_->Writer = std::make_unique<QPdfWriter>(&native_->Buffer);
    QPdfWriter& writer = *native_->Writer;
    writer.setResolution(TwipsPerInch);
    writer.setPageLayout(QPageLayout(QPageSize(QSizeF(width, height) / TwipsPerPoint,
                                               QPageSize::Point, {}, QPageSize::ExactMatch),
                                     QPageLayout::Portrait, QMarginsF()));
    writer.setTitle(ToQt(title));
    writer.setCreator(QStringLiteral("Trameli"));
    native_->Painter.begin(&writer);
}

PageBook::~PageBook() = default;

void PageBook::NewPage() {
    native_->Writer->newPage();
}

void PageBook::DrawLine(double x1, double y1, double x2, double y2, double pen, Colour colour) {
    native_->Painter.setPen(QPen(ToQt(colour), pen, Qt::SolidLine, Qt::RoundCap));
    if (x1 == x2 && y1 == y2) {
        native_->Painter.drawPoint(QPointF(x1, y1));
    } else {
        native_->Painter.drawLine(QPointF(x1, y1), QPointF(x2, y2));
    }
}

void PageBook::DrawPicture(const Picture& picture, const Bounds& place) {
    auto& renderer = native_->Pictures[picture.Name];
    if (!renderer) {
        renderer = std::make_unique<QSvgRenderer>(":/" + ToQt(picture.Name));
    }
    renderer->setAspectRatioMode(Qt::IgnoreAspectRatio);
    renderer->render(&native_->Painter, QRectF(place.Left, place.Top, place.Width, place.Height));
}

void PageBook::DrawText(double left, double top, double points, const std::string& text) {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(static_cast<int>(points * TwipsPerPoint));
    native_->Painter.setFont(font);
    native_->Painter.setPen(Qt::black);
    native_->Painter.drawText(QPointF(left, top + QFontMetricsF(font).ascent()), ToQt(text));
}

std::string PageBook::Bytes() {
    native_->Painter.end();
    native_->Writer.reset();
    FixMoments(native_->Bytes);
    return native_->Bytes.toStdString();
}

}  // namespace trameli
