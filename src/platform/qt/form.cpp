#include "platform/form.h"

#include <QApplication>
#include <QRect>

#include "base/rounding.h"
#include "platform/forms.h"
#include "platform/qt/convert.h"
#include "platform/qt/form_window.h"
#include "platform/qt/graphics.h"
#include "platform/qt/native.h"
#include "platform/qt/pixel_rows.h"
#include "platform/qt/surface_native.h"

namespace trameli {

namespace {

/// Asks for a form's place with one part of it changed.
void Ask(Form& form, void (QRect::*part)(int), double twips) {
    FormWindow& window = form.NativePart().Window;
    QRect place = window.Asked();
    (place.*part)(Nearest(twips / TwipsPerPixel(form)));
    window.Place(place);
}

PixelSize DevicePixelsOf(const QWidget& widget) {
    const QSize size = (QSizeF(widget.size()) * widget.devicePixelRatioF()).toSize();
    return {size.width(), size.height()};
}

int ReadWidget(QWidget& widget, const PixelBlock& into) {
    const PixelSize size = DevicePixelsOf(widget);
    QImage seen(size.Width, size.Height, QImage::Format_RGB32);
    seen.setDevicePixelRatio(widget.devicePixelRatioF());
    if (!seen.isNull()) {
        widget.render(&seen);
    }
    return ReadRows(seen, into);
}

}  // namespace

Form::Form(trameli::Forms& forms, std::string name, DesignSize size, FormStyle style)
    : forms_(forms), name_(std::move(name)) {
    const double twips = forms.Screen().TwipsPerPixelX();
    native_ = std::make_unique<Native>(
        *this, QSize(Nearest(size.Width / twips), Nearest(size.Height / twips)), style);
}

Form::~Form() = default;

bool Form::Loaded() const {
    return loaded_ && !forms_.Ended();
}

double Form::Left() const {
    return native_->Window.Place().x() * TwipsPerPixel(*this);
}

double Form::Top() const {
    return native_->Window.Place().y() * TwipsPerPixel(*this);
}

double Form::Width() const {
    return native_->Window.Client().width() * TwipsPerPixel(*this);
}

double Form::Height() const {
    return native_->Window.Client().height() * TwipsPerPixel(*this);
}

void Form::Left(double twips) {
    Ask(*this, &QRect::moveLeft, twips);
}

void Form::Top(double twips) {
    Ask(*this, &QRect::moveTop, twips);
}

void Form::Width(double twips) {
    Ask(*this, &QRect::setWidth, twips);
}

void Form::Height(double twips) {
    Ask(*this, &QRect::setHeight, twips);
}

int Form::WindowState() const {
    return native_->Window.State();
}

void Form::WindowState(int state) {
    native_->Window.State(static_cast<WindowStates>(state));
}

Form::HoldPainting::HoldPainting(Form& form) : form_(form) {
    form_.native_->Window.HoldPainting();
}

Form::HoldPainting::~HoldPainting() {
    form_.native_->Window.ReleasePainting();
}

void Form::Caption(const std::string& caption) {
    caption_ = caption;
    native_->Window.Title(ToQt(caption));
}

void Form::BackColor(Colour colour) {
    backColor_ = colour;
    if (native_->Canvas) {
        native_->Canvas->SurfaceNative().Background(colour);
    }
    native_->Window.Client().update();
}

void Form::MouseIcon(std::optional<PointerImage> icon) {
    mouseIcon_ = std::move(icon);
    SetPointer(native_->Window.Client(), mouseIcon_);
}

PixelSize Form::WindowPixels() const {
    return DevicePixelsOf(native_->Window);
}

int Form::ReadPixels(const PixelBlock& into) const {
    return ReadWidget(native_->Window, into);
}

PixelSize Form::ClientPixels() const {
    return DevicePixelsOf(native_->Window.Client());
}

int Form::ReadClientPixels(const PixelBlock& into) const {
    return ReadWidget(native_->Window.Client(), into);
}

void Form::Hourglass(bool shown) {
    native_->Window.Hourglass(shown);
}

void Form::Announce(const std::function<std::string()>& text) {
    FormWindow& window = native_->Window;
    const QWidget* const inFront = QApplication::activeWindow();
    if (QAccessible::isActive() && (!inFront || inFront == &window)) {
        window.Client().Announce(ToQt(text()));
    }
}

Surface& Form::Canvas() {
    if (!native_->Canvas) {
        ClientArea& client = native_->Window.Client();
        native_->Canvas = std::make_unique<Surface>();
        auto& surface = native_->Canvas->SurfaceNative();
        surface.Changed = [&client](const QRect& where) { client.update(where); };
        surface.Setup(TwipsPerPixel(*this), backColor_);
        surface.Resize(client.size(), client.devicePixelRatioF());
    }
    return *native_->Canvas;
}

Container::Native Form::ContainerNative() {
    return {&native_->Window.Client()};
}

bool Form::Form_KeyDown(int /*keyCode*/, int /*shift*/) {
    return false;
}

void Form::Form_KeyUp(int /*keyCode*/, int /*shift*/) {}

void Form::Form_QueryClose() {
    forms_.Unload(*this);
}

bool Form::KeyIsDown(int keyCode) const {
    return native_->Window.Keys().IsDown(keyCode);
}

bool Form::Attesa(double secondi) {
    // Nobody should wait in front of nothing.
    native_->Window.ComeUp();
    forms_.Clock().Wait(secondi, [this] { return !Loaded(); });
    return Loaded();
}

void Form::Native::Resize(Form& form) {
    form.Form_Resize();
}

void Form::Native::Activate(Form& form) {
    form.Form_Activate();
}

void Form::Native::QueryClose(Form& form) {
    if (!form.unloading_) {
        form.Form_QueryClose();
    }
}

bool Form::Native::KeyPressed(Form& form, int keyCode, int shift) {
    return form.Form_KeyDown(keyCode, shift);
}

void Form::Native::KeyReleased(Form& form, int keyCode, int shift) {
    form.Form_KeyUp(keyCode, shift);
}

void Form::Native::MouseMoved(Form& form) {
    form.Form_MouseMove();
}

}  // namespace trameli
