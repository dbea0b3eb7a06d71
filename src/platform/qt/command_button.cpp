#include "platform/command_button.h"

#include <QPainter>
#include <QPushButton>
#include <algorithm>

#include "base/rounding.h"
#include "platform/property_access.h"
#include "platform/qt/convert.h"
#include "platform/qt/drawing.h"
#include "platform/qt/form_window.h"
#include "platform/qt/graphics.h"
#include "platform/qt/key_press.h"
#include "platform/qt/native.h"

namespace trameli {

namespace {

/// Parts of a button's smaller side.
constexpr double CornerRadius = 0.12;
constexpr double Margin = 0.08;
/// Of the room inside, what the picture of a button with a caption takes.
constexpr double PictureShare = 0.45;
/// How thick the edge of the button is that Enter presses, in pixels.
constexpr int DefaultEdge = 2;

/// Drawn here and not by the style: the colour has to be just the one that was set, and the focus
/// has to be seen from across a room.
class ButtonWidget : public PressedByRelease<QPushButton> {
public:
    explicit ButtonWidget(QWidget* parent) : PressedByRelease(parent) { setAutoDefault(false); }

    ShownPicture Face;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        switch (event->key()) {
            case Qt::Key_Left:
            case Qt::Key_Up:
            case Qt::Key_Right:
            case Qt::Key_Down:
                return;  // the toolkit would give the focus to a neighbour
            default:
                PressedByRelease::keyPressEvent(event);
        }
    }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const double side = std::min(width(), height());
        const QColor face = palette().color(QPalette::Window);
        const QRectF body = QRectF(rect()).adjusted(1, 1, -1, -1);

        painter.setPen(QPen(hasFocus() ? QColor(0, 0, 128) : EdgeOf(face), hasFocus() ? FocusRing
                                                                           : isDefault()
                                                                               ? DefaultEdge
                                                                               : 1));
        painter.setBrush(isDown() ? face.darker(115) : face);
        const double inset = hasFocus() ? FocusRing / 2.0 : 0.5;
        painter.drawRoundedRect(body.adjusted(inset, inset, -inset, -inset), side * CornerRadius,
                                side * CornerRadius);
        if (hasFocus()) {
            painter.setPen(QPen(Qt::white, 1, Qt::DotLine));
            painter.setBrush(Qt::NoBrush);
            const double ring = FocusRing + 3;
            painter.drawRoundedRect(body.adjusted(ring, ring, -ring, -ring), side * CornerRadius,
                                    side * CornerRadius);
        }
        const int margin = Nearest(side * Margin) + FocusRing;
        QRect room = rect().adjusted(margin, margin, -margin, -margin);
        if (isDown()) {
            room.translate(1, 1);
        }
        PaintFace(painter, room);
        PaintCaption(painter, room);
    }

private:
    /// Paints the picture at the top of `room` and leaves in it what the caption may take.
    void PaintFace(QPainter& painter, QRect& room) {
        const QSize own = Face.OwnSize();
        if (own.isEmpty()) {
            return;
        }
        QRect place = room;
        if (!text().isEmpty()) {
            place.setHeight(Nearest(room.height() * PictureShare));
            room.setTop(place.bottom() + 1);
        }
        QRect target(QPoint(0, 0), own.scaled(place.size(), Qt::KeepAspectRatio));
        target.moveCenter(place.center());
        Face.Paint(painter, target, devicePixelRatioF());
    }

    void PaintCaption(QPainter& painter, const QRect& room) {
        painter.setPen(InkOf(*this));
        painter.drawText(room, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextWordWrap, text());
    }
};

}  // namespace

CommandButton::CommandButton(Container& container, ControlName name, const Bounds& bounds,
                             std::string caption)
    : Captioned(container, std::move(name), bounds, MakeNative<ButtonWidget>(container)) {
    QObject::connect(&WidgetOf<ButtonWidget>(*this), &QPushButton::clicked,
                     [this] { Fire(*this, Click); });
    Caption(caption);
}

void CommandButton::ShowCaption() {
    WidgetOf<ButtonWidget>(*this).setText(ToQt(Caption()));
}

bool CommandButton::Default() const {
    return OwnerForm().NativePart().Window.Buttons().Default == NativePart().Widget;
}

void CommandButton::Default(bool answersEnter) {
    if (answersEnter == Default()) {
        return;
    }
    auto& widget = WidgetOf<ButtonWidget>(*this);
    QPointer<QPushButton>& button = OwnerForm().NativePart().Window.Buttons().Default;
    if (button) {
        button->setDefault(false);
    }
    button = answersEnter ? &widget : nullptr;
    widget.setDefault(answersEnter);
}

bool CommandButton::Cancel() const {
    return OwnerForm().NativePart().Window.Buttons().Cancel == NativePart().Widget;
}

void CommandButton::Cancel(bool answersEscape) {
    if (answersEscape != Cancel()) {
        OwnerForm().NativePart().Window.Buttons().Cancel =
            answersEscape ? &WidgetOf<ButtonWidget>(*this) : nullptr;
    }
}

void CommandButton::Properties(PropertyAccess& access) {
    access.At("Default", *this, &CommandButton::Default, &CommandButton::Default);
    access.At("Cancel", *this, &CommandButton::Cancel, &CommandButton::Cancel);
    Captioned::Properties(access);
}

void CommandButton::Picture(const trameli::Picture& picture) {
    auto& widget = WidgetOf<ButtonWidget>(*this);
    widget.Face.Set(picture);
    widget.update();
}

}  // namespace trameli
