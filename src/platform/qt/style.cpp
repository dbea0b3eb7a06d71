#include "platform/qt/style.h"

#include <QStyleOption>
#include <QWidget>
#include <algorithm>

namespace trameli {

namespace {

// Colours can be changed by the user, and nobody needs those of long ago.
constexpr std::size_t MostPalettes = 32;

}  // namespace

void SharedPicturesStyle::drawComplexControl(ComplexControl control,
                                             const QStyleOptionComplex* option, QPainter* painter,
                                             const QWidget* widget) const {
    if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
        QStyleOptionComboBox shared(*combo);
        shared.palette = Shared(combo->palette);
        QProxyStyle::drawComplexControl(control, &shared, painter, widget);
    } else if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
        QStyleOptionSlider shared(*slider);
        shared.palette = Shared(slider->palette);
        QProxyStyle::drawComplexControl(control, &shared, painter, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

int SharedPicturesStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                                     const QWidget* widget) const {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    return metric == PM_MenuBarItemSpacing && widget
               ? std::max(usual, 2 * widget->fontMetrics().height() / 5)
               : usual;
}

QPalette SharedPicturesStyle::Shared(const QPalette& palette) const {
    auto known = std::find(palettes_.begin(), palettes_.end(), palette);
    if (known == palettes_.end()) {
        if (palettes_.size() == MostPalettes) {
            palettes_.clear();
        }
        known = palettes_.insert(palettes_.end(), palette);
    }
    QPalette shared = *known;
    shared.setCurrentColorGroup(palette.currentColorGroup());
    return shared;
}

}  // namespace trameli
