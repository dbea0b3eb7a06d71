// A book of mazes from the command line.
#pragma once

#include <map>
#include <string>

namespace trameli {

/// How that ended.
struct EsitoQuaderno {
    int Codice = 0;      ///< exit code
    std::string Errore;  ///< one line for the terminal; empty if the book was written
};

/// Writes the book that the options ask for, with the thickness and the colours of a user, without
/// a display.
EsitoQuaderno StampaQuaderno(const std::map<std::string, std::string, std::less<>>& opzioni);

}  // namespace trameli
