// What drawing costs, against the same strokes drawn with the toolkit's own painter.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include "drawing/geometria.h"
#include "drawing/muri_a_linee.h"
#include "drawing/spessori.h"
#include "platform/qt/surface_native.h"
#include "play/disegno_traccia.h"
#include "play/traccia.h"

namespace trameli {
namespace {

// The playing surface of a full HD screen.
constexpr int Width = 1920;
constexpr int Height = 950;
constexpr double Twips = 15;
constexpr int Rows = 15;
constexpr int Columns = 20;
constexpr int ThicknessIndex = 1;
constexpr Colour Background = Rgb(255, 255, 192);
constexpr Colour Ink = Rgb(0, 192, 0);
constexpr Colour Symbol = Rgb(255, 0, 0);

/// Level 15 on that surface.
struct Scene {
    Scene() {
        Canvas.SurfaceNative().Setup(Twips, Background);
        Canvas.SurfaceNative().Resize(QSize(Width, Height), 1);
        Maze.CreaNuovaGriglia();
        Maze.NonEliminareMuriEsterni();
        Maze.Scava();
    }

    CasualeConSeme Draws{1};
    Tramelo Maze{Rows, Columns, Draws};
    Geometria Geometry = CalcolaGeometria(Width * Twips, Height* Twips, Rows, Columns);
    Spessori Thickness =
        CalcolaSpessori(ThicknessIndex, Geometry.DimensioneCella, Twips, Pareti::Linee);
    Surface Canvas;
};

/// A line with bare painter calls, as short as they can be written.
void PaintStroke(QPainter& painter, const Segmento& stroke, int pen, Qt::PenCapStyle cap,
                 const QColor& colour) {
    painter.setPen(QPen(colour, pen, Qt::SolidLine, cap));
    painter.drawLine(QPointF(stroke.Da.X / Twips, stroke.Da.Y / Twips),
                     QPointF(stroke.A.X / Twips, stroke.A.Y / Twips));
}

void DrawWalls(benchmark::State& state) {
    Scene scene;
    for (auto _ : state) {
        DisegnaMuriALinee(scene.Canvas, scene.Maze, scene.Geometry, scene.Thickness.SpessoreMuri,
                          Estremi::Tondi, Black);
    }
}

void PaintWalls(benchmark::State& state) {
    const Scene scene;
    QImage image(Width, Height, QImage::Format_RGB32);
    for (auto _ : state) {
        QPainter painter(&image);
        for (std::int16_t r = 1; r <= Rows; ++r) {
            for (std::int16_t c = 1; c <= Columns; ++c) {
                for (const Lato side : {Lato::Alto, Lato::Basso, Lato::Sinistra, Lato::Destra}) {
                    if (scene.Maze.Muri(r, c, side)) {
                        PaintStroke(painter, SegmentoMuro({r, c}, side, scene.Geometry),
                                    static_cast<int>(scene.Thickness.SpessoreMuri), Qt::RoundCap,
                                    Qt::black);
                    }
                }
            }
        }
    }
}

/// A trace of so many points, to and fro along one row.
Traccia Walk(const Scene& scene, int points) {
    Traccia trace(Rows, Columns);
    const auto at = [&](int i) {
        const int round = i % (2 * (Columns - 1));
        const int column = round < Columns ? round : 2 * (Columns - 1) - round;
        const int cell = scene.Geometry.DimensioneCella;
        return Punto{
            static_cast<std::int16_t>(scene.Geometry.MargineSinistro + column * cell + cell / 2),
            static_cast<std::int16_t>(scene.Geometry.MargineSuperiore + cell / 2)};
    };
    trace.Comincia(at(0));
    for (int i = 1; i <= points; ++i) {
        trace.Aggiungi(at(i), Ink);
    }
    return trace;
}

AspettoTraccia LookOf(const Scene& scene, bool wholeCells) {
    return AspettoDi(scene.Thickness, scene.Geometry.DimensioneCella, Twips, wholeCells, Background,
                     Symbol);
}

/// range(0): points in the trace, range(1): whether whole cells are coloured.
void DrawStep(benchmark::State& state) {
    Scene scene;
    const Traccia walked = Walk(scene, static_cast<int>(state.range(0)) - 1);
    const AspettoTraccia look = LookOf(scene, state.range(1) != 0);
    const Punto next = walked.Tratto(1, 0).A;
    Traccia trace = walked;
    for (auto _ : state) {
        state.PauseTiming();
        trace = walked;
        state.ResumeTiming();
        DisegnaPasso(scene.Canvas, trace, next, Ink, look);
    }
}

void PaintStep(benchmark::State& state) {
    const Scene scene;
    const Traccia trace = Walk(scene, static_cast<int>(state.range(0)));
    const AspettoTraccia look = LookOf(scene, state.range(1) != 0);
    const Qt::PenCapStyle cap = state.range(1) != 0 ? Qt::SquareCap : Qt::RoundCap;
    const Segmento head{trace.Testa(), trace.Testa()};
    QImage image(Width, Height, QImage::Format_RGB32);
    for (auto _ : state) {
        state.PauseTiming();
        state.ResumeTiming();
        QPainter painter(&image);
        PaintStroke(painter, head, look.PennaTraccia, Qt::RoundCap, Qt::yellow);
        for (int i = 1; i <= trace.ContaPunti(); ++i) {
            PaintStroke(painter, trace.Tratto(i, look.Indietro), look.PennaTraccia, cap, Qt::green);
        }
        PaintStroke(painter, head, look.PennaSimbolo, Qt::RoundCap, Qt::red);
    }
}

BENCHMARK(DrawWalls)->Name("pareti/livello:15");
BENCHMARK(PaintWalls)->Name("pareti_base/livello:15");
BENCHMARK(DrawStep)
    ->Name("passo")
    ->ArgNames({"punti", "casella"})
    ->ArgsProduct({{10, 100, 1000}, {0, 1}});
BENCHMARK(PaintStep)
    ->Name("passo_base")
    ->ArgNames({"punti", "casella"})
    ->ArgsProduct({{10, 100, 1000}, {0, 1}});

}  // namespace
}  // namespace trameli

BENCHMARK_MAIN();
