// The settings of a user.
#pragma once

#include <cstdint>

namespace trameli {

/// How the player moves; the values of `ModoInput`.
enum ModiInput : std::int16_t { Tastiera = 0, ScansioneManuale = 1, ScansioneAutomatica = 2 };

/// The unit of `VelocitaScansione`, in milliseconds.
inline constexpr int QuartoDiSecondo = 250;

/// The sixteen persisted settings, in the order of the user file. Colours are whole numbers
/// red + 256 x green + 65536 x blue. The values given here are the defaults.
struct Impostazioni {
    std::int16_t Livello = 3;            ///< chosen level, 0 to 15; the player sees it plus one
    bool UsaMaiuscolo = false;           ///< captions in capitals
    bool CambiaColoreRitorno = true;     ///< a path walked back takes another colour
    bool LineeNeiPrimiLivelli = true;    ///< the first levels are drawn with lines too
    double ColorePareti = 0;             ///< maze walls: black
    double ColoreAvanti = 49152;         ///< path forward: 0, 192, 0
    double ColoreSfondo = 12648447;      ///< background of the play windows: 255, 255, 192
    double ColoreSimbolo = 255;          ///< movement symbol: 255, 0, 0
    double ColoreRitorno = 8438015;      ///< path back: 255, 192, 128
    double ColoreScansione = 255;        ///< scanning highlight: 255, 0, 0
    std::int16_t SpessoreLinee = 1;      ///< combination of wall and trace thickness, 0 to 6
    bool SuoniAttivi = true;             ///< sounds on
    bool SuonoMovimento = false;         ///< a sound at every move
    bool PuntatoreSistema = false;       ///< the system's pointer instead of the program's own
    std::int16_t ModoInput = Tastiera;   ///< arrow keys, manual or automatic scanning
    std::int16_t VelocitaScansione = 4;  ///< a scanning step in quarters of a second, 2 to 60

    bool operator==(const Impostazioni&) const = default;
};

}  // namespace trameli
