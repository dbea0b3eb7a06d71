#include "platform/qt/drawing.h"

#include "base/rounding.h"
#include "platform/contrast.h"

namespace trameli {

namespace {

/// The least ratio of the brightnesses of letters and ground, as accessibility guidelines have it
/// for large letters. Asking for more would take a form's own colours away.
constexpr double LeastContrast = 3;

double Contrast(const QColor& a, const QColor& b) {
    const auto plain = [](const QColor& colour) {
        return Rgb(colour.red(), colour.green(), colour.blue());
    };
    return trameli::Contrast(plain(a), plain(b));
}

}  // namespace

QColor Readable(const QColor& ink, const QColor& ground) {
    if (Contrast(ink, ground) >= LeastContrast) {
        return ink;
    }
    return Contrast(Qt::black, ground) >= Contrast(Qt::white, ground) ? Qt::black : Qt::white;
}

QColor Paled(const QColor& ink, const QColor& ground) {
    return QColor((ink.red() + ground.red()) / 2, (ink.green() + ground.green()) / 2,
                  (ink.blue() + ground.blue()) / 2);
}

QColor EdgeOf(const QColor& ground) {
    return Paled(Readable(Qt::black, ground), ground);
}

QColor InkOf(const QWidget& widget) {
    return widget.palette().color(widget.isEnabled() ? QPalette::Active : QPalette::Disabled,
                                  QPalette::WindowText);
}

void PaintFocusRing(QPainter& painter, const QRect& edge, const QColor& ground) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(Readable(QColor(0, 0, 128), ground), FocusRing, Qt::SolidLine, Qt::FlatCap,
                        Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    constexpr int inset = FocusRing / 2;
    painter.drawRect(edge.adjusted(inset, inset, -inset - 1, -inset - 1));
    painter.restore();
}

void PaintFocusRing(QWidget& widget) {
    if (widget.hasFocus()) {
        QPainter painter(&widget);
        PaintFocusRing(painter, widget.rect(), widget.palette().color(QPalette::Window));
    }
}

void PaintChoice(QAbstractButton& button, const PaintMark& paintMark) {
    QPainter painter(&button);
    painter.fillRect(button.rect(), button.palette().color(QPalette::Window));
    const QColor ink = InkOf(button);
    const int size = std::min(button.height() - 4, Nearest(button.fontMetrics().height() * 0.8));
    const double left = std::max(size * 0.3, FocusRing + 1.0);
    const QRectF square(left, (button.height() - size) / 2.0, size, size);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, std::max(1.0, size / 12.0)));
    painter.setBrush(Qt::white);
    paintMark(painter, square, Readable(ink, Qt::white));
    const QRect room = button.rect().adjusted(Nearest(left + size * 1.5), 0, -FocusRing, 0);
    painter.setPen(ink);
    painter.drawText(room,
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextWordWrap,
                     button.text());
    if (button.hasFocus()) {
        PaintFocusRing(painter, button.rect(), button.palette().color(QPalette::Window));
    }
}

}  // namespace trameli
