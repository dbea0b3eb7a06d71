#include "platform/frame.h"

#include <QGroupBox>
#include <QPainter>
#include <algorithm>

#include "platform/qt/accessibility.h"
#include "platform/qt/convert.h"
#include "platform/qt/drawing.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

class AccessibleFrame final : public AccessibleContainer {
public:
    explicit AccessibleFrame(QGroupBox* frame)
        : AccessibleContainer(frame, QAccessible::Grouping) {}

    QString text(QAccessible::Text kind) const override {
        const QString told = AccessibleContainer::text(kind);
        return kind == QAccessible::Name && told.isEmpty()
                   ? Spoken(static_cast<const QGroupBox*>(widget())->title())
                   : told;
    }
};

class FrameWidget : public QGroupBox, public SelfDescribing {
public:
    explicit FrameWidget(QWidget* parent) : QGroupBox(parent) {
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

    bool Border = true;

    QAccessibleInterface* Describe() override { return new AccessibleFrame(this); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QColor back = palette().color(QPalette::Window);
        painter.fillRect(rect(), back);
        if (!Border) {
            return;
        }
        const int line = title().isEmpty() ? 0 : fontMetrics().height() / 2;
        painter.setPen(EdgeOf(back));
        painter.drawRect(rect().adjusted(0, line, -1, -1));
        if (title().isEmpty()) {
            return;
        }
        const int blank = fontMetrics().horizontalAdvance(QLatin1Char(' '));
        const QRect caption(3 * blank, 0,
                            fontMetrics().size(Qt::TextShowMnemonic, title()).width() + 2 * blank,
                            fontMetrics().height());
        painter.fillRect(caption, back);
        painter.setPen(InkOf(*this));
        painter.drawText(caption, Qt::AlignCenter | Qt::TextShowMnemonic, title());
    }
};

}  // namespace

Frame::Frame(Container& container, ControlName name, const Bounds& bounds, std::string caption)
    : Captioned(container, std::move(name), bounds, MakeNative<FrameWidget>(container)) {
    Caption(caption);
}

void Frame::ShowCaption() {
    WidgetOf<FrameWidget>(*this).setTitle(ToQt(Caption()));
}

void Frame::Border(bool border) {
    WidgetOf<FrameWidget>(*this).Border = border;
    WidgetOf<FrameWidget>(*this).update();
}

void Frame::Take(VisualControl& control) {
    QWidget* const widget = control.NativePart().Widget;
    widget->setParent(ContainerNative().Widget);
    widget->setVisible(control.Visible());
}

Container::Native Frame::ContainerNative() {
    return {NativePart().Widget};
}

}  // namespace trameli
