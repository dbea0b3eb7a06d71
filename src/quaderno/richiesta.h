// What the command line says about a book of mazes.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <variant>

#include "quaderno/quaderno.h"

namespace trameli {

/// A book, the file that it goes to, by its path on this machine, and whose settings count; those
/// of the first user where nobody is named.
struct Richiesta {
    std::string File;
    std::optional<std::string> Utente;
    trameli::Quaderno Quaderno;
};

/// Understands the options "--quaderno", "--livello", "--numero", "--seme", "--soluzioni" and
/// "--utente" with their values. `semeDelMomento` counts where none is given. Else what is wrong,
/// in a few words.
std::variant<Richiesta, std::string> LeggiRichiesta(
    const std::map<std::string, std::string, std::less<>>& opzioni, std::uint64_t semeDelMomento);

}  // namespace trameli
