#include "platform/check_box.h"

#include <QCheckBox>
#include <QPainter>

#include "platform/qt/convert.h"
#include "platform/qt/drawing.h"
#include "platform/qt/key_press.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

class CheckWidget : public PressedByRelease<QCheckBox> {
public:
    using PressedByRelease::PressedByRelease;

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

    void paintEvent(QPaintEvent*) override {
        PaintChoice(*this, [this](QPainter& painter, const QRectF& box, const QColor& tick) {
            painter.drawRect(box);
            if (isChecked()) {
                painter.setPen(
                    QPen(tick, box.width() / 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
                const auto at = [&](double x, double y) {
                    return box.topLeft() + QPointF(box.width() * x, box.height() * y);
                };
                const QPointF strokes[] = {at(0.22, 0.52), at(0.43, 0.75), at(0.8, 0.25)};
                painter.drawPolyline(strokes, static_cast<int>(std::size(strokes)));
            }
        });
    }
};

}  // namespace

CheckBox::CheckBox(Container& container, ControlName name, const Bounds& bounds,
                   std::string caption)
    : Captioned(container, std::move(name), bounds, MakeNative<CheckWidget>(container)) {
    QObject::connect(&WidgetOf<CheckWidget>(*this), &QCheckBox::toggled,
                     [this] { Fire(*this, Click); });
    Caption(caption);
}

void CheckBox::ShowCaption() {
    WidgetOf<CheckWidget>(*this).setText(ToQt(Caption()));
}

bool CheckBox::Value() const {
    return WidgetOf<CheckWidget>(*this).isChecked();
}

void CheckBox::Value(bool ticked) {
    WidgetOf<CheckWidget>(*this).setChecked(ticked);
}

void CheckBox::Properties(PropertyAccess& access) {
    access.At("Value", *this, &CheckBox::Value, &CheckBox::Value);
    Captioned::Properties(access);
}

}  // namespace trameli
