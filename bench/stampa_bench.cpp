// What printing costs: the picture in greys and on the preview, the print window, a key in it, and
// a page as a PDF file.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/demo_printers.h"
#include "platform/desktop.h"
#include "platform/menu.h"
#include "platform/qt/desktop_printers.h"
#include "platform/qt/form_window.h"
#include "platform/qt/surface_native.h"
#include "platform/text_box.h"
#include "printing/immagine.h"
#include "program.h"
#include "shell/livelli.h"

namespace trameli {
namespace {

using Time = std::chrono::steady_clock;

double Since(Time::time_point start) {
    return std::chrono::duration<double>(Time::now() - start).count();
}

/// A maze as it is printed from a full HD screen: thin lines on white.
class Picture {
public:
    Picture() {
        for (int y = 0; y < Height; ++y) {
            for (int x = 0; x < Width; ++x) {
                const bool wall = x % 60 < 4 || y % 60 < 4;
                std::memset(&Bits_[static_cast<std::size_t>(y * BytesPerRow + 3 * x)],
                            wall ? x % 256 : 255, 3);
            }
        }
    }

    PixelBlock Block() { return {Width, Height, BytesPerRow, Bits_.data()}; }
    /// The same memory, upside down.
    QImage Image() const {
        return {Bits_.data(), Width, Height, BytesPerRow, QImage::Format_BGR888};
    }
    std::size_t Bytes() const { return Bits_.size(); }

private:
    static constexpr int Width = 1920;
    static constexpr int Height = 1080;
    static constexpr int BytesPerRow = 3 * Width;

