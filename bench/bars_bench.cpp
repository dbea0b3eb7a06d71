// What it takes to show the walls of the next maze of the first levels as bars, up to the picture
// on the window.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QWidget>
#include <cstdint>
#include <memory>
#include <vector>

#include "drawing/geometria.h"
#include "drawing/muri_a_barre.h"
#include "engine/ricette.h"
#include "platform/control_array.h"
#include "platform/forms.h"
#include "platform/picture_box.h"
#include "platform/qt/graphics.h"
#include "platform/qt/native.h"
#include "platform/qt/toolkit.h"

namespace trameli {
namespace {

class StillClock final : public Clock {
public:
    double Now() const override { return 0; }
    std::unique_ptr<Ticker> Every(int, std::function<void()>) override { return nullptr; }
    void Wait(double, const std::function<bool()>&) override {}
};

class BenchScreen final : public Screen {
public:
    PixelSize Size() const override { return {1920, 1080}; }
    PixelSize Available() const override { return Size(); }
};

/// A full HD window with nothing but the playing surface and the bars.
class Board : public Form {
public:
    explicit Board(trameli::Forms& forms)
        : Form(forms, "Board", {28800, 16200}), Surface(*this, "Surface", {0, 0, 28800, 14250}) {
        Bars.Add(Surface, Bounds{0, 0, 900, 900}).Visible(false);
        Bars(0).Picture({"muri/0.svg"});
    }
    PictureBox Surface;
    ControlArray<PictureBox> Bars{"Bars"};
};

/// The places of the bars of a maze of the fifth level, which has the most of them.
std::vector<Bounds> BarsOfMaze(std::uint32_t seed) {
    CasualeConSeme draws(seed);
    Tramelo walls(6, 9, draws);
    walls.CreaNuovaGriglia();
    walls.NonEliminareMuriEsterni();
    walls.Scava();
    return PostiBarre(walls, CalcolaGeometria(28800, 14250, 6, 9));
}

void ShowBars(benchmark::State& state) {
    StillClock clock;
    BenchScreen screen;
    Forms forms(clock, screen);
    forms.Register("Board", [](Forms& all) { return std::make_unique<Board>(all); });
    forms.Show("Board");
    QCoreApplication::processEvents();
    auto& board = static_cast<Board&>(*forms.Find("Board"));
    const std::vector<Bounds> mazes[] = {BarsOfMaze(1), BarsOfMaze(2)};
    std::size_t turn = 0;
    QWidget& surface = *static_cast<VisualControl&>(board.Surface).NativePart().Widget;
    QImage window(surface.size(), QImage::Format_RGB32);
    for (auto _ : state) {
        int count = 0;
        for (const Bounds& place : mazes[++turn % 2]) {
            PictureBox& bar = board.Bars.Load(++count);
            bar.Enabled(false);
            bar.Picture({"muri/0.svg"});
            bar.Place(place);
            bar.Visible(true);
        }
        while (board.Bars.Count() > count + 1) {
            board.Bars.Unload(board.Bars.Count() - 1);
        }
        surface.render(&window);
    }
}

/// The same pieces of the same picture on an image of the window's size, with bare painter calls.
void PaintBars(benchmark::State& state) {
    const std::vector<Bounds> places = BarsOfMaze(1);
    const QImage texture = CornerAtOwnSize({"muri/0.svg"}, {420, 420}, 1);
    QImage window(1920, 1080, QImage::Format_RGB32);
    for (auto _ : state) {
        window.fill(Qt::yellow);
        QPainter painter(&window);
        for (const Bounds& place : places) {
            painter.drawImage(QPointF(place.Left / 15, place.Top / 15), texture,
                              QRectF(0, 0, place.Width / 15, place.Height / 15));
        }
    }
}

BENCHMARK(ShowBars)->Name("barre")->Unit(benchmark::kMillisecond);
BENCHMARK(PaintBars)->Name("barre_base")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace trameli

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    trameli::PrepareToolkit();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
