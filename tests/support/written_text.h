// What a widget writes.
#pragma once

#include <QString>
#include <QWidget>
#include <vector>

namespace trameli {

/// A piece of a text, a line or a part of it.
struct WrittenText {
    QString Text;
    QRectF Ink;    ///< what its letters cover, in pixels of the window
    QRectF Shown;  ///< what of the window the widget let through there

    /// Nothing of the letters is cut off. A pixel may be: that is the edge of a slanting stroke.
    bool Whole() const {
        return Shown.adjusted(-1, -1, 1, 1).contains(Ink) && !Text.contains(u'…');
    }
};

/// What the widget writes when it is painted, but not what those on it do. It may be hidden.
std::vector<WrittenText> TextsOf(QWidget& widget);

}  // namespace trameli
