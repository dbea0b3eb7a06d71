// What it costs to translate the largest window, against setting the same texts and serving the
// same events without looking anything up. The argument is how many languages there are: each is an
// entry in the menu.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "platform/desktop.h"
#include "program.h"

namespace trameli {
namespace {

namespace fs = std::filesystem;

/// A machine whose user adds languages.
class Machine {
public:
    Machine() {
        std::string pattern = (fs::temp_directory_path() / "trameli-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
        setenv("XDG_DATA_HOME", folder_.c_str(), 1);
    }
    ~Machine() {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    /// Makes it so many languages, each as large as those that the game brings along.
    void Languages(const FileSystem& files, std::int64_t count) const {
        const fs::path own = folder_ / "trameli" / "programma" / "lngtrameli";
        fs::remove_all(own);
        fs::create_directories(own);
        const auto text = files.Read("P:\\lngtrameli\\italiano.lng", FileLingua::LimiteLettura);
        const auto shipped = static_cast<std::int64_t>(files.List(Lingue::Cartella, ".lng").size());
        for (std::int64_t i = shipped; i < count; ++i) {
            std::ofstream(own / ("l" + std::to_string(i) + ".lng")) << text.value_or("");
        }
    }

private:
    fs::path folder_;
};

/// A window and what translates it.
struct Scene {
    explicit Scene(const Services& services) : Game(services) {
        for (const char* name : {"FormConfigura", "FormMenu"}) {
            Form& form = Game.Forms().Load(name);
            if (!Window || form.Controls().size() > Window->Controls().size()) {
                Window = &form;
            }
        }
    }

    Program Game;
    Form* Window = nullptr;
    Stato Shared;
};

const Machine* TheMachine = nullptr;
const Desktop* TheDesktop = nullptr;

void Translate(benchmark::State& state) {
    const Services services = TheDesktop->Services();
    TheMachine->Languages(services.FileSystem, state.range(0));
    Scene scene(services);
    Lingue lingue(scene.Shared, services.FileSystem, services.Dialogs, "");
    lingue.TraduciForm(*scene.Window);  // the file is read once
    for (auto _ : state) {
        lingue.TraduciForm(*scene.Window);
    }
}

void SetCaptions(benchmark::State& state) {
    const Services services = TheDesktop->Services();
    TheMachine->Languages(services.FileSystem, state.range(0));
    Scene scene(services);
    std::vector<std::pair<Control*, PropertyValue>> captions;
    for (Control* control : scene.Window->Controls()) {
        PropertyValue caption;
        control->Get("Caption", caption);
        captions.emplace_back(control, caption);
    }
    for (auto _ : state) {
        for (const auto& [control, caption] : captions) {
            control->Set("Caption", caption);
            scene.Game.Forms().ServeEvents();
        }
    }
}

BENCHMARK(Translate)->Name("traduci/lingue")->Arg(6)->Arg(200);
BENCHMARK(SetCaptions)->Name("traduci_base/lingue")->Arg(6)->Arg(200);

}  // namespace
}  // namespace trameli

int main(int argc, char** argv) {
    const trameli::Machine machine;
    const trameli::Desktop desktop(argc, argv, trameli::Program::PrimaVista());
    trameli::TheMachine = &machine;
    trameli::TheDesktop = &desktop;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
