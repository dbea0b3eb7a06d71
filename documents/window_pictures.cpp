#include "window_pictures.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPixmap>
#include <QTemporaryDir>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <array>
#include <functional>
#include <set>
#include <utility>
#include <vector>

#include "platform/demo_printers.h"
#include "platform/menu.h"
#include "platform/no_dialogs.h"
#include "platform/qt/form_window.h"
#include "platform/qt/local_file_system.h"
#include "platform/status_bar.h"
#include "platform/tab_strip.h"
#include "program.h"
#include "shell/file_utente.h"
#include "shell/livelli.h"
#include "still_clock.h"

namespace trameli {

namespace {

/// The smallest screen that the program is made for: on paper its letters are the largest.
class PaperScreen final : public Screen {
public:
    PixelSize Size() const override { return {800, 600}; }
    PixelSize Available() const override { return Size(); }
};

class Silence final : public Sounds {
public:
    void PlayWave(const std::string& /*path*/) override {}
    void PlayMusic(const std::string& /*path*/) override {}
    void StopMusic() override {}
};

class NobodyElse final : public Instances {
public:
    bool AnotherRuns() override { return false; }
};

class NoReader final : public Documents {
public:
    void Open(const std::string& /*path*/) override {}
};

constexpr const char* Player = "Giulia";
constexpr const char* OtherPlayer = "Marco";

/// A game that somebody plays for a picture.
class Studio {
public:
    Studio(const std::filesystem::path& program, const std::string& language)
        : files_(folder_.path().toStdString(), program) {
        for (const char* player : {Player, OtherPlayer}) {
            files_.CreateFolder(ModuloPerIni::CartellaUtenti);
            files_.Replace(ModuloPerIni::CartellaUtenti + std::string(player) + ".ini",
                           Testo(Impostazioni()));
        }
        Stato& state = Game.Stato();
        state.LinguaCorrente = language;
        if (Game.Main()) {
            state.NomeUtente = Player;
            state.NomeGiocatore = Player;
            state.FileUtente = ModuloPerIni::CartellaUtenti + std::string(Player) + ".ini";
        }
    }

    /// Shows a window in place of the splash.
    Form& Open(const char* name) {
        Form* splash = Game.Forms().Find("FormAvvio");
        Game.Forms().Show(name);
        if (splash && splash->Name() != name) {
            Game.Forms().Unload(*splash);
        }
        Serve();
        return *Game.Forms().Find(name);
    }

    void Tick() {
        clock_.TickOnce();
        Serve();
    }

    /// Does what opens a window that nothing returns from before it has closed, takes its picture
    /// and closes it.
    void Take(const char* name, const std::function<void()>& open) {
        QTimer looking;
        QObject::connect(&looking, &QTimer::timeout, [&] {
            Form* form = Game.Forms().Find(name);
            if (form && form->NativePart().Window.isVisible()) {
                looking.stop();
                Serve();
                Taken = form->NativePart().Window.grab().toImage();
                Game.Forms().Unload(*form);
            }
        });
        looking.start(0);
        open();
    }
    QImage Taken;

    static void Serve() {
        // What one round of events posts, the next one serves.
        for (int round = 0; round < 4; ++round) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }

private:
    QTemporaryDir folder_;
    StillClock clock_;
    PaperScreen screen_;
    LocalFileSystem files_;
    NoDialogs dialogs_;
    NobodyElse instances_;
    Silence sounds_;
    NoReader documents_;
    DemoPrinters printers_{{"Laser 1", "PDF"}};

public:
    Program Game{
        {clock_, screen_, files_, dialogs_, instances_, sounds_, documents_, printers_, ""},
        std::make_unique<CasualeConSeme>(3)};
};

template <typename T>
T* Find(const Form& form, const std::string& name) {
    for (Control* control : form.Controls()) {
        if (control->Name() == name) {
            return dynamic_cast<T*>(control);
        }
    }
    return nullptr;
}

/// Leads the symbol through its maze, without knowing the maze: to cells where it has not been, and
/// back where there are none.
class Wanderer {
public:
    explicit Wanderer(Form& form) : form_(form), bar_(*Find<StatusBar>(form, "StatusBar1")) {}

    void Walk(int steps) {
        for (int i = 0; i < steps && (StepToNew() || StepBack()); ++i) {
        }
    }

private:
    using Cell = std::pair<int, int>;
    static constexpr std::array<Cell, 4> Moves{{{0, 1}, {1, 0}, {-1, 0}, {0, -1}}};
    static constexpr std::array<int, 4> Keys{Qt::Key_Down, Qt::Key_Right, Qt::Key_Left, Qt::Key_Up};
    static constexpr std::size_t Opposite(std::size_t move) { return Moves.size() - 1 - move; }

