// The languages that the game brings along, and all its windows.
#pragma once

#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "game/partita.h"
#include "shell/file_lingua.h"

namespace trameli {

/// All windows that show something, with a level that they can be opened at.
struct FinestraDiGioco {
    const char* Nome;
    std::int16_t Livello = 3;
};
inline constexpr std::array<FinestraDiGioco, 9> Finestre{{
    {"FormAvvio"},
    {"FormMenu"},
    {"FormConfigura"},
    {"FormInfo"},
    {"frmTrm0"},
    {"frmTrm1", 7},
    {"frmTrm3", 15},
    {"FormFinale"},
    {"frmStampa"},
}};

/// The languages by their files' names, in alphabetical order.
inline std::vector<std::string> LingueFornite() {
    std::vector<std::string> lingue;
    for (const auto& voce :
         std::filesystem::directory_iterator(ProgrammaFornito() / "lngtrameli")) {
        if (voce.path().extension() == ".lng") {
            lingue.push_back(voce.path().stem().string());
        }
    }
    std::sort(lingue.begin(), lingue.end());
    return lingue;
}

/// Writes down the choice of a language, as the menu does.
inline void ScegliLingua(const Disco& disco, const std::string& lingua) {
    disco.ScriviNelProgramma("lngtrameli/LangSetting.ini",
                             "[Language]\r\nCurrentLanguage=" + lingua + "\r\n");
}

/// A numbered text of a language.
inline std::string TestoFornito(const std::string& lingua, const std::string& numero) {
    const auto file = ProgrammaFornito() / "lngtrameli" / (lingua + ".lng");
    return FileLingua(BytesOf(file)).Valore("Strings", numero);
}

}  // namespace trameli
