// What a sound costs the step that asks for it, against the same step in silence.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>

#include "platform/qt/environment.h"
#include "platform/qt/local_file_system.h"
#include "platform/qt/mixer_sounds.h"
#include "platform/qt/surface_native.h"
#include "play/disegno_traccia.h"
#include "shell/suoni.h"

namespace trameli {
namespace {

constexpr double Twips = 15;
constexpr std::int16_t Cell = 900;
constexpr int Columns = 20;
constexpr int Steps = 100;

/// A way through the rows of a maze, to and fro.
Punto At(int step) {
    const int row = step / Columns;
    const int column = row % 2 == 0 ? step % Columns : Columns - 1 - step % Columns;
    return {static_cast<std::int16_t>(Cell * (column + 1)),
            static_cast<std::int16_t>(Cell * (row + 1))};
}

/// The last step of a walk of usual length, with a sound at each step if `withSound`. The device
/// plays for real, to nobody.
void Step(benchmark::State& state, bool withSound) {
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    MixerSounds sounds(LocalFileSystem("/nonexistent", FindProgramFolder(ThisExecutable())));
    Stato settings;
    settings.SuonoMovimento = withSound;
    Suoni suoni(settings, sounds);

    Surface canvas;
    canvas.SurfaceNative().Setup(Twips, White);
    canvas.SurfaceNative().Resize(QSize(1280, 640), 1);
    const Spessori thickness = CalcolaSpessori(1, Cell, Twips, Pareti::Linee);
    const AspettoTraccia look = AspettoDi(thickness, Cell, Twips, false, White, Black);
    Traccia walked(Steps / Columns + 1, Columns);
    walked.Comincia(At(0));
    for (int i = 1; i < Steps; ++i) {
        walked.Aggiungi(At(i), Black);
    }
    Traccia trace = walked;
    for (auto _ : state) {
        trace = walked;
        suoni.SuonoPasso();
        DisegnaPasso(canvas, trace, At(Steps), Black, look);
    }
}

// The sound thread's turns come as they please: the median of a few runs says little.
constexpr int Runs = 31;

BENCHMARK_CAPTURE(Step, WithSound, true)->Name("suono/passo")->Repetitions(Runs);
BENCHMARK_CAPTURE(Step, Silent, false)->Name("suono_base/passo")->Repetitions(Runs);

}  // namespace
}  // namespace trameli

BENCHMARK_MAIN();