    std::vector<std::uint8_t> Bits_ = std::vector<std::uint8_t>(std::size_t{BytesPerRow} * Height);
};

/// The whole picture on a surface of so many pixels across, which is smaller in both directions.
void DrawPreview(benchmark::State& state) {
    Picture picture;
    const QSize size(static_cast<int>(state.range(0)), static_cast<int>(state.range(0)) * 2 / 3);
    Surface surface;
    surface.SurfaceNative().Setup(15, White);
    surface.SurfaceNative().Resize(size, 1);
    for (auto _ : state) {
        surface.Cls();
        surface.StretchPixels({0, 0, size.width(), size.height()}, picture.Block());
    }
}

/// The same with the toolkit's own averaging, which is the only way to keep thin lines there.
void DrawScaled(benchmark::State& state) {
    const Picture picture;
    const QSize size(static_cast<int>(state.range(0)), static_cast<int>(state.range(0)) * 2 / 3);
    QImage surface(size, QImage::Format_RGB32);
    for (auto _ : state) {
        surface.fill(Qt::white);
        QPainter painter(&surface);
        painter.drawImage(
            0, 0, picture.Image().scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
}

BENCHMARK(DrawPreview)->Name("anteprima/pixel")->Arg(127)->Arg(1280);
BENCHMARK(DrawScaled)->Name("anteprima_base/pixel")->Arg(127)->Arg(1280);

void TurnGrey(benchmark::State& state) {
    Picture picture;
    for (auto _ : state) {
        ConvertiInGrigi(picture.Block());
        benchmark::ClobberMemory();
    }
}

void CopyBlock(benchmark::State& state) {
    Picture picture;
    std::vector<std::uint8_t> copy(picture.Bytes());
    for (auto _ : state) {
        std::memcpy(copy.data(), picture.Block().Bits, copy.size());
        benchmark::ClobberMemory();
    }
}

BENCHMARK(TurnGrey)->Name("stampa/grigi");
BENCHMARK(CopyBlock)->Name("stampa_base/grigi");

/// A folder for what is printed and saved, gone at the end.
class Folder {
public:
    Folder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "trameli-XXXXXX").string();
        path_ = mkdtemp(pattern.data());
        setenv("XDG_DATA_HOME", path_.c_str(), 1);
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path path_;
};

const Folder* TheFolder = nullptr;
const Desktop* TheDesktop = nullptr;

/// One copy, from the first call to the file that is whole.
void PrintPdf(benchmark::State& state) {
    Picture picture;
    PdfOptions options;
    options.Folder = options.Home = TheFolder->Path();
    DesktopPrinters printers(options);
    PrinterSettings settings;
    settings.Orientation = PrinterSettings::Landscape;
    for (auto _ : state) {
        const auto context = printers.CreateContext("PDF", settings);
        const SheetSize sheet = context->Pixels();
        context->StartDocument("Trameli");
        context->StartPage();
        context->Stretch({sheet.Width / 10, sheet.Height / 10, sheet.Width / 2, sheet.Height / 2},
                         picture.Block());
        context->EndPage();
        if (context->EndDocument() == 0) {
            state.SkipWithError("not printed");
        }
    }
}

BENCHMARK(PrintPdf)->Name("stampa/pdf")->Unit(benchmark::kMillisecond)->UseRealTime();

/// A window with nothing in it.
class EmptyForm : public Form {
public:
    explicit EmptyForm(trameli::Forms& forms)
        : Form(forms, "EmptyForm", {9360, 7845}, FormStyle::Windowed) {}
};

void Serve() {
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// A maze on the screen of a machine with three printers.
class Game {
public:
    Game() : Game_(ServicesWith(printers_)) {
        Game_.Forms().Register("EmptyForm",
                               [](Forms& forms) { return std::make_unique<EmptyForm>(forms); });
        if (Game_.Main()) {
            Game_.Stato().Livello = 15;
            ImpostaGriglia(Game_.Stato());
            Game_.Forms().Show("frmTrm3");
            Serve();
        }
    }

    /// Opens a window that nothing returns from before it has closed, calls `action` when it can
    /// be seen with all that is in it, and closes it.
    void With(const std::string& name, const std::function<void(Form&)>& action) {
        QTimer looking;
        QObject::connect(&looking, &QTimer::timeout, [&] {
            Form* form = Game_.Forms().Find(name);
            if (form && form->NativePart().Window.isVisible()) {
                looking.stop();
                Serve();
                action(*form);
                Game_.Forms().Unload(*form);
            }
        });
        looking.start(0);
        if (name == "frmStampa") {
            Find<MenuItem>(*Game_.Forms().Find("frmTrm3"), "mnuStampa").Click();
        } else {
            Game_.Forms().Show(name, Modality::Modal);
        }
        Serve();
    }

    double TimeToOpen(const std::string& name) {
        const auto start = Time::now();
        double seconds = 0;
        With(name, [&](Form&) { seconds = Since(start); });
        return seconds;
    }

    template <typename T>
    static T& Find(const Form& form, const std::string& name) {
        for (Control* control : form.Controls()) {
            if (control->Name() == name) {
                return dynamic_cast<T&>(*control);
            }
        }
        std::abort();
    }

private:
    static Services ServicesWith(Printers& printers) {
        const Services real = TheDesktop->Services();
        return {real.Clock,  real.Screen,    real.FileSystem, real.Dialogs, real.Instances,
                real.Sounds, real.Documents, printers,        real.Locale};
    }

    DemoPrinters printers_{{"One", "Two", "Three"}};
    Program Game_;
};

/// What the print window takes to come up longer than an empty one.
void OpenWindow(benchmark::State& state) {
    Game game;
    for (auto _ : state) {
        const double empty = game.TimeToOpen("EmptyForm");
        state.SetIterationTime(std::max(0.0, game.TimeToOpen("frmStampa") - empty));
    }
}

/// From a key that changes the size to the preview on the window.
void PressKey(benchmark::State& state) {
    Game game;
    game.With("frmStampa", [&](Form& form) {
        TextBox& width = Game::Find<TextBox>(form, "txtPrW");
        width.SetFocus();
        QWindow* const window = form.NativePart().Window.windowHandle();
        const auto press = [&](Qt::Key key) {
            const std::string before = width.Text();
            for (const auto event : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent stroke(event, key, Qt::NoModifier);
                QCoreApplication::sendEvent(window, &stroke);
            }
            Serve();
            return width.Text() != before;
        };
        Qt::Key next = Qt::Key_Up;
        for (auto _ : state) {
            if (!press(next)) {
                state.SkipWithError("the key did nothing");
            }
            next = next == Qt::Key_Up ? Qt::Key_Down : Qt::Key_Up;
        }
    });
}

BENCHMARK(OpenWindow)->Name("stampa/apertura")->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(PressKey)->Name("stampa/tasto")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace trameli

int main(int argc, char** argv) {
    const trameli::Folder folder;
    const trameli::Desktop desktop(argc, argv, trameli::Program::PrimaVista());
    trameli::TheFolder = &folder;
    trameli::TheDesktop = &desktop;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
