// The command line.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace trameli {

/// What the program is started for.
enum class Compito { Gioco, Aiuto, Versione, Quaderno };

/// What a command line says, or what is wrong with it.
struct Comandi {
    trameli::Compito Compito = trameli::Compito::Gioco;
    /// The options that were given, with their values if they have one.
    std::map<std::string, std::string, std::less<>> Opzioni;
    /// One line for the terminal; empty if all was understood.
    std::string Errore;
};

/// The exit code after a command line that was not understood.
inline constexpr int ComandiErrati = 2;

/// Understands the words behind the program's name. What belongs to the window system is let
/// through. Asking for help or version settles the matter: what follows is not looked at.
Comandi LeggiComandi(const std::vector<std::string_view>& parole);

/// All options, for the terminal.
std::string TestoAiuto();
/// Name and version, for the terminal.
std::string TestoVersione();

}  // namespace trameli
