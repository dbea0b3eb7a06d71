// Whatever a language file holds, reading it ends, its values keep to their limit, and a value that
// is set is there afterwards.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>

#include "shell/codifica.h"
#include "shell/file_lingua.h"

namespace {

/// As it is, or as the beginning of a file that is too long for sections.
void Prova(std::string_view byte, bool grande) {
    std::string file(byte);
    if (grande) {
        file += '\n' + std::string(trameli::FileLingua::LimiteSezioni, ' ');
    }
    const trameli::FileLingua letto(file);
    for (const char* chiave : {"K", "FormMenu.Caption", "0001", ""}) {
        const std::string valore = letto.Valore("S", chiave);
        const std::string inMezzo = "x" + valore;  // a mark in the middle of a text stays
        if (trameli::TestoUtf8(inMezzo) != inMezzo || valore.find('\0') != std::string::npos) {
            std::abort();
        }
        if (!grande &&
            trameli::PrimiCaratteri(valore, trameli::FileLingua::LimiteValore) != valore) {
            std::abort();
        }
    }
    if (!grande &&
        trameli::FileLingua(trameli::ConValore(file, "S", "K", "v")).Valore("S", "K") != "v") {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti) {
    // In UTF-8 it can become three times as long.
    const auto file = std::string_view(reinterpret_cast<const char*>(byte), quanti)
                          .substr(0, trameli::FileLingua::LimiteSezioni / 4);
    Prova(file, false);
    if (std::hash<std::string_view>()(file) % 1024 == 0) {  // it takes much longer
        Prova(file, true);
    }
    return 0;
}
