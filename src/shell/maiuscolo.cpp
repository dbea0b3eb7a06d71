#include "shell/maiuscolo.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace trameli {

namespace {

/// Small letters whose capitals lie equally far away. Where capitals and small letters take turns,
/// the small ones are every second character.
struct Lettere {
    char32_t Prima;
    char32_t Ultima;
    char32_t Passo;
    int Distanza;
};

// Two letters are left out on purpose. The sharp s has no single capital. The dotless i shares its
// capital with another letter, so a name in capitals would no longer be the same name.
constexpr auto Minuscole = std::to_array<Lettere>({
    {U'a', U'z', 1, -32},
    // Latin
    {0x00B5, 0x00B5, 1, 743},
    {0x00E0, 0x00F6, 1, -32},
    {0x00F8, 0x00FE, 1, -32},
    {0x00FF, 0x00FF, 1, 121},
    {0x0101, 0x012F, 2, -1},
    {0x0133, 0x0137, 2, -1},
    {0x013A, 0x0148, 2, -1},
    {0x014B, 0x0177, 2, -1},
    {0x017A, 0x017E, 2, -1},
    {0x017F, 0x017F, 1, -300},
    {0x01A1, 0x01A5, 2, -1},
    {0x01B0, 0x01B0, 1, -1},
    {0x01CE, 0x01DC, 2, -1},
    {0x01DF, 0x01EF, 2, -1},
    {0x01F9, 0x021F, 2, -1},
    {0x0223, 0x0233, 2, -1},
    {0x1E01, 0x1E95, 2, -1},
    {0x1EA1, 0x1EFF, 2, -1},
    // Greek
    {0x03AC, 0x03AC, 1, -38},
    {0x03AD, 0x03AF, 1, -37},
    {0x03B1, 0x03C1, 1, -32},
    {0x03C2, 0x03C2, 1, -31},
    {0x03C3, 0x03CB, 1, -32},
    {0x03CC, 0x03CC, 1, -64},
    {0x03CD, 0x03CE, 1, -63},
    // Cyrillic
    {0x0430, 0x044F, 1, -32},
    {0x0450, 0x045F, 1, -80},
    {0x0461, 0x0481, 2, -1},
    {0x048B, 0x04BF, 2, -1},
    {0x04C2, 0x04CE, 2, -1},
    {0x04CF, 0x04CF, 1, -15},
    {0x04D1, 0x052F, 2, -1},
});

char32_t Maiuscola(char32_t lettera) {
    const auto* const trovata =
        std::find_if(Minuscole.begin(), Minuscole.end(), [lettera](const Lettere& lettere) {
            return lettera >= lettere.Prima && lettera <= lettere.Ultima &&
                   (lettera - lettere.Prima) % lettere.Passo == 0;
        });
    return trovata == Minuscole.end()
               ? lettera
               : static_cast<char32_t>(static_cast<int>(lettera) + trovata->Distanza);
}

/// A character and the bytes it takes. All letters of the table lie below 0x10000; everything else,
/// malformed bytes too, counts as single bytes without a capital.
struct Carattere {
    char32_t Codice = 0;
    std::size_t Byte = 1;
};

Carattere Primo(std::string_view testo) {
    const auto byte = [testo](std::size_t i) {
        return i < testo.size() ? static_cast<unsigned char>(testo[i]) : 0U;
    };
    const auto seguito = [byte](std::size_t i) { return (byte(i) & 0xC0U) == 0x80U; };
    const unsigned primo = byte(0);
    if (primo < 0x80U) {
        return {static_cast<char32_t>(primo), 1};
    }
    if ((primo & 0xE0U) == 0xC0U && seguito(1)) {
        const char32_t codice = ((primo & 0x1FU) << 6U) | (byte(1) & 0x3FU);
        return codice >= 0x80 ? Carattere{codice, 2} : Carattere{};
    }
    if ((primo & 0xF0U) == 0xE0U && seguito(1) && seguito(2)) {
        const char32_t codice =
            ((primo & 0x0FU) << 12U) | ((byte(1) & 0x3FU) << 6U) | (byte(2) & 0x3FU);
        return codice >= 0x800 ? Carattere{codice, 3} : Carattere{};
    }
    return {};
}

void Aggiungi(std::string& testo, char32_t codice) {
    const auto byte = [&testo](char32_t valore) {
        testo += static_cast<char>(static_cast<unsigned char>(valore));
    };
    if (codice < 0x80) {
        byte(codice);
    } else if (codice < 0x800) {
        byte(0xC0U | (codice >> 6U));
        byte(0x80U | (codice & 0x3FU));
    } else {
        byte(0xE0U | (codice >> 12U));
        byte(0x80U | ((codice >> 6U) & 0x3FU));
        byte(0x80U | (codice & 0x3FU));
    }
}

}  // namespace

std::string Maiuscolo(std::string_view testo) {
    std::string risultato;
    risultato.reserve(testo.size());
    while (!testo.empty()) {
        const Carattere carattere = Primo(testo);
        const char32_t maiuscola = Maiuscola(carattere.Codice);
        if (maiuscola != carattere.Codice) {
            Aggiungi(risultato, maiuscola);
        } else {
            risultato += testo.substr(0, carattere.Byte);
        }
        testo.remove_prefix(carattere.Byte);
    }
    return risultato;
}

}  // namespace trameli
