// Plays for an hour of the game's own time, at a key in half a second: mazes of all levels to their
// end, congratulations, the settings, the menu in between. Prints the kilobytes of memory after a
// minute and after the hour, and the mazes.
#include <QApplication>
#include <cstdio>

#include "game/partita.h"
#include "platform/command_button.h"
#include "platform/qt/toolkit.h"
#include "resident.h"

namespace trameli {
namespace {

constexpr double Minute = 60;
constexpr double Hour = 60 * Minute;
constexpr double BetweenKeys = 0.5;
constexpr double BetweenWindows = 3;
constexpr int MazesOfALevel = 5;
constexpr int FirstTimed = 5;
constexpr int LastTimed = 7;

class Player {
public:
    void Play() {
        game_.ApriMenu();
        for (int level = 0; Age() < Hour; level = (level + 1) % NumeroLivelliGioco) {
            PlayLevel(level);
            Partita::Scegli(game_.Finestra("FormMenu"), "mnuConfigura");
            Wait(BetweenWindows);
            Partita::Scegli(game_.Finestra("FormConfigura"), "mnuEsci");
            Wait(BetweenWindows);
        }
        std::printf("%ld %ld %d\n", afterMinute_, ResidentKilobytes(), mazes_);
    }

private:
    double Age() const { return game_.Tempo.Now() - start_; }

    void Wait(double seconds) {
        game_.Tempo.Advance(seconds);
        if (afterMinute_ == 0 && Age() >= Minute) {
            afterMinute_ = ResidentKilobytes();
        }
    }

    void PlayLevel(int level) {
        game_.AvviaLivello(level);
        Wait(BetweenWindows);
        if (level >= FirstTimed && level <= LastTimed) {
            ++mazes_;
            Wait(Minute / 2);  // the symbol walks by itself, from wall to wall
        } else {
            for (int maze = 1; maze <= MazesOfALevel; ++maze) {
                Solve(level);
                if (maze < MazesOfALevel) {
                    ClickOn(Trova<CommandButton>(Maze(level), "BottoneAvanti"));
                }
                Wait(BetweenWindows);
            }
            ClickOn(Trova<CommandButton>(game_.Finestra("FormFinale"), "Command1"));
            Wait(BetweenWindows);
        }
        Partita::Scegli(Maze(level), "mnuEsci");
        Wait(BetweenWindows);
    }

    Form& Maze(int level) {
        return game_.Finestra(level < FirstTimed   ? "frmTrm0"
                              : level <= LastTimed ? "frmTrm1"
                                                   : "frmTrm3");
    }

    void Solve(int level) {
        const Tavolo table(Maze(level), level);
        ++mazes_;
        for (const int way : table.Soluzione()) {
            table.Passo(way);
            Wait(BetweenKeys);
        }
    }

    Disco disk_;
    Partita game_{disk_};
    double start_ = game_.Tempo.Now();
    long afterMinute_ = 0;
    int mazes_ = 0;
};

}  // namespace
}  // namespace trameli

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    trameli::PrepareToolkit();
    trameli::Player().Play();
}
