// What the command line says about a book of mazes.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <variant>

#include "quaderno/quaderno.h"

namespace trameli {

/// A book, and the file that it goes to, by its path on this machine.
struct Richiesta {
    std::string File;
    trameli::Quaderno Quaderno;
};

/// Understands the options "--quaderno", "--livello", "--numero", "--seme" and "--soluzioni" with
/// their values. `semeDelMomento` counts where none is given. Else what is wrong, in a few words.
std::variant<Richiesta, std::string> LeggiRichiesta(
    const std::map<std::string, std::string, std::less<>>& opzioni, std::uint64_t semeDelMomento);

}  // namespace trameli
