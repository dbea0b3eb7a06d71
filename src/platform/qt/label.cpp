#include "platform/label.h"

#include <QLabel>
#include <QMouseEvent>

#include "platform/qt/convert.h"
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

    Label* Owner = nullptr;

protected:
    void mousePressEvent(QMouseEvent*) override {}
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
            Fire(*Owner, Owner->Click);
        }
    }
};

}  // namespace

Label::Label(Container& container, ControlName name, const Bounds& bounds, std::string caption)
    : VisualControl(container, std::move(name), bounds, MakeNative<LabelWidget>(container)) {
    WidgetOf<LabelWidget>(*this).Owner = this;
    Caption(caption);
}

void Label::Caption(const std::string& caption) {
    caption_ = caption;
    WidgetOf<LabelWidget>(*this).setText(ToQt(caption));
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

}  // namespace trameli
