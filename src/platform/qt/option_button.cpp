#include "platform/option_button.h"

#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QRadioButton>
#include <algorithm>
#include <utility>

#include "platform/qt/convert.h"
#include "platform/qt/drawing.h"
#include "platform/qt/key_press.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

class OptionWidget : public PressedByRelease<QRadioButton> {
public:
    using PressedByRelease::PressedByRelease;

    bool Changes = false;  ///< the click under way has made this the chosen one

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

    /// Comes before a click's end if the click changes the choice.
    void nextCheckState() override {
        Changes = true;
        QRadioButton::nextCheckState();
    }

    /// An arrow chooses the next option and gives it the keyboard afterwards. Where the routine of
    /// the choice has given the keyboard to somebody else, that holds.
    void keyPressEvent(QKeyEvent* event) override {
        QPointer<QWidget> first;
        const auto watch = connect(qApp, &QApplication::focusChanged, this,
                                   [&first](const QWidget*, QWidget* now) {
                                       if (!first) {
                                           first = now;
                                       }
                                   });
        PressedByRelease::keyPressEvent(event);
        disconnect(watch);
        if (first && !first->hasFocus()) {
            first->setFocus();
        }
    }

    void paintEvent(QPaintEvent*) override {
        PaintChoice(*this, [this](QPainter& painter, const QRectF& circle, const QColor& dot) {
            painter.drawEllipse(circle);
            if (isChecked()) {
                const double ring = circle.width() * 0.25;
                painter.setPen(Qt::NoPen);
                painter.setBrush(dot);
                painter.drawEllipse(circle.adjusted(ring, ring, -ring, -ring));
            }
        });
    }
};

/// The Tab key comes to the chosen option of a container, or to each while none is chosen.
void LeadTab(const OptionWidget& changed) {
    const auto options =
        changed.parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
    const bool chosen = std::any_of(options.begin(), options.end(),
                                    [](const auto* option) { return option->isChecked(); });
    for (QRadioButton* option : options) {
        option->setFocusPolicy(!chosen || option->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

}  // namespace

OptionButton::OptionButton(Container& container, ControlName name, const Bounds& bounds,
                           std::string caption)
    : Captioned(container, std::move(name), bounds, MakeNative<OptionWidget>(container)) {
    QObject::connect(&WidgetOf<OptionWidget>(*this), &QRadioButton::toggled, [this](bool chosen) {
        LeadTab(WidgetOf<OptionWidget>(*this));
        if (chosen) {
            Fire(*this, Click);
        }
    });
    QObject::connect(&WidgetOf<OptionWidget>(*this), &QRadioButton::clicked, [this] {
        if (!std::exchange(WidgetOf<OptionWidget>(*this).Changes, false)) {
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
