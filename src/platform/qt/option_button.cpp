#include "platform/option_button.h"

#include <QPainter>
#include <QRadioButton>
#include <algorithm>

#include "base/rounding.h"
#include "platform/qt/convert.h"
#include "platform/qt/key_press.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

/// Drawn here and not by the style, so that the circle grows with the font.
class OptionWidget : public PressedByRelease<QRadioButton> {
public:
    using PressedByRelease::PressedByRelease;

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), palette().color(QPalette::Window));
        const QColor ink = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                                           QPalette::WindowText);
        const int size = std::min(height() - 4, Nearest(fontMetrics().height() * 0.8));
        const QRectF circle(size * 0.3, (height() - size) / 2.0, size, size);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(ink, std::max(1.0, size / 12.0)));
        painter.setBrush(Qt::white);
        painter.drawEllipse(circle);
        if (isChecked()) {
            const double ring = size * 0.25;
            painter.setPen(Qt::NoPen);
            painter.setBrush(ink);
            painter.drawEllipse(circle.adjusted(ring, ring, -ring, -ring));
        }
        const QRect room = rect().adjusted(Nearest(size * 1.7), 0, 0, 0);
        painter.setPen(ink);
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, text());
        if (hasFocus()) {
            painter.setRenderHint(QPainter::Antialiasing, false);
            painter.setPen(QPen(QColor(0, 0, 128), 2));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(rect().adjusted(1, 1, -1, -1));
        }
    }
};

}  // namespace

OptionButton::OptionButton(Container& container, ControlName name, const Bounds& bounds,
                           std::string caption)
    : Captioned(container, std::move(name), bounds, MakeNative<OptionWidget>(container)) {
    QObject::connect(&WidgetOf<OptionWidget>(*this), &QRadioButton::toggled, [this](bool chosen) {
        if (chosen) {
            Fire(*this, Click);
        }
    });
    Caption(caption);
}

void OptionButton::ShowCaption() {
    WidgetOf<OptionWidget>(*this).setText(ToQt(Caption()));
}

bool OptionButton::Value() const {
    return WidgetOf<OptionWidget>(*this).isChecked();
}

void OptionButton::Value(bool chosen) {
    auto& widget = WidgetOf<OptionWidget>(*this);
    // Among exclusive buttons the chosen one would stay chosen.
    widget.setAutoExclusive(chosen);
    widget.setChecked(chosen);
    widget.setAutoExclusive(true);
}

void OptionButton::Properties(PropertyAccess& access) {
    access.At("Value", *this, &OptionButton::Value, &OptionButton::Value);
    Captioned::Properties(access);
}

}  // namespace trameli
