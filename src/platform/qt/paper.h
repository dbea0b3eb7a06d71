// Sheets of paper.
#pragma once

#include <string>
#include <vector>

namespace trameli {

/// A kind of sheet as a printer takes it in, with the edges on which nothing can be printed. In
/// hundredths of a millimetre.
struct Paper {
    std::string Key;  ///< the name that the printing industry gives it, "iso_a4_210x297mm"
    int Width = 0;
    int Height = 0;
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
};

/// What a person calls it: "A4 (210 x 297 mm)".
std::string NameOf(const Paper& paper);

/// The papers of an office, without edges. `withLetter` is for countries that use that instead of
/// A4; the usual one comes first.
std::vector<Paper> OfficePapers(bool withLetter);

/// True where letters are written on the paper called so. `locale` is a name such as "es_MX.UTF-8".
bool UsesLetter(const std::string& locale);

}  // namespace trameli
