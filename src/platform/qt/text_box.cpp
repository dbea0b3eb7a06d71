#include "platform/text_box.h"

#include <QLineEdit>
#include <QValidator>

#include "platform/property_access.h"
#include "platform/qt/convert.h"
#include "platform/qt/drawing.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

class AskingValidator : public QValidator {
public:
    AskingValidator(const TextBox& owner, QObject* parent) : QValidator(parent), owner_(owner) {}

    bool ByCode = false;

    /// The toolkit undoes an edit that ends in an invalid text.
    State validate(QString& text, int&) const override {
        return ByCode || !owner_.Accepts || owner_.Accepts(FromQt(text)) ? Acceptable : Invalid;
    }

private:
    const TextBox& owner_;
};

class TextWidget : public QLineEdit {
public:
    explicit TextWidget(QWidget* parent) : QLineEdit(parent) {
        setFocusPolicy(Qt::StrongFocus);
        setTextMargins(FocusRing, 0, FocusRing, 0);
    }

    AskingValidator* Validator = nullptr;

protected:
    void paintEvent(QPaintEvent* event) override {
        QLineEdit::paintEvent(event);
        PaintFocusRing(*this);
    }
};

}  // namespace

TextBox::TextBox(Container& container, ControlName name, const Bounds& bounds)
    : InteractiveControl(container, std::move(name), bounds, MakeNative<TextWidget>(container)) {
    BackColor(White);
    auto& widget = WidgetOf<TextWidget>(*this);
    widget.Validator = new AskingValidator(*this, &widget);
    widget.setValidator(widget.Validator);
    QObject::connect(&widget, &QLineEdit::textChanged, [this] { Fire(*this, Change); });
}

std::string TextBox::Text() const {
    return FromQt(WidgetOf<TextWidget>(*this).text());
}

void TextBox::Text(const std::string& text) {
    auto& widget = WidgetOf<TextWidget>(*this);
    widget.Validator->ByCode = true;
    widget.setText(ToQt(text));
    widget.Validator->ByCode = false;
}

void TextBox::Properties(PropertyAccess& access) {
    access.At("Text", *this, &TextBox::Text, &TextBox::Text);
    InteractiveControl::Properties(access);
}

}  // namespace trameli
