// What a large folder of users costs, against one with a single user, or against a bare walk
// through it.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/qt/local_file_system.h"
#include "shell/modulo_per_ini.h"

namespace fs = std::filesystem;

namespace trameli {
namespace {

constexpr int Many = 10'000;

class NoDialogs final : public Dialogs {
public:
    Answer Message(const std::string&, const std::string&, Icon, Buttons) override {
        return Answer::Ok;
    }
    std::optional<Colour> ChooseColour() override { return std::nullopt; }
    void Language(const std::string&) override {}
};

/// A user among others, whose file was made by the program.
class Users {
public:
    explicit Users(int count) {
        Module.VerificaCartelle();
        Record.FileUtente = ModuloPerIni::PrimoFileUtente;
        Module.ScriviUtente();
        for (int i = 1; i < count; ++i) {
            std::ofstream(Folder() / ("Utente " + std::to_string(i) + ".ini"));
        }
    }
    ~Users() { fs::remove_all(root_); }
    Users(const Users&) = delete;
    Users& operator=(const Users&) = delete;

    fs::path Folder() const { return root_ / "ImpostazioniProgrammiOvalia" / "trameli"; }

private:
    // In memory: on a disk the time of a save is that of the disk, which says nothing of the
    // folder.
    static constexpr const char* Memory = "/dev/shm";
    std::string pattern_ =
        (fs::path(fs::exists(Memory) ? Memory : "/tmp") / "trameli-XXXXXX").string();
    fs::path root_ = mkdtemp(pattern_.data());

public:
    Stato Record;
    LocalFileSystem Files{root_};

private:
    NoDialogs dialogs_;
    Lingue texts_{Record, Files, dialogs_, ""};

public:
    ModuloPerIni Module{Record, Files, dialogs_, texts_};
};

void Save(benchmark::State& state, int count) {
    Users users(count);
    for (auto _ : state) {
        users.Module.ScriviUtente();
        users.Module.LeggiUtente();
    }
}

void ListThem(benchmark::State& state) {
    const Users users(Many);
    for (auto _ : state) {
        benchmark::DoNotOptimize(users.Files.List(ModuloPerIni::CartellaUtenti, ".ini"));
    }
}

void WalkThroughThem(benchmark::State& state) {
    const Users users(Many);
    for (auto _ : state) {
        std::size_t length = 0;
        for (const fs::directory_entry& entry : fs::directory_iterator(users.Folder())) {
            length += entry.path().native().size();
        }
        benchmark::DoNotOptimize(length);
    }
}

BENCHMARK_CAPTURE(Save, AmongMany, Many)->Name("utenti/salva");
BENCHMARK_CAPTURE(Save, Alone, 1)->Name("utenti_base/salva");
BENCHMARK(ListThem)->Name("utenti/elenca");
BENCHMARK(WalkThroughThem)->Name("utenti_base/elenca");

}  // namespace
}  // namespace trameli

BENCHMARK_MAIN();
