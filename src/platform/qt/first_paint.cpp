#include "platform/qt/first_paint.h"

#include <fontconfig/fontconfig.h>

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <exception>
#include <system_error>
#include <utility>

#include "platform/qt/convert.h"

namespace trameli {

namespace {

constexpr double TwipsPerPixel = 15;

void Prepare(const FirstSight& sight, std::future<void>& toolkitStarted) {
    FcInit();
    toolkitStarted.get();
    QFontMetrics(ToQt(sight.Lettering, TwipsPerPixel)).height();
    QImage nowhere(64, 64, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&nowhere);
    QSvgRenderer(":/" + ToQt(sight.Image.Name)).render(&painter);
}

}  // namespace

FirstPaint::FirstPaint(FirstSight sight) {
    try {
        thread_ = std::jthread(
            [sight = std::move(sight), toolkitStarted = started_.get_future()]() mutable {
                try {
                    Prepare(sight, toolkitStarted);
                } catch (const std::exception&) {
                    // There will be no window, or memory is short. Nothing is lost but time.
                }
            });
    } catch (const std::system_error&) {
        // No thread to be had.
    }
}

}  // namespace trameli
