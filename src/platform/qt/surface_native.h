// The toolkit's side of surfaces.
#pragma once

#include <QImage>
#include <QPainter>
#include <QRect>
#include <QSize>
#include <functional>
#include <vector>

#include "platform/qt/raster.h"
#include "platform/surface.h"

namespace trameli {

/// The pixels of a surface, in the full resolution of the device.
struct Surface::Native {
    /// Called with the area that has to be shown anew, in logical pixels.
    std::function<void(const QRect&)> Changed;

    /// Called once, before anything else.
    void Setup(double twipsPerPixel, Colour background);
    /// Keeps what is drawn, as far as the new size has room for it.
    void Resize(const QSize& size, double devicePixelRatio);
    /// Sets the background and clears to it.
    void Background(Colour colour);
    /// A picture: what of it is seen in the upper left corner of a size in device pixels.
    using CornerOf = std::function<QImage(const QSize& size)>;
    /// The picture that `Clear` puts on the background, at the upper left corner.
    void Backdrop(CornerOf picture);
    /// Takes the pixels of another surface, and its size, as the picture under the drawing.
    void Adopt(const Native& drawing);
    /// Back to background and backdrop.
    void Clear();

    /// Fills the rectangle between two corners given in twips.
    void Fill(double x1, double y1, double x2, double y2, Colour colour);
    /// A bar along the line, as thick as the pen, reaching half a pen beyond its ends.
    void Bar(double x1, double y1, double x2, double y2, int pen, Colour colour);
    /// A line with round ends.
    void Round(double x1, double y1, double x2, double y2, int pen, Colour colour);

    /// As Surface::FillRings.
    void Rings(std::span<const Colour> colours, double radius);

    /// As Surface::StretchPixels.
    bool Stretch(const PixelRectangle& where, const PixelBlock& picture);

    /// Shows what lies in `where`, in logical pixels.
    void Paint(QPainter& painter, const QRect& where);
    /// All pixels, in the resolution of the device.
    const QImage& Image() const;
    /// How many there are.
    QSize DeviceSize() const { return size_; }
    /// Logical size.
    QSize Size() const { return (QSizeF(size_) / ratio_).toSize(); }
    /// What `Clear` puts on the background.
    const CornerOf& Backdrop() const { return backdrop_; }

private:
    struct Point {
        int X;
        int Y;
    };
    struct Filled {
        QRect Where;  // in device pixels
        std::uint32_t Pixel;
    };

    /// The part of the backdrop that the surface has room for.
    const QImage& SeenBackdrop() const;
    void PaintBlank(QPainter& painter, const QRect& where) const;
    int ToDevice(double twips) const;
    Point ToDevice(double x, double y) const { return {ToDevice(x), ToDevice(y)}; }
    int PenOnDevice(int pen) const;
    Pixels Target();
    /// Notes that device pixels from (left, top) to before (right, bottom) have changed.
    void Touch(int left, int top, int right, int bottom);

    QSize size_;  // in device pixels
    // Made when it is first drawn on or read: the bars of a wall show nothing but their backdrop,
    // and there are seventy of them.
    mutable QImage image_;
    mutable bool blank_ = true;  // nothing but this and fills, whatever `image_` holds
    // What was filled before anything else was drawn. A window that shows nothing but a background
    // made of stripes needs no memory for a second picture of itself.
    mutable std::vector<Filled> fills_;
    CornerOf backdrop_;
    mutable QImage seenBackdrop_;
    mutable QSize seenSize_;  // of the surface when that was asked for
    RoundPens pens_;
    std::uint32_t background_ = 0;
    double twipsPerPixel_ = 15;
    double ratio_ = 1;
    QRect announced_;  // what Changed was told of since the last Paint
};

}  // namespace trameli
