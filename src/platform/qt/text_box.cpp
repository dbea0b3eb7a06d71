#include "platform/text_box.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QValidator>

#include "platform/property_access.h"
#include "platform/qt/convert.h"
#include "platform/qt/drawing.h"
#include "platform/qt/native.h"
#include "platform/qt/text_widget.h"

namespace trameli {

namespace {

constexpr QChar Backspace(8);
constexpr int AnyNumber = 32767;  // the toolkit's own limit

}  // namespace

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

TextWidget::TextWidget(QWidget* parent) : QLineEdit(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setTextMargins(FocusRing, 0, FocusRing, 0);
}

void TextWidget::keyPressEvent(QKeyEvent* event) {
    const QScopedValueRollback byKey(ByKey, true);
    const bool up = event->key() == Qt::Key_Up;
    if (Count && (up || event->key() == Qt::Key_Down)) {
        Count(up ? 1 : -1);
        return;
    }
    const bool alone = !event->modifiers().testFlag(Qt::ControlModifier);
    const bool back = alone && event->key() == Qt::Key_Backspace;
    const QString typed = back ? QString(Backspace) : event->text();
    // With AltGr, which some keyboards report as Ctrl and Alt, characters are typed.
    const bool character = back || (!typed.isEmpty() && typed.front().isPrint() &&
                                    (alone || event->modifiers().testFlag(Qt::AltModifier)));
    const QString through = character ? LetThrough(typed) : typed;
    if (through == typed) {
        QLineEdit::keyPressEvent(event);
    } else if (!through.isEmpty()) {
        insert(through);
    }
}

/// What is composed of several keys, or chosen from a list of characters, comes this way.
void TextWidget::inputMethodEvent(QInputMethodEvent* event) {
    const QScopedValueRollback byKey(ByKey, true);
    QInputMethodEvent passed(event->preeditString(), event->attributes());
    passed.setCommitString(LetThrough(event->commitString()), event->replacementStart(),
                           event->replacementLength());
    QLineEdit::inputMethodEvent(&passed);
}

void TextWidget::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    PaintFocusRing(*this);
}

QString TextWidget::LetThrough(const QString& typed) const {
    if (!Owner->KeyPress) {
        return typed;
    }
    QString through;
    for (const uint code : typed.toUcs4()) {
        int passed = 0;
        Form& form = Owner->OwnerForm();
        form.Forms().Dispatch(form, [&] { passed = Owner->KeyPress(static_cast<int>(code)); });
        if (passed > 0) {
            const auto character = static_cast<char32_t>(passed);
            through += QString::fromUcs4(&character, 1);
        }
    }
    return through;
}

TextBox::TextBox(Container& container, ControlName name, const Bounds& bounds)
    : InteractiveControl(container, std::move(name), bounds, MakeNative<TextWidget>(container)) {
    BackColor(White);
    auto& widget = WidgetOf<TextWidget>(*this);
    widget.Owner = this;
    widget.Validator = new AskingValidator(*this, &widget);
    widget.setValidator(widget.Validator);
    QObject::connect(&widget, &QLineEdit::textChanged, [this] { Fire(*this, Change); });
    QObject::connect(&widget, &QLineEdit::textEdited, [this, &widget] {
        if (!widget.ByKey) {
            // The text is not in place yet.
            QMetaObject::invokeMethod(
                &widget, [this] { Fire(*this, EditedByMouse); }, Qt::QueuedConnection);
        }
    });
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

int TextBox::SelStart() const {
    const auto& widget = WidgetOf<TextWidget>(*this);
    return widget.hasSelectedText() ? widget.selectionStart() : widget.cursorPosition();
}

std::string TextBox::SelText() const {
    return FromQt(WidgetOf<TextWidget>(*this).selectedText());
}

int TextBox::MaxLength() const {
    const int most = WidgetOf<TextWidget>(*this).maxLength();
    return most == AnyNumber ? 0 : most;
}

void TextBox::MaxLength(int letters) {
    WidgetOf<TextWidget>(*this).setMaxLength(letters > 0 ? letters : AnyNumber);
}

void TextBox::Properties(PropertyAccess& access) {
    access.At("Text", *this, &TextBox::Text, &TextBox::Text);
    access.At("SelStart", *this, &TextBox::SelStart);
    access.At("SelText", *this, &TextBox::SelText);
    access.At("MaxLength", *this, &TextBox::MaxLength, &TextBox::MaxLength);
    InteractiveControl::Properties(access);
}

}  // namespace trameli
