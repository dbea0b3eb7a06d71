#include "platform/surface.h"

#include <sys/mman.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <utility>

#include "base/rounding.h"
#include "platform/qt/pixel_rows.h"
#include "platform/qt/stretch.h"
#include "platform/qt/surface_native.h"

namespace trameli {

namespace {

/// An image in memory that the system may give in large pages. A screen's worth of small ones costs
/// more time than what is drawn there.
QImage InLargePages(const QSize& size) {
    constexpr std::size_t page = std::size_t{2} << 20;
    const std::size_t stride = static_cast<std::size_t>(size.width()) * sizeof(std::uint32_t);
    const std::size_t needed = stride * static_cast<std::size_t>(size.height());
    const std::size_t pages = (needed + page - 1) / page;
    void* const memory = needed < page ? nullptr : std::aligned_alloc(page, pages * page);
    if (!memory) {
        return {size, QImage::Format_RGB32};
    }
    madvise(memory, pages * page, MADV_HUGEPAGE);
    return {
        static_cast<uchar*>(memory), size.width(), size.height(), static_cast<qsizetype>(stride),
        QImage::Format_RGB32,        std::free,    memory};
}

constexpr std::size_t MostFills = 512;

std::uint32_t PixelOf(Colour colour) {
    return 0xFF000000U | static_cast<std::uint32_t>(RedOf(colour)) << 16 |
           static_cast<std::uint32_t>(GreenOf(colour)) << 8 |
           static_cast<std::uint32_t>(BlueOf(colour));
}

Pixels PixelsOf(QImage& image) {
    return {reinterpret_cast<std::uint32_t*>(image.bits()), image.width(), image.height(),
            static_cast<int>(image.bytesPerLine() / 4)};
}

}  // namespace

Surface::Surface() : native_(std::make_unique<Native>()) {}

Surface::~Surface() = default;

void Surface::DrawLine(double x1, double y1, double x2, double y2, Colour colour) {
    native_->Round(x1, y1, x2, y2, drawWidth_, colour);
}

void Surface::DrawBox(double x1, double y1, double x2, double y2, Colour colour) {
    if (x1 == x2 || y1 == y2) {
        native_->Bar(x1, y1, x2, y2, drawWidth_, colour);
        return;
    }
    native_->Bar(x1, y1, x2, y1, drawWidth_, colour);
    native_->Bar(x1, y2, x2, y2, drawWidth_, colour);
    native_->Bar(x1, y1, x1, y2, drawWidth_, colour);
    native_->Bar(x2, y1, x2, y2, drawWidth_, colour);
}

void Surface::FillBox(double x1, double y1, double x2, double y2, Colour colour) {
    native_->Fill(x1, y1, x2, y2, colour);
}

void Surface::FillRings(std::span<const Colour> colours, double radius) {
    native_->Rings(colours, radius);
}

bool Surface::StretchPixels(const PixelRectangle& where, const PixelBlock& picture) {
    return native_->Stretch(where, picture);
}

void Surface::Cls() {
    native_->Clear();
}

PixelSize Surface::DevicePixels() const {
    return {native_->DeviceSize().width(), native_->DeviceSize().height()};
}

int Surface::ReadPixels(const PixelBlock& into) const {
    return ReadRows(native_->Image(), into);
}

void Surface::Native::Setup(double twipsPerPixel, Colour background) {
    twipsPerPixel_ = twipsPerPixel;
    background_ = PixelOf(background);
}

void Surface::Native::Resize(const QSize& size, double devicePixelRatio) {
    const QSize wanted = (QSizeF(size) * devicePixelRatio).toSize();
    if (size_ == wanted && ratio_ == devicePixelRatio) {
        return;
    }
    const QImage before = blank_ && fills_.empty() ? QImage() : Image();
    ratio_ = devicePixelRatio;
    size_ = wanted;
    Clear();
    if (!before.isNull() && !wanted.isEmpty()) {
        Image();
        QPainter painter(&image_);
        painter.drawImage(0, 0, before);
    }
}

void Surface::Native::Background(Colour colour) {
    background_ = PixelOf(colour);
    Clear();
}

void Surface::Native::Backdrop(CornerOf picture) {
    backdrop_ = std::move(picture);
    seenSize_ = QSize();
    Clear();
}

const QImage& Surface::Native::SeenBackdrop() const {
    if (seenSize_ != size_) {
        seenSize_ = size_;
        seenBackdrop_ = backdrop_ ? backdrop_(size_) : QImage();
    }
    return seenBackdrop_;
}

void Surface::Native::Adopt(const Native& drawing) {
    // Both share the memory until one of them is drawn on.
    image_ = drawing.Image();
    backdrop_ = [pixels = image_](const QSize&) { return pixels; };
    seenSize_ = QSize();
    blank_ = false;
    size_ = drawing.size_;
    ratio_ = drawing.ratio_;
    Touch(0, 0, size_.width(), size_.height());
}

void Surface::Native::Clear() {
    blank_ = true;
    fills_.clear();
    Touch(0, 0, size_.width(), size_.height());
}

const QImage& Surface::Native::Image() const {
    if (!blank_) {
        return image_;
    }
    blank_ = false;
    if (image_.size() != size_) {
        image_ = InLargePages(size_);
    }
    image_.fill(background_);
    if (const QImage& picture = SeenBackdrop(); !picture.isNull() && !image_.isNull()) {
        QPainter painter(&image_);
        painter.drawImage(0, 0, picture);
    }
    const Pixels target = PixelsOf(image_);
    for (const auto& [where, pixel] : std::exchange(fills_, {})) {
        FillRectangle(target, where.x(), where.y(), where.width(), where.height(), pixel);
    }
    return image_;
}

void Surface::Native::Fill(double x1, double y1, double x2, double y2, Colour colour) {
    const Point a = ToDevice(std::min(x1, x2), std::min(y1, y2));
    const Point b = ToDevice(std::max(x1, x2), std::max(y1, y2));
    const QRect where = QRect(QPoint(0, 0), size_) & QRect(a.X, a.Y, b.X - a.X, b.Y - a.Y);
    if (blank_ && fills_.size() < MostFills) {
        fills_.push_back({where, PixelOf(colour)});
    } else {
        FillRectangle(Target(), where.x(), where.y(), where.width(), where.height(),
                      PixelOf(colour));
    }
    Touch(a.X, a.Y, b.X, b.Y);
}

void Surface::Native::Bar(double x1, double y1, double x2, double y2, int pen, Colour colour) {
    const int width = PenOnDevice(pen);
    const Point a = ToDevice(std::min(x1, x2), std::min(y1, y2));
    const Point b = ToDevice(std::max(x1, x2), std::max(y1, y2));
    const int left = a.X + PenOffset(width);
    const int top = a.Y + PenOffset(width);
    FillRectangle(Target(), left, top, b.X - a.X + width, b.Y - a.Y + width, PixelOf(colour));
    Touch(left, top, b.X + PenOffset(width) + width, b.Y + PenOffset(width) + width);
}

void Surface::Native::Round(double x1, double y1, double x2, double y2, int pen, Colour colour) {
    const int width = PenOnDevice(pen);
    const std::uint32_t pixel = PixelOf(colour);
    const Pixels target = Target();
    Point a = ToDevice(x1, y1);
    Point b = ToDevice(x2, y2);
    if (b.Y < a.Y) {
        // The same pixels from whichever end it is drawn: it may be erased from the other one.
        std::swap(a, b);
    }
    pens_.DrawPoint(target, a.X, a.Y, width, pixel);
    if (a.Y == b.Y) {
        FillRectangle(target, std::min(a.X, b.X), a.Y + PenOffset(width), std::abs(b.X - a.X),
                      width, pixel);
    } else if (a.X == b.X) {
        FillRectangle(target, a.X + PenOffset(width), std::min(a.Y, b.Y), width,
                      std::abs(b.Y - a.Y), pixel);
    } else {
        // A slanting line is the pen set down at each pixel of its longer side.
        const int steps = std::max(std::abs(b.X - a.X), std::abs(b.Y - a.Y));
        for (int step = 1; step < steps; ++step) {
            const double part = static_cast<double>(step) / steps;
            pens_.DrawPoint(target, a.X + Nearest((b.X - a.X) * part),
                            a.Y + Nearest((b.Y - a.Y) * part), width, pixel);
        }
    }
    pens_.DrawPoint(target, b.X, b.Y, width, pixel);
    Touch(std::min(a.X, b.X) + PenOffset(width), std::min(a.Y, b.Y) + PenOffset(width),
          std::max(a.X, b.X) + PenOffset(width) + width,
          std::max(a.Y, b.Y) + PenOffset(width) + width);
}

void Surface::Native::Rings(std::span<const Colour> colours, double radius) {
    std::vector<std::uint32_t> pixels;
    std::transform(colours.begin(), colours.end(), std::back_inserter(pixels), PixelOf);
    trameli::FillRings(Target(), pixels, radius);
    Touch(0, 0, size_.width(), size_.height());
}

bool Surface::Native::Stretch(const PixelRectangle& where, const PixelBlock& picture) {
    if (!picture.Bits || picture.Width <= 0 || picture.Height <= 0) {
        return false;
    }
    // Of a huge rectangle the far edges are beyond what an int of device pixels can tell.
    const auto onDevice = [this](double pixels) { return std::floor(pixels * ratio_ + 0.5); };
    const double left = onDevice(where.Left);
    const double top = onDevice(where.Top);
    const double right = onDevice(static_cast<double>(where.Left) + where.Width);
    const double bottom = onDevice(static_cast<double>(where.Top) + where.Height);
    trameli::Stretch(Target(), {left, right}, {top, bottom}, picture);
    const auto inside = [](double edge, int end) {
        return static_cast<int>(std::clamp(edge, 0.0, static_cast<double>(end)));
    };
    Touch(inside(left, size_.width()), inside(top, size_.height()), inside(right, size_.width()),
          inside(bottom, size_.height()));
    return true;
}

void Surface::Native::Paint(QPainter& painter, const QRect& where) {
    announced_ = QRect();
    if (blank_ && ratio_ == 1) {
        PaintBlank(painter, where);
        return;
    }
    const QRectF source(QPointF(where.topLeft()) * ratio_, QSizeF(where.size()) * ratio_);
    painter.drawImage(QRectF(where), Image(), source);
}

void Surface::Native::PaintBlank(QPainter& painter, const QRect& where) const {
    QRegion bare(where);
    for (const Filled& fill : fills_) {
        bare -= fill.Where;
    }
    if (!bare.isEmpty()) {
        const QImage& backdrop = SeenBackdrop();
        const QRect picture(QPoint(0, 0), backdrop.size());
        if (backdrop.hasAlphaChannel() || !picture.contains(where)) {
            painter.fillRect(where, QColor::fromRgb(background_));
        }
        const QRect seen = where & picture;
        painter.drawImage(seen.topLeft(), backdrop, seen);
    }
    for (const auto& [filled, pixel] : fills_) {
        painter.fillRect(filled & where, QColor::fromRgb(pixel));
    }
}

int Surface::Native::ToDevice(double twips) const {
    // Halves always to the same side, so that lengths of whole pixels stay equal wherever they lie.
    return Floor(twips / twipsPerPixel_ * ratio_ + 0.5);
}

int Surface::Native::PenOnDevice(int pen) const {
    return std::max(1, Nearest(pen * ratio_));
}

Pixels Surface::Native::Target() {
    Image();
    return PixelsOf(image_);
}

void Surface::Native::Touch(int left, int top, int right, int bottom) {
    if (!Changed) {
        return;
    }
    const QPoint first(Floor(left / ratio_), Floor(top / ratio_));
    const QPoint last(Floor(right / ratio_) + 1, Floor(bottom / ratio_) + 1);
    const QRect touched(first, last);
    // A thousand lines in one step are announced as a few growing areas.
    if (!announced_.contains(touched)) {
        announced_ |= touched;
        Changed(announced_);
    }
}

}  // namespace trameli
