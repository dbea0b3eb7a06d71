#include "shell/nome_utente.h"

#include <cstddef>

#include "shell/codifica.h"

namespace trameli {

namespace {

constexpr std::size_t CaratteriMassimi = 100;
/// What file systems allow a name, less the extension.
constexpr std::size_t ByteMassimi = 255 - std::string_view(".ini").size();

/// True for separators of paths and for control characters. Those from 0x80 to 0x9F are two bytes,
/// the first of which is `precedente`.
bool Vietato(unsigned char precedente, unsigned char byte) {
    return byte < 0x20 || byte == 0x7F || byte == '/' || byte == '\\' ||
           (precedente == 0xC2 && byte < 0xA0);
}

}  // namespace

bool NomeUtenteAmmesso(std::string_view nome) {
    if (nome.starts_with('.') || nome.size() > ByteMassimi || TestoUtf8(nome) != nome ||
        PrimiCaratteri(nome, CaratteriMassimi) != nome) {
        return false;
    }
    unsigned char precedente = 0;
    for (const char carattere : nome) {
        const auto byte = static_cast<unsigned char>(carattere);
        if (Vietato(precedente, byte)) {
            return false;
        }
        precedente = byte;
    }
    return true;
}

}  // namespace trameli
