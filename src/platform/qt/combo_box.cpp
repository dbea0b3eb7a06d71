#include "platform/combo_box.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>

#include "platform/qt/convert.h"
#include "platform/qt/drawing.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

/// A text that only assistive technology comes to know.
class UnseenLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent*) override {}
};

class ComboWidget : public QComboBox {
public:
    explicit ComboWidget(QWidget* parent) : QComboBox(parent), Name(new UnseenLabel(parent)) {
        setFocusPolicy(Qt::StrongFocus);
        Name->setBuddy(this);
        Name->hide();
    }
    ~ComboWidget() override { delete Name.data(); }

    /// The toolkit calls a list by what is chosen in it. What it is for, it takes from a label,
    /// which need not be seen.
    QPointer<QLabel> Name;

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

void ComboBox::AccessibleName(const std::string& name) {
    ListControl::AccessibleName(name);
    auto& widget = WidgetOf<ComboWidget>(*this);
    widget.Name->setText(ToQt(name));
    widget.view()->setAccessibleName(ToQt(name));
}

int ComboBox::Chosen() const {
    return WidgetOf<ComboWidget>(*this).currentIndex();
}

void ComboBox::Choose(int index) {
    WidgetOf<ComboWidget>(*this).setCurrentIndex(index);
}

}  // namespace trameli
