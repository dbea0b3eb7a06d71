// How the toolkit draws controls.
#pragma once

#include <QPalette>
#include <QProxyStyle>
#include <vector>

namespace trameli {

/// Fusion, but with equal palettes made one. That style keeps pictures of the controls it has drawn
/// under names that hold the number of the palette, which is another one for each widget, however
/// equal the colours. So no window would find the pictures of the last one again, and since the
/// names are never forgotten, the program would grow by about a kilobyte with each visit to the
/// menu.
class SharedPicturesStyle final : public QProxyStyle {
public:
    SharedPicturesStyle() : QProxyStyle(QStringLiteral("fusion")) {}

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    /// Keeps the entries of a menu bar apart by more than their words are, however large its font.
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;

private:
    /// The first palette of these colours that was drawn with, for the same group of them.
    QPalette Shared(const QPalette& palette) const;

    mutable std::vector<QPalette> palettes_;
};

}  // namespace trameli
