// What the ground of the congratulations costs, against one colour over the same area.
#include <benchmark/benchmark.h>

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

void OneColour(benchmark::State& state) {
    Ground ground;
    for (auto _ : state) {
        ground.FillBox(0, 0, Width * Twips, Height * Twips, White);
        benchmark::ClobberMemory();
    }
}

BENCHMARK(Gradient)->Name("finale/gradiente");
BENCHMARK(OneColour)->Name("finale_base/gradiente");

}  // namespace
}  // namespace trameli

BENCHMARK_MAIN();
