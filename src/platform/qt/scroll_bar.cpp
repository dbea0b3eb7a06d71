#include "platform/scroll_bar.h"

#include <QScrollBar>

#include "platform/property_access.h"
#include "platform/qt/drawing.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

class ScrollWidget : public QScrollBar {
public:
    using QScrollBar::QScrollBar;

protected:
    void paintEvent(QPaintEvent* event) override {
        QScrollBar::paintEvent(event);
        PaintFocusRing(*this);
    }
};

}  // namespace

HScrollBar::HScrollBar(Container& container, ControlName name, const Bounds& bounds, int min,
                       int max, int largeChange)
    : InteractiveControl(container, std::move(name), bounds,
                         MakeNative<ScrollWidget>(container, Qt::Horizontal)) {
    auto& widget = WidgetOf<QScrollBar>(*this);
    widget.setFocusPolicy(Qt::NoFocus);
    widget.setContextMenuPolicy(Qt::NoContextMenu);  // it would take the keys
    widget.setRange(min, max);
    widget.setPageStep(largeChange);
    QObject::connect(&widget, &QScrollBar::valueChanged, [this] { Fire(*this, Change); });
}

void HScrollBar::TakesKeyboard(bool takes) {
    WidgetOf<QScrollBar>(*this).setFocusPolicy(takes ? Qt::StrongFocus : Qt::NoFocus);
}

int HScrollBar::Value() const {
    return WidgetOf<QScrollBar>(*this).value();
}

void HScrollBar::Value(int value) {
    WidgetOf<QScrollBar>(*this).setValue(value);
}

void HScrollBar::Properties(PropertyAccess& access) {
    access.At("Value", *this, &HScrollBar::Value, &HScrollBar::Value);
    InteractiveControl::Properties(access);
}

}  // namespace trameli