    bool StepToNew() {
        for (std::size_t move = 0; move < Moves.size(); ++move) {
            const Cell next{at_.first + Moves[move].first, at_.second + Moves[move].second};
            if (!seen_.contains(next) && Step(move)) {
                seen_.insert(next);
                way_.push_back(move);
                return true;
            }
        }
        return false;
    }

    bool StepBack() {
        if (way_.empty()) {
            return false;
        }
        const std::size_t last = way_.back();
        way_.pop_back();
        return Step(Opposite(last));
    }

    bool Step(std::size_t move) {
        constexpr int steps = 4;  // their panel
        const std::string before = bar_.Panel(steps);
        QWindow* window = form_.NativePart().Window.windowHandle();
        for (const auto event : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent key(event, Keys[move], Qt::NoModifier);
            QCoreApplication::sendEvent(window, &key);
        }
        Studio::Serve();
        if (bar_.Panel(steps) == before) {
            return false;
        }
        at_ = {at_.first + Moves[move].first, at_.second + Moves[move].second};
        return true;
    }

    Form& form_;
    StatusBar& bar_;
    Cell at_{0, 0};
    std::set<Cell> seen_{{0, 0}};
    std::vector<std::size_t> way_;
};

/// What a picture shows.
struct Scene {
    const char* Picture;
    const char* Form;
    std::int16_t Level = 3;
    void (*Settings)(Impostazioni&) = nullptr;
    void (*Play)(trameli::Form&, Studio&) = nullptr;
};

/// One of the pages of the settings.
template <int Number>
void TurnTo(Form& form, Studio& /*studio*/) {
    if (auto* tabs = Find<TabStrip>(form, "TabStrip1")) {
        tabs->SelectedTab(Number);
    }
}

/// A maze that is about to be printed.
void Print(Form& form, Studio& studio) {
    Wanderer(form).Walk(30);
    studio.Take("frmStampa", [&] { Find<MenuItem>(form, "mnuStampa")->Click(); });
}

const auto Scenes = std::to_array<Scene>({
    {"FormAvvio", "FormAvvio"},
    {"FormMenu", "FormMenu", 3, {}, [](Form&, Studio& studio) { studio.Tick(); }},
    {"frmTrm0", "frmTrm0", 4, {}, [](Form& form, Studio&) { Wanderer(form).Walk(22); }},
    {"frmTrm0Barre", "frmTrm0", 4,
     [](Impostazioni& settings) { settings.LineeNeiPrimiLivelli = false; },
     [](Form& form, Studio&) { Wanderer(form).Walk(9); }},
    {"frmTrm0Scansione", "frmTrm0", 4, [](Impostazioni& settings) { settings.ModoInput = 2; },
     [](Form&, Studio& studio) {
         studio.Tick();
         studio.Tick();
     }},
    {"frmTrm1", "frmTrm1", 6, {}, [](Form&, Studio& studio) { studio.Tick(); }},
    {"frmTrm3", "frmTrm3", 13, {}, [](Form& form, Studio&) { Wanderer(form).Walk(60); }},
    {"frmStampa", "frmTrm3", 12, {}, Print},
    {"FormFinale", "FormFinale"},
    {"FormConfigura1", "FormConfigura", 3, {}, TurnTo<1>},
    {"FormConfigura2", "FormConfigura", 3, {}, TurnTo<2>},
    {"FormConfigura3", "FormConfigura", 3, {}, TurnTo<3>},
    {"FormConfigura4", "FormConfigura", 3, [](Impostazioni& settings) { settings.ModoInput = 2; },
     TurnTo<4>},
    {"FormInfo", "FormInfo"},
});

}  // namespace

WindowPictures::WindowPictures(std::filesystem::path program, std::string language)
    : program_(std::move(program)), language_(std::move(language)) {}

QImage WindowPictures::Picture(const std::string& name) const {
    const auto* const scene = std::find_if(Scenes.begin(), Scenes.end(),
                                           [&](const Scene& one) { return one.Picture == name; });
    Studio studio(program_, language_);
    if (scene == Scenes.end() || !studio.Game.Forms().Knows(scene->Form)) {
        return {};
    }
    Stato& state = studio.Game.Stato();
    state.Livello = scene->Level;
    ImpostaGriglia(state);
    if (scene->Settings) {
        scene->Settings(state);
    }
    Form& form = studio.Open(scene->Form);
    if (scene->Play) {
        scene->Play(form, studio);
    }
    Studio::Serve();
    return studio.Taken.isNull() ? form.NativePart().Window.grab().toImage() : studio.Taken;
}

}  // namespace trameli
