#include "platform/combo_box.h"

#include <QComboBox>

#include "platform/qt/drawing.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

class ComboWidget : public QComboBox {
public:
    explicit ComboWidget(QWidget* parent) : QComboBox(parent) { setFocusPolicy(Qt::StrongFocus); }

protected:
    void paintEvent(QPaintEvent* event) override {
        QComboBox::paintEvent(event);
        PaintFocusRing(*this);
    }
};

}  // namespace

ComboBox::ComboBox(Container& container, ControlName name, const Bounds& bounds)
    : ListControl(container, std::move(name), bounds, MakeNative<ComboWidget>(container)) {
    BackColor(White);
    QObject::connect(&WidgetOf<ComboWidget>(*this), &QComboBox::activated,
                     [this] { Fire(*this, Click); });
}

int ComboBox::Chosen() const {
    return WidgetOf<ComboWidget>(*this).currentIndex();
}

void ComboBox::Choose(int index) {
    WidgetOf<ComboWidget>(*this).setCurrentIndex(index);
}

}  // namespace trameli
