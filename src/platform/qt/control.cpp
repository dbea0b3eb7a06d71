#include "platform/control.h"

#include <QApplication>
#include <QCursor>
#include <QMenuBar>
#include <QPalette>
#include <algorithm>

#include "base/rounding.h"
#include "platform/forms.h"
#include "platform/property_access.h"
#include "platform/qt/control_events.h"
#include "platform/qt/convert.h"
#include "platform/qt/drawing.h"
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
            !form.NativePart().Window.Keys().AnswersPress());
}

/// Gives a widget its colours. Letters that could not be read on their ground, which may be any
/// colour of the player's, are black or white instead.
void Paint(QWidget& widget, const QColor& ground, const QColor& letters) {
    const QColor ink = Readable(letters, ground);
    QPalette palette = widget.palette();
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
        palette.setColor(role, ground);
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, ink);
        palette.setColor(QPalette::Disabled, role, Paled(ink, ground));
    }
    widget.setPalette(palette);
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

PropertyCode Control::Get(std::string_view property, PropertyValue& value) const {
    PropertyAccess access(property, value);
    // The list of properties serves reading and setting alike; an access that reads sets nothing.
    const_cast<Control*>(this)->Properties(access);
    return access.Code();
}

PropertyCode Control::Set(std::string_view property, const PropertyValue& value) {
    PropertyAccess access(property, value);
    Properties(access);
    return access.Code();
}

void Control::Properties(PropertyAccess& access) {
    access.At("Name", *this, &Control::Name);
    access.At("Tag", *this, &Control::Tag, &Control::Tag);
    if (Index()) {
        access.At("Index", *this, &Control::IndexNumber);
    }
}

VisualControl::VisualControl(Container& container, ControlName name, std::unique_ptr<Native> native)
    : Control(container.ContainerForm(), std::move(name)), native_(std::move(native)) {
    native_->Widget->setObjectName(ToQt(Name()));
    // It gets its size from its bounds. Otherwise the toolkit would measure it for one of its own,
    // in a font that is never seen and takes as long to load as any other.
    native_->Widget->setAttribute(Qt::WA_Resized);
    // A widget made after its window was shown stays hidden unless it is told.
    visible_ = native_->StartsVisible;
    native_->Widget->setVisible(visible_);
}

VisualControl::~VisualControl() = default;

void VisualControl::Visible(bool visible) {
    visible_ = visible;
    native_->Widget->setVisible(visible);
}

void VisualControl::ToFront() {
    native_->Widget->raise();
}

void VisualControl::ToBack() {
    native_->Widget->lower();
}

void VisualControl::Cover(const Bounds& area) {
    // Both edges are rounded, not one edge and the size: what touches in twips touches in pixels.
    const double twips = TwipsPerPixel(OwnerForm());
    const int left = Nearest(area.Left / twips);
    const int top = Nearest(area.Top / twips);
    const int right = Nearest((area.Left + area.Width) / twips);
    const int bottom = Nearest((area.Top + area.Height) / twips);
    native_->Widget->setGeometry(left, top, std::max(0, right - left), std::max(0, bottom - top));
}

void VisualControl::Properties(PropertyAccess& access) {
    access.At("Visible", *this, &VisualControl::Visible, &VisualControl::Visible);
    Control::Properties(access);
}

PlacedControl::PlacedControl(Container& container, ControlName name, const Bounds& bounds,
                             std::unique_ptr<Native> native)
    : VisualControl(container, std::move(name), std::move(native)) {
    Place(bounds);
}

void PlacedControl::Left(double twips) {
    Place({twips, bounds_.Top, bounds_.Width, bounds_.Height});
}

void PlacedControl::Top(double twips) {
    Place({bounds_.Left, twips, bounds_.Width, bounds_.Height});
}

void PlacedControl::Width(double twips) {
    Place({bounds_.Left, bounds_.Top, twips, bounds_.Height});
}

void PlacedControl::Height(double twips) {
    Place({bounds_.Left, bounds_.Top, bounds_.Width, twips});
}

void PlacedControl::Place(const Bounds& bounds) {
    bounds_ = bounds;
    Cover(bounds);
}

void PlacedControl::Properties(PropertyAccess& access) {
    access.At("Left", *this, &PlacedControl::Left, &PlacedControl::Left);
    access.At("Top", *this, &PlacedControl::Top, &PlacedControl::Top);
    access.At("Width", *this, &PlacedControl::Width, &PlacedControl::Width);
    access.At("Height", *this, &PlacedControl::Height, &PlacedControl::Height);
    VisualControl::Properties(access);
}

InteractiveControl::InteractiveControl(Container& container, ControlName name, const Bounds& bounds,
                                       std::unique_ptr<Native> native)
    : PlacedControl(container, std::move(name), bounds, std::move(native)) {
    new ControlEvents(*this, NativePart().Widget);
    ShowColours();
    ShowFont();
}

void InteractiveControl::Enabled(bool enabled) {
    enabled_ = enabled;
    NativePart().Widget->setEnabled(enabled);
}

void InteractiveControl::BackColor(Colour colour) {
    backColor_ = colour;
    ShowColours();
}

void InteractiveControl::ForeColor(Colour colour) {
    foreColor_ = colour;
    ShowColours();
}

void InteractiveControl::ShowColours() {
    if (NativePart().ShowsLook) {
        Paint(*NativePart().Widget, ToQt(backColor_), ToQt(foreColor_));
    }
}

void InteractiveControl::Font(const trameli::Font& font) {
    font_ = font;
    ShowFont();
}

void InteractiveControl::ShowFont() {
    if (NativePart().ShowsLook) {
        NativePart().Widget->setFont(ToQt(font_, TwipsPerPixel(OwnerForm())));
    }
}

void InteractiveControl::ToolTipText(const std::string& text) {
    toolTipText_ = text;
    NativePart().Widget->setToolTip(ToQt(text));
}

void InteractiveControl::AccessibleName(const std::string& name) {
    accessibleName_ = name;
    NativePart().Widget->setAccessibleName(ToQt(name));
}

void InteractiveControl::TabIndex(int index) {
    tabIndex_ = index;
}

void InteractiveControl::SetFocus() {
    QWidget* widget = NativePart().Widget;
    if (KeyboardTaken(OwnerForm())) {
        return;
    }
    // Before the window comes up it can choose who has the keyboard then.
    if (widget->isVisibleTo(widget->window()) && widget->isEnabled() &&
        widget->focusPolicy() != Qt::NoFocus) {
        widget->setFocus(Qt::OtherFocusReason);
    }
}

void InteractiveControl::MouseIcon(std::optional<PointerImage> icon) {
    mouseIcon_ = std::move(icon);
    SetPointer(*NativePart().Widget, mouseIcon_);
}

void InteractiveControl::Properties(PropertyAccess& access) {
    using Own = InteractiveControl;
    access.At("Enabled", *this, &Own::Enabled, &Own::Enabled);
    access.At("BackColor", *this, &Own::BackColor, &Own::BackColor);
    access.At("ForeColor", *this, &Own::ForeColor, &Own::ForeColor);
    access.At("ToolTipText", *this, &Own::ToolTipText, &Own::ToolTipText);
    access.At("AccessibleName", *this, &Own::AccessibleName, &Own::AccessibleName);
    access.At("TabIndex", *this, &Own::TabIndex, &Own::TabIndex);
    PlacedControl::Properties(access);
}

}  // namespace trameli
