#include "platform/label.h"

#include <QGroupBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "platform/qt/convert.h"
#include "platform/qt/drawing.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

class LabelWidget : public QLabel {
public:
    explicit LabelWidget(QWidget* parent) : QLabel(parent) {
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
        setAlignment(Qt::AlignLeft | Qt::AlignTop);
        setAutoFillBackground(true);
    }

    QSize TextSize() const { return fontMetrics().size(Mnemonic(), text()); }

    Label* Owner = nullptr;
    bool Leads = false;  // to the control that comes next
    QColor Rim;          // not valid for letters without one

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const auto write = [&](QPoint where) {
            painter.drawText(rect().translated(where),
                             static_cast<int>(alignment()) | Qt::TextWordWrap | Mnemonic(), text());
        };
        if (Rim.isValid()) {
            // The text itself, moved a little all round, under the letters.
            painter.setPen(Rim);
            const int width = std::max(1, fontMetrics().height() / 14);
            for (int dy = -width; dy <= width; ++dy) {
                for (int dx = -width; dx <= width; ++dx) {
                    write({dx, dy});
                }
            }
        }
        painter.setPen(Ink());
        write({0, 0});
    }
    void mousePressEvent(QMouseEvent*) override {}
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
            Fire(*Owner, Owner->Click);
        }
    }

private:
    int Mnemonic() const { return Leads ? Qt::TextShowMnemonic : 0; }

    QColor Ink() const {
        if (autoFillBackground()) {
            return InkOf(*this);
        }
        // Its own ground does not show. That of a frame is known, a drawing is the form's affair.
        const QColor own = ToQt(Owner->ForeColor());
        const auto* const frame = qobject_cast<const QGroupBox*>(parentWidget());
        const QColor ground =
            (frame ? frame : static_cast<const QWidget*>(this))->palette().color(QPalette::Window);
        const QColor ink = frame ? Readable(own, ground) : own;
        return isEnabled() ? ink : Paled(ink, ground);
    }
};

}  // namespace

Label::Label(Container& container, ControlName name, const Bounds& bounds, std::string caption)
    : Captioned(container, std::move(name), bounds, MakeNative<LabelWidget>(container)) {
    WidgetOf<LabelWidget>(*this).Owner = this;
    WidgetOf<LabelWidget>(*this).Leads = caption.find('&') != std::string::npos;
    Caption(caption);
}

void Label::ShowCaption() {
    WidgetOf<LabelWidget>(*this).setText(ToQt(Caption()));
}

void Label::LeadTo(const InteractiveControl* next) const {
    auto& widget = WidgetOf<LabelWidget>(*this);
    QWidget* const buddy = widget.Leads && next ? next->NativePart().Widget.data() : nullptr;
    if (widget.buddy() != buddy) {
        widget.setBuddy(buddy);
    }
}

void Label::TextAlignment(Alignment alignment) {
    const Qt::Alignment across = alignment == Alignment::Left    ? Qt::AlignLeft
                                 : alignment == Alignment::Right ? Qt::AlignRight
                                                                 : Qt::AlignHCenter;
    WidgetOf<LabelWidget>(*this).setAlignment(across | Qt::AlignTop);
}

void Label::Transparent(bool transparent) {
    WidgetOf<LabelWidget>(*this).setAutoFillBackground(!transparent);
}

double Label::TextWidth() const {
    return WidgetOf<LabelWidget>(*this).TextSize().width() * TwipsPerPixel(OwnerForm());
}

void Label::Rim(Colour colour) {
    WidgetOf<LabelWidget>(*this).Rim = ToQt(colour);
    WidgetOf<LabelWidget>(*this).update();
}

}  // namespace trameli
