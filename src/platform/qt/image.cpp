#include "platform/image.h"

#include <QMouseEvent>
#include <QPainter>

#include "platform/qt/drawing.h"
#include "platform/qt/graphics.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

class ImageWidget : public GraphicWidget {
public:
    using GraphicWidget::GraphicWidget;

    Image* Owner = nullptr;
    ShownPicture Shown;

protected:
    void paintEvent(QPaintEvent*) override {
        {
            QPainter painter(this);
            Shown.Paint(painter, rect(), devicePixelRatioF());
        }
        PaintFocusRing(*this);
    }
    void mousePressEvent(QMouseEvent*) override {}
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
            Fire(*Owner, Owner->Click);
        }
    }
};

}  // namespace

Image::Image(Container& container, ControlName name, const Bounds& bounds,
             const trameli::Picture& picture)
    : InteractiveControl(container, std::move(name), bounds, MakeNative<ImageWidget>(container)) {
    WidgetOf<ImageWidget>(*this).Owner = this;
    Picture(picture);
}

void Image::TakesKeyboard(bool takes) {
    auto& widget = WidgetOf<ImageWidget>(*this);
    widget.setFocusPolicy(takes ? Qt::TabFocus : Qt::NoFocus);
    widget.Press = takes ? std::function([this] { Fire(*this, Click); }) : nullptr;
}

void Image::Picture(const trameli::Picture& picture) {
    picture_ = picture;
    WidgetOf<ImageWidget>(*this).Shown.Set(picture);
    WidgetOf<ImageWidget>(*this).update();
}

}  // namespace trameli
