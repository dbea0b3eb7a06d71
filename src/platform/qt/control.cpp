#include "platform/control.h"

#include <QApplication>
#include <QCursor>
#include <QMenuBar>
#include <QPalette>
#include <algorithm>

#include "base/rounding.h"
#include "platform/forms.h"
#include "platform/qt/control_events.h"
#include "platform/qt/convert.h"
#include "platform/qt/form_window.h"
#include "platform/qt/graphics.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

/// Whether a menu or a dropped list has the keyboard. A message box needs no such care: it is a
/// window of its own, and focus given in another one waits there. A menu bar without an open menu
/// gives way to a form that answers a key: whoever came to the bar by chance may have no key that
/// leads out again.
bool KeyboardTaken(Form& form) {
    return QApplication::activePopupWidget() ||
           (qobject_cast<QMenuBar*>(QApplication::focusWidget()) &&
            !form.NativePart().Window.AnswersPress());
}

/// A colour two thirds of the way to grey.
QColor Pale(const QColor& colour) {
    constexpr int grey = 192;
    return QColor((colour.red() + 2 * grey) / 3, (colour.green() + 2 * grey) / 3,
                  (colour.blue() + 2 * grey) / 3);
}

}  // namespace

Control::Control(Form& form, ControlName name) : form_(form), name_(std::move(name)) {
    form_.controls_.push_back(this);
}

Control::~Control() {
    std::erase(form_.controls_, this);
}

double TwipsPerPixel(const Form& form) {
    return form.Forms().Screen().TwipsPerPixelX();
}

VisualControl::VisualControl(Container& container, ControlName name, const Bounds& bounds,
                             std::unique_ptr<Native> native)
    : Control(container.ContainerForm(), std::move(name)), native_(std::move(native)) {
    QWidget* widget = native_->Widget;
    widget->setObjectName(ToQt(Name()));
    widget->setFont(ToQt(font_, TwipsPerPixel(OwnerForm())));
    new ControlEvents(*this, widget);
    Place(bounds);
    BackColor(backColor_);
    ForeColor(foreColor_);
    // A widget made after its window was shown stays hidden unless it is told.
    widget->show();
}

VisualControl::~VisualControl() = default;

void VisualControl::Left(double twips) {
    Place({twips, bounds_.Top, bounds_.Width, bounds_.Height});
}

void VisualControl::Top(double twips) {
    Place({bounds_.Left, twips, bounds_.Width, bounds_.Height});
}

void VisualControl::Width(double twips) {
    Place({bounds_.Left, bounds_.Top, twips, bounds_.Height});
}

void VisualControl::Height(double twips) {
    Place({bounds_.Left, bounds_.Top, bounds_.Width, twips});
}

void VisualControl::Place(const Bounds& bounds) {
    bounds_ = bounds;
    // Both edges are rounded, not one edge and the size: what touches in twips touches in pixels.
    const double twips = TwipsPerPixel(OwnerForm());
    const int left = Nearest(bounds.Left / twips);
    const int top = Nearest(bounds.Top / twips);
    const int right = Nearest((bounds.Left + bounds.Width) / twips);
    const int bottom = Nearest((bounds.Top + bounds.Height) / twips);
    native_->Widget->setGeometry(left, top, std::max(0, right - left), std::max(0, bottom - top));
}

void VisualControl::Visible(bool visible) {
    visible_ = visible;
    native_->Widget->setVisible(visible);
}

void VisualControl::Enabled(bool enabled) {
    enabled_ = enabled;
    native_->Widget->setEnabled(enabled);
}

void VisualControl::BackColor(Colour colour) {
    backColor_ = colour;
    QPalette palette = native_->Widget->palette();
    palette.setColor(QPalette::Window, ToQt(colour));
    native_->Widget->setPalette(palette);
}

void VisualControl::ForeColor(Colour colour) {
    foreColor_ = colour;
    QPalette palette = native_->Widget->palette();
    palette.setColor(QPalette::WindowText, ToQt(colour));
    // What cannot be used is pale, whatever its colour.
    palette.setColor(QPalette::Disabled, QPalette::WindowText, Pale(ToQt(colour)));
    native_->Widget->setPalette(palette);
}

void VisualControl::Font(const trameli::Font& font) {
    font_ = font;
    native_->Widget->setFont(ToQt(font, TwipsPerPixel(OwnerForm())));
}

void VisualControl::ToolTipText(const std::string& text) {
    toolTipText_ = text;
    native_->Widget->setToolTip(ToQt(text));
}

void VisualControl::AccessibleName(const std::string& name) {
    native_->Widget->setAccessibleName(ToQt(name));
}

void VisualControl::TabIndex(int index) {
    tabIndex_ = index;
}

void VisualControl::SetFocus() {
    QWidget* widget = native_->Widget;
    if (KeyboardTaken(OwnerForm())) {
        return;
    }
    if (widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus) {
        widget->setFocus(Qt::OtherFocusReason);
    }
}

void VisualControl::MouseIcon(std::optional<PointerImage> icon) {
    mouseIcon_ = std::move(icon);
    SetPointer(*native_->Widget, mouseIcon_);
}

}  // namespace trameli
