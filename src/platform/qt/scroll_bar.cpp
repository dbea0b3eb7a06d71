#include "platform/scroll_bar.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QStyleOption>

#include "platform/property_access.h"
#include "platform/qt/drawing.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

struct Step {
    int Key;
    QAbstractSlider::SliderAction Action;
};
constexpr Step Steps[] = {
    {Qt::Key_Left, QAbstractSlider::SliderSingleStepSub},
    {Qt::Key_Up, QAbstractSlider::SliderSingleStepSub},
    {Qt::Key_Right, QAbstractSlider::SliderSingleStepAdd},
    {Qt::Key_Down, QAbstractSlider::SliderSingleStepAdd},
    {Qt::Key_PageUp, QAbstractSlider::SliderPageStepSub},
    {Qt::Key_PageDown, QAbstractSlider::SliderPageStepAdd},
    {Qt::Key_Home, QAbstractSlider::SliderToMinimum},
    {Qt::Key_End, QAbstractSlider::SliderToMaximum},
};

class ScrollWidget : public QScrollBar {
public:
    using QScrollBar::QScrollBar;

protected:
    /// The toolkit counts on bars that never have the keyboard: its arrows go the other way.
    void keyPressEvent(QKeyEvent* event) override {
        for (const auto& [key, step] : Steps) {
            if (key == event->key()) {
                triggerAction(step);
                return;
            }
        }
        event->ignore();
    }

    void paintEvent(QPaintEvent* event) override {
        QScrollBar::paintEvent(event);
        // The style's handle hardly differs from what it moves on.
        QStyleOptionSlider option;
        initStyleOption(&option);
        const QRect handle = style()->subControlRect(QStyle::CC_ScrollBar, &option,
                                                     QStyle::SC_ScrollBarSlider, this);
        QPainter painter(this);
        painter.fillRect(handle.adjusted(1, FocusRing + 1, -1, -FocusRing - 1), InkOf(*this));
        painter.end();
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
