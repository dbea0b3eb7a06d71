#include <QPainter>
#include <algorithm>

#include "base/rounding.h"
#include "platform/line.h"
#include "platform/property_access.h"
#include "platform/qt/convert.h"
#include "platform/qt/graphics.h"
#include "platform/qt/native.h"
#include "platform/shape.h"

namespace trameli {

namespace {

/// Something drawn that the mouse goes through, behind its siblings.
class DrawnWidget : public GraphicWidget {
public:
    explicit DrawnWidget(QWidget* parent) : GraphicWidget(parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    QColor Ink;
    int PenWidth = 1;  // pixels
};

class ShapeWidget : public DrawnWidget {
public:
    using DrawnWidget::DrawnWidget;

    ShapeKind Kind = ShapeKind::Rectangle;
    QBrush Fill = Qt::NoBrush;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const double half = PenWidth / 2.0;
        const QRectF outline = QRectF(rect()).adjusted(half, half, -half, -half);
        painter.setPen(QPen(Ink, PenWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        painter.setBrush(Fill);
        if (Kind == ShapeKind::Rectangle) {
            painter.drawRect(outline);
            return;
        }
        const double side = std::min(outline.width(), outline.height());
        const QPointF middle = outline.center();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawEllipse(middle, side / 2, side / 2);
    }
};

class LineWidget : public DrawnWidget {
    using DrawnWidget::DrawnWidget;

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setPen(QPen(Ink, PenWidth, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(From, To);
    }

public:
    QPointF From;
    QPointF To;
};

}  // namespace

Shape::Shape(Container& container, ControlName name, const Bounds& bounds, int borderWidth,
             Colour borderColor, ShapeKind kind)
    : PlacedControl(container, std::move(name), bounds, MakeNative<ShapeWidget>(container)) {
    constexpr double usualTwips = 15;
    auto& widget = WidgetOf<ShapeWidget>(*this);
    widget.Kind = kind;
    widget.PenWidth = std::max(1, Nearest(borderWidth * usualTwips / TwipsPerPixel(OwnerForm())));
    widget.lower();
    BorderColor(borderColor);
}

void Shape::BorderColor(Colour colour) {
    borderColor_ = colour;
    WidgetOf<ShapeWidget>(*this).Ink = ToQt(colour);
    WidgetOf<ShapeWidget>(*this).update();
}

void Shape::FillColor(Colour colour) {
    fillColor_ = colour;
    WidgetOf<ShapeWidget>(*this).Fill = ToQt(colour);
    WidgetOf<ShapeWidget>(*this).update();
}

void Shape::Properties(PropertyAccess& access) {
    access.At("BorderColor", *this, &Shape::BorderColor, &Shape::BorderColor);
    access.At("FillColor", *this, &Shape::FillColor, &Shape::FillColor);
    PlacedControl::Properties(access);
}

Line::Line(Container& container, ControlName name, double x1, double y1, double x2, double y2,
           int borderWidth, Colour borderColor)
    : VisualControl(container, std::move(name), MakeNative<LineWidget>(container)),
      x1_(x1),
      y1_(y1),
      x2_(x2),
      y2_(y2),
      borderWidth_(borderWidth) {
    WidgetOf<LineWidget>(*this).lower();
    BorderColor(borderColor);
    Lay();
}

void Line::Ends(double x1, double y1, double x2, double y2) {
    x1_ = x1;
    y1_ = y1;
    x2_ = x2;
    y2_ = y2;
    Lay();
}

void Line::BorderWidth(int pixels) {
    borderWidth_ = std::max(1, pixels);
    Lay();
}

void Line::BorderColor(Colour colour) {
    borderColor_ = colour;
    WidgetOf<LineWidget>(*this).Ink = ToQt(colour);
    WidgetOf<LineWidget>(*this).update();
}

/// Sizes the widget so that the line fits into it with its full thickness.
void Line::Lay() {
    const double twips = TwipsPerPixel(OwnerForm());
    const double room = borderWidth_ * twips;
    const double left = std::min(X1(), X2()) - room;
    const double top = std::min(Y1(), Y2()) - room;
    Cover({left, top, std::abs(X2() - X1()) + 2 * room, std::abs(Y2() - Y1()) + 2 * room});
    auto& widget = WidgetOf<LineWidget>(*this);
    widget.PenWidth = borderWidth_;
    widget.From = QPointF(X1() - left, Y1() - top) / twips;
    widget.To = QPointF(X2() - left, Y2() - top) / twips;
    widget.update();
}

void Line::Properties(PropertyAccess& access) {
    access.At("X1", *this, &Line::X1, &Line::X1);
    access.At("Y1", *this, &Line::Y1, &Line::Y1);
    access.At("X2", *this, &Line::X2, &Line::X2);
    access.At("Y2", *this, &Line::Y2, &Line::Y2);
    access.At("BorderWidth", *this, &Line::BorderWidth, &Line::BorderWidth);
    access.At("BorderColor", *this, &Line::BorderColor, &Line::BorderColor);
    VisualControl::Properties(access);
}

}  // namespace trameli
