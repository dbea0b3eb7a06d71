#include "platform/picture_box.h"

#include <QPaintEvent>
#include <QPainter>

#include "base/rounding.h"
#include "platform/qt/convert.h"
#include "platform/qt/graphics.h"
#include "platform/qt/native.h"
#include "platform/qt/surface_native.h"

namespace trameli {

namespace {

class PictureBoxWidget : public GraphicWidget {
public:
    explicit PictureBoxWidget(QWidget* parent) : GraphicWidget(parent) {
        // Where a pixel of the layout is a pixel and a part of the device, the edge can lie within
        // one, and what is below the box has to be painted there first.
        const double ratio = devicePixelRatioF();
        setAttribute(Qt::WA_OpaquePaintEvent, ratio == Floor(ratio));
        setFocusPolicy(Qt::StrongFocus);
    }

    /// The surface of the control; the control makes it after its widget.
    Surface::Native* Drawn = nullptr;

protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        Drawn->Paint(painter, event->rect());
    }
    void resizeEvent(QResizeEvent*) override {
        if (Drawn) {
            Drawn->Resize(size(), devicePixelRatioF());
        }
    }
};

}  // namespace

PictureBox::PictureBox(Container& container, ControlName name, const Bounds& bounds)
    : InteractiveControl(container, std::move(name), bounds,
                         MakeNative<PictureBoxWidget>(container)),
      container_(container) {
    auto& widget = WidgetOf<PictureBoxWidget>(*this);
    widget.Drawn = &SurfaceNative();
    SurfaceNative().Changed = [&widget](const QRect& where) { widget.update(where); };
    SurfaceNative().Setup(TwipsPerPixel(OwnerForm()), BackColor());
    SurfaceNative().Resize(widget.size(), widget.devicePixelRatioF());
}

PictureBox::PictureBox(PictureBox& model, int index)
    : PictureBox(model.container_, {model.Name(), index}, model.Place()) {
    Visible(false);
    Enabled(model.Enabled());
    BackColor(model.BackColor());
    DrawWidth(model.DrawWidth());
    ToolTipText(model.ToolTipText());
    AccessibleName(model.AccessibleName());
    MouseIcon(model.MouseIcon());
    Picture(model.picture_);
}

void PictureBox::BackColor(Colour colour) {
    InteractiveControl::BackColor(colour);
    SurfaceNative().Background(colour);
}

void PictureBox::Picture(const trameli::Picture& picture) {
    picture_ = picture;
    const double ratio = WidgetOf<PictureBoxWidget>(*this).devicePixelRatioF();
    SurfaceNative().Backdrop(AtOwnSize(picture, ratio));
}

Container::Native PictureBox::ContainerNative() {
    return {VisualControl::NativePart().Widget};
}

}  // namespace trameli
