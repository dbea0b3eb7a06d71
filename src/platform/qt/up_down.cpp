#include "platform/up_down.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "base/leading_number.h"
#include "base/rounding.h"
#include "platform/property_access.h"
#include "platform/qt/accessibility.h"
#include "platform/qt/convert.h"
#include "platform/qt/drawing.h"
#include "platform/qt/native.h"
#include "platform/qt/text_widget.h"

namespace trameli {

namespace {

/// Milliseconds between two steps of an arrow that is held down, and how many of those pass first.
constexpr int RepeatTime = 75;
constexpr int RepeatsLeftOut = 6;

class UpDownWidget : public QWidget, public SelfDescribing {
public:
    UpDownWidget(UpDown& owner, TextBox& buddy, int min, int max, int increment, QWidget* parent)
        : QWidget(parent),
          Buddy(&WidgetOf<TextWidget>(buddy)),
          Owner(owner),
          Min(min),
          Max(max),
          Increment(increment),
          form_(buddy.OwnerForm()) {}

    QPointer<TextWidget> Buddy;
    std::function<void(int)> Count;
    UpDown& Owner;
    const int Min;
    const int Max;
    const int Increment;

    QAccessibleInterface* Describe() override;

protected:
    bool event(QEvent* event) override {
        // What is held down then may never be let go here.
        const QEvent::Type type = event->type();
        if (type == QEvent::Hide || type == QEvent::WindowDeactivate ||
            (type == QEvent::EnabledChange && !isEnabled())) {
            Hold(0);
        }
        return QWidget::event(event);
    }

    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) {
            return;
        }
        const int direction = Half(1).contains(event->position().toPoint()) ? 1 : -1;
        Hold(direction);
        repeats_ = form_.Forms().Clock().Every(RepeatTime, [this] {
            if (++ticks_ > RepeatsLeftOut && inside_) {
                Count(direction_);
            }
        });
        Count(direction);
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        inside_ = Half(direction_).contains(event->position().toPoint());
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton) {
            Hold(0);
        }
    }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QColor face = palette().color(QPalette::Window);
        for (const int direction : {1, -1}) {
            const QRect half = Half(direction);
            painter.setPen(EdgeOf(face));
            painter.setBrush(direction == direction_ ? face.darker(115) : face);
            painter.drawRect(half.adjusted(0, 0, -1, -1));
            // An arrow in whole pixels, or it would be a smudge at this size.
            const int rows = std::max(1, std::min(half.height() - 5, (half.width() - 4) / 2));
            for (int row = 0; row < rows; ++row) {
                const int width = 2 * row + 2 - half.width() % 2;
                const int y = (half.height() - rows) / 2 + (direction > 0 ? row : rows - 1 - row);
                painter.fillRect(half.left() + (half.width() - width) / 2, half.top() + y, width, 1,
                                 InkOf(*this));
            }
        }
    }

private:
    /// The upper half counts up; both share the line between them.
    QRect Half(int direction) const {
        const int middle = height() / 2;
        return direction > 0 ? QRect(0, 0, width(), middle + 1)
                             : QRect(0, middle, width(), height() - middle);
    }

    /// An arrow is held down from now on, or none.
    void Hold(int direction) {
        direction_ = direction;
        inside_ = direction != 0;
        ticks_ = 0;
        repeats_.reset();
        update();
    }

    Form& form_;
    int direction_ = 0;
    bool inside_ = false;  // the pointer is over the arrow that is held down
    std::unique_ptr<Clock::Ticker> repeats_;
    int ticks_ = 0;
};

class AccessibleUpDown final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleUpDown(UpDownWidget* widget)
        : QAccessibleWidget(widget, QAccessible::SpinBox), widget_(*widget) {}

    QString text(QAccessible::Text kind) const override {
        QAccessibleInterface* const box = QAccessible::queryAccessibleInterface(widget_.Buddy);
        return box ? box->text(kind) : QString();
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return widget_.Owner.Value(); }
    void setCurrentValue(const QVariant& value) override {
        widget_.Count(Nearest((value.toDouble() - widget_.Owner.Value()) / widget_.Increment));
    }
    QVariant maximumValue() const override { return widget_.Max; }
    QVariant minimumValue() const override { return widget_.Min; }
    QVariant minimumStepSize() const override { return widget_.Increment; }

    QStringList actionNames() const override {
        return widget_.isEnabled() ? QStringList{increaseAction(), decreaseAction()}
                                   : QStringList();
    }
    void doAction(const QString& name) override {
        if (actionNames().contains(name)) {
            widget_.Count(name == increaseAction() ? 1 : -1);
        }
    }

private:
    UpDownWidget& widget_;
};

QAccessibleInterface* UpDownWidget::Describe() {
    return new AccessibleUpDown(this);
}

}  // namespace

UpDown::UpDown(Container& container, ControlName name, const Bounds& bounds, TextBox& buddy,
               int min, int max, int increment)
    : InteractiveControl(container, std::move(name), bounds,
                         MakeNative<UpDownWidget>(container, *this, buddy, min, max, increment)),
      buddy_(buddy),
      min_(min),
      max_(max),
      increment_(increment) {
    auto& widget = WidgetOf<UpDownWidget>(*this);
    widget.Count = [this](int direction) { Count(direction); };
    WidgetOf<TextWidget>(buddy).Count = [arrows = QPointer(&widget)](int direction) {
        if (arrows && arrows->isEnabled()) {
            arrows->Count(direction);
        }
    };
}

int UpDown::Value() const {
    return Nearest(std::clamp<double>(LeadingNumber(buddy_.Text()), min_, max_));
}

void UpDown::Count(int direction) {
    const double next = LeadingNumber(buddy_.Text()) + direction * increment_;
    const int counted = Nearest(std::clamp<double>(next, min_, max_));
    const std::string text = std::to_string(counted);
    if (text == buddy_.Text()) {
        return;
    }
    buddy_.Text(text);
    Fire(*this, Change);
}

void UpDown::Properties(PropertyAccess& access) {
    access.At("Value", *this, &UpDown::Value);
    InteractiveControl::Properties(access);
}

}  // namespace trameli
