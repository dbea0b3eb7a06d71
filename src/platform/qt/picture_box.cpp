#include "platform/picture_box.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include "base/rounding.h"
#include "platform/qt/convert.h"
#include "platform/qt/drawing.h"
#include "platform/qt/graphics.h"
#include "platform/qt/key_press.h"
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

    // The control makes its surface after the widget.
    PictureBox* Owner = nullptr;
    Surface::Native* Drawn = nullptr;

protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        Drawn->Paint(painter, event->rect());
        if (Press && hasFocus()) {
            PaintFocusRing(painter, rect(), ToQt(Owner->BackColor()));
        }
    }
    void resizeEvent(QResizeEvent*) override {
        if (Drawn) {
            Drawn->Resize(size(), devicePixelRatioF());
        }
    }

    void mousePressEvent(QMouseEvent*) override {}
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
            Fire(*Owner, Owner->Click);
        }
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (!Press || !hasFocus() || !KeyStroke::IsMeant(*event)) {
            event->ignore();
        } else {
            stroke_.Press(*event);
        }
    }
    void keyReleaseEvent(QKeyEvent* event) override {
        if (!stroke_.Release(*event)) {
            event->ignore();
        } else if (Press) {
            Press();
        }
    }
    void focusOutEvent(QFocusEvent* event) override {
        stroke_.Forget();
        GraphicWidget::focusOutEvent(event);
    }

private:
    KeyStroke stroke_;
};

/// A widget of which nothing is seen but the surface, and that has no use for colours and font.
std::unique_ptr<VisualControl::Native> MakeBox(Container& container, bool visible) {
    auto native = MakeNative<PictureBoxWidget>(container);
    native->StartsVisible = visible;
    native->ShowsLook = false;
    return native;
}

}  // namespace

PictureBox::PictureBox(Container& container, ControlName name, const Bounds& bounds)
    : PictureBox(container, std::move(name), bounds, MakeBox(container, true)) {}

PictureBox::PictureBox(Container& container, ControlName name, const Bounds& bounds,
                       std::unique_ptr<VisualControl::Native> native)
    : InteractiveControl(container, std::move(name), bounds, std::move(native)),
      container_(container) {
    auto& widget = WidgetOf<PictureBoxWidget>(*this);
    widget.Owner = this;
    widget.Seen = [this] {
        return Description && OwnerForm().Loaded() ? ToQt(Description()) : ToQt(ToolTipText());
    };
    widget.Drawn = &SurfaceNative();
    SurfaceNative().Changed = [&widget](const QRect& where) { widget.update(where); };
    SurfaceNative().Setup(TwipsPerPixel(OwnerForm()), BackColor());
    SurfaceNative().Resize(widget.size(), widget.devicePixelRatioF());
}

PictureBox::PictureBox(PictureBox& model, int index)
    : PictureBox(model.container_, {model.Name(), index}, model.Place(),
                 MakeBox(model.container_, false)) {
    // Mazes have seventy of these, so that nothing is set which is so already.
    if (!model.Enabled()) {
        Enabled(false);
    }
    if (model.BackColor() != BackColor()) {
        BackColor(model.BackColor());
    }
    DrawWidth(model.DrawWidth());
    if (!model.ToolTipText().empty()) {
        ToolTipText(model.ToolTipText());
    }
    if (!model.AccessibleName().empty()) {
        AccessibleName(model.AccessibleName());
    }
    if (model.MouseIcon()) {
        MouseIcon(model.MouseIcon());
    }
    picture_ = model.picture_;
    SurfaceNative().Backdrop(model.SurfaceNative().Backdrop());
}

void PictureBox::BackColor(Colour colour) {
    InteractiveControl::BackColor(colour);
    SurfaceNative().Background(colour);
}

void PictureBox::Picture(const trameli::Picture& picture) {
    picture_ = picture;
    const double ratio = WidgetOf<PictureBoxWidget>(*this).devicePixelRatioF();
    SurfaceNative().Backdrop([picture, ratio](const QSize& size) {
        return picture.Name.empty() ? QImage() : CornerAtOwnSize(picture, size, ratio);
    });
}

void PictureBox::Picture(const Surface& drawing) {
    picture_ = {};
    const QSize size = drawing.SurfaceNative().Size();
    const double twips = TwipsPerPixel(OwnerForm());
    Place({Left(), Top(), size.width() * twips, size.height() * twips});
    SurfaceNative().Adopt(drawing.SurfaceNative());
}

double PictureBox::ScaleWidthPixels() const {
    return WidgetOf<PictureBoxWidget>(*this).width();
}

double PictureBox::ScaleHeightPixels() const {
    return WidgetOf<PictureBoxWidget>(*this).height();
}

void PictureBox::TakesKeyboard(bool takes) {
    auto& widget = WidgetOf<PictureBoxWidget>(*this);
    widget.setFocusPolicy(takes ? Qt::StrongFocus : Qt::NoFocus);
    widget.Press = takes ? std::function([this] { Fire(*this, Click); }) : nullptr;
    widget.update();
}

void PictureBox::Place(const Bounds& bounds) {
    InteractiveControl::Place(bounds);
    // The toolkit tells a widget that cannot be seen of its size when it comes to be seen, and it
    // can be drawn on before.
    const auto& widget = WidgetOf<PictureBoxWidget>(*this);
    SurfaceNative().Resize(widget.size(), widget.devicePixelRatioF());
}

Container::Native PictureBox::ContainerNative() {
    return {VisualControl::NativePart().Widget};
}

}  // namespace trameli
