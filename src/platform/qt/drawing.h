// What the drawings of several controls have in common.
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QPainter>
#include <functional>

namespace trameli {

/// Thickness of the ring round what has the keyboard, in pixels.
inline constexpr int FocusRing = 3;

/// `ink`, or black or white where letters in it could not be read on `ground`.
QColor Readable(const QColor& ink, const QColor& ground);
/// What letters are drawn in on something that cannot be used: half way to the ground.
QColor Paled(const QColor& ink, const QColor& ground);
/// The colour of thin lines round something of that colour.
QColor EdgeOf(const QColor& ground);
/// The colour of a widget's letters, enabled or not.
QColor InkOf(const QWidget& widget);

/// The ring inside `edge`, in a colour that can be seen on `ground`.
void PaintFocusRing(QPainter& painter, const QRect& edge, const QColor& ground);
/// The same along the edge of a widget, if it has the keyboard.
void PaintFocusRing(QWidget& widget);

/// Paints a mark, into a square and with that colour inside; pen and brush are set for its outline.
using PaintMark = std::function<void(QPainter&, const QRectF&, const QColor&)>;

/// Paints a button that is a mark and a caption beside it. The mark grows with the font; the
/// caption wraps.
void PaintChoice(QAbstractButton& button, const PaintMark& paintMark);

}  // namespace trameli
