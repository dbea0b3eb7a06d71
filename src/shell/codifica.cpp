#include "shell/codifica.h"

#include <array>
#include <cstdint>
#include <optional>

namespace trameli {

namespace {

constexpr std::string_view Segno = "\xEF\xBB\xBF";

/// What Windows-1252 has at 0x80 to 0x9F; elsewhere it agrees with the first characters of Unicode,
/// and where it has nothing it is taken to agree too.
constexpr std::array<char16_t, 32> Windows1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::uint8_t Byte(char carattere) {
    return static_cast<std::uint8_t>(carattere);
}

constexpr bool Seguito(char carattere) {
    return (Byte(carattere) & 0xC0) == 0x80;
}

/// First bytes of characters, with how many follow them and what the second byte may be. It says
/// more than the first one where a character could be spelled longer than need be, or is none.
struct Inizio {
    std::uint8_t Primo;
    std::uint8_t Ultimo;
    std::size_t Seguono;
    std::uint8_t SecondoDa;
    std::uint8_t SecondoA;
};

constexpr std::array<Inizio, 9> Inizi{{
    {0x00, 0x7F, 0, 0x80, 0xBF},
    {0xC2, 0xDF, 1, 0x80, 0xBF},
    {0xE0, 0xE0, 2, 0xA0, 0xBF},
    {0xE1, 0xEC, 2, 0x80, 0xBF},
    {0xED, 0xED, 2, 0x80, 0x9F},
    {0xEE, 0xEF, 2, 0x80, 0xBF},
    {0xF0, 0xF0, 3, 0x90, 0xBF},
    {0xF1, 0xF3, 3, 0x80, 0xBF},
    {0xF4, 0xF4, 3, 0x80, 0x8F},
}};

/// Length of the character that a text begins with; nothing if it begins with none.
std::optional<std::size_t> Lunghezza(std::string_view testo) {
    for (const Inizio& inizio : Inizi) {
        if (Byte(testo[0]) < inizio.Primo || Byte(testo[0]) > inizio.Ultimo) {
            continue;
        }
        const std::size_t lunghezza = inizio.Seguono + 1;
        if (testo.size() < lunghezza || (lunghezza > 1 && (Byte(testo[1]) < inizio.SecondoDa ||
                                                           Byte(testo[1]) > inizio.SecondoA))) {
            return std::nullopt;
        }
        for (const char seguito : testo.substr(1, inizio.Seguono)) {
            if (!Seguito(seguito)) {
                return std::nullopt;
            }
        }
        return lunghezza;
    }
    return std::nullopt;
}

bool EUtf8(std::string_view testo) {
    while (!testo.empty()) {
        const auto lunghezza = Lunghezza(testo);
        if (!lunghezza) {
            return false;
        }
        testo.remove_prefix(*lunghezza);
    }
    return true;
}

void Aggiungi(std::string& testo, char16_t carattere) {
    if (carattere < 0x80) {
        testo += static_cast<char>(carattere);
        return;
    }
    if (carattere < 0x800) {
        testo += static_cast<char>(0xC0 | (carattere >> 6));
    } else {
        testo += static_cast<char>(0xE0 | (carattere >> 12));
        testo += static_cast<char>(0x80 | ((carattere >> 6) & 0x3F));
    }
    testo += static_cast<char>(0x80 | (carattere & 0x3F));
}

}  // namespace

std::string TestoUtf8(std::string_view byte) {
    while (byte.starts_with(Segno)) {
        byte.remove_prefix(Segno.size());
    }
    if (EUtf8(byte)) {
        return std::string(byte);
    }
    std::string testo;
    for (const char carattere : byte) {
        const std::uint8_t codice = Byte(carattere);
        Aggiungi(testo, codice >= 0x80 && codice < 0xA0 ? Windows1252.at(codice - 0x80U) : codice);
    }
    return testo;
}

std::string_view PrimiCaratteri(std::string_view testo, std::size_t quanti) {
    std::size_t caratteri = 0;
    for (std::size_t i = 0; i < testo.size(); ++i) {
        if (!Seguito(testo[i]) && ++caratteri > quanti) {
            return testo.substr(0, i);
        }
    }
    return testo;
}

}  // namespace trameli
