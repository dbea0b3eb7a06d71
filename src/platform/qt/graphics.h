// Pictures and pointers as the toolkit shows them.
#pragma once

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QSvgRenderer>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

#include "platform/picture.h"
#include "platform/qt/accessibility.h"

namespace trameli {

/// A picture that is loaded when it is first drawn, and kept at the size it was drawn in last.
class ShownPicture {
public:
    void Set(const Picture& picture);
    bool Empty() const { return picture_.Name.empty(); }

    /// The size it was drawn in by its maker, in pixels; 0 x 0 if it cannot be loaded.
    QSize OwnSize();

    /// Paints it into `target`, stretched.
    void Paint(QPainter& painter, const QRect& target, double devicePixelRatio);

private:
    QSvgRenderer& Renderer();

    Picture picture_;
    std::unique_ptr<QSvgRenderer> renderer_;
    QPixmap drawn_;
};

/// What of a picture at its own size, for a screen with so many device pixels per logical one, lies
/// in the upper left corner of that size in device pixels; null if it cannot be loaded. All who
/// show the same share its pixels.
QImage CornerAtOwnSize(const Picture& picture, const QSize& size, double devicePixelRatio);

/// Gives a widget a pointer of its own, or the system's.
void SetPointer(QWidget& widget, const std::optional<PointerImage>& icon);

/// The program's icon in the sizes that window frames and lists of windows show.
QIcon WindowIcon();

/// A widget that shows something drawn: for assistive technology it is a graphic, or a button if it
/// can be pressed. One with neither a name nor a tool tip is decoration.
class GraphicWidget : public QWidget, public SelfDescribing {
public:
    using QWidget::QWidget;

    std::function<void()> Press;
    /// What is to be seen, for those who ask.
    std::function<QString()> Seen;

    QAccessibleInterface* Describe() override;
    bool IsDecoration() const override;
};

}  // namespace trameli
