// What the ground of the congratulations costs, against the toolkit's own gradient
// over the same area.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include "platform/qt/surface_native.h"
#include "play/sfumatura.h"

namespace trameli {
namespace {

// A full HD screen.
constexpr int Width = 1920;
constexpr int Height = 1080;
constexpr double Twips = 15;
constexpr int Scheme = 4;

struct Ground : Surface {
    Ground() {
        SurfaceNative().Setup(Twips, Black);
        SurfaceNative().Resize(QSize(Width, Height), 1);
    }
};

void Gradient(benchmark::State& state) {
    Ground ground;
    for (auto _ : state) {
        DisegnaSfumatura(ground, Scheme, Width, Height);
        benchmark::ClobberMemory();
    }
}

/// The same ellipse with a bare painter.
void PaintedGradient(benchmark::State& state) {
    QImage image(Width, Height, QImage::Format_RGB32);
    QRadialGradient rings(0, 0, 1);
    rings.setColorAt(0, QColor(255, 0, 255));
    rings.setColorAt(1, QColor(32, 0, 32));
    for (auto _ : state) {
        QPainter painter(&image);
        painter.setPen(Qt::NoPen);
        painter.setBrush(rings);
        painter.translate(Width / 2.0, Height / 2.0);
        painter.scale(Width / 2.0, Height / 2.0);
        painter.drawEllipse(QRectF(-1, -1, 2, 2));
        benchmark::ClobberMemory();
    }
}

BENCHMARK(Gradient)->Name("finale/gradiente");
BENCHMARK(PaintedGradient)->Name("finale_base/gradiente");

}  // namespace
}  // namespace trameli

BENCHMARK_MAIN();
