// A book of mazes for the table.
#pragma once

#include <cstdint>
#include <string>

#include "platform/page_book.h"
#include "shell/impostazioni.h"

namespace trameli {

/// What somebody asked for.
struct Quaderno {
    int Livello = 0;         ///< 0 to 15
    int Numero = 1;          ///< mazes, one a page
    std::uint64_t Seme = 0;  ///< equal ones give equal mazes
    bool Soluzioni = false;  ///< all ways, small, on the last pages
};

/// Size of the pages, twips: A4 on its side, as mazes are.
inline constexpr double LarghezzaPagina = 16838;
inline constexpr double AltezzaPagina = 11906;

/// Draws the mazes into a book of pages of that size that has only its first page yet. Thickness
/// and colours are the player's, on white, though darker where white would swallow them.
/// `parolaLivello` stands before the level's number.
void Scrivi(const Quaderno& quaderno, const Impostazioni& impostazioni,
            const std::string& parolaLivello, PageBook& libro);

}  // namespace trameli
