#include "drawing/muri_a_barre.h"

#include <array>
#include <cstdint>

#include "base/rounding.h"
#include "drawing/muri_a_linee.h"

namespace trameli {

namespace {

/// The walls on one side of the cells of the first row or of all, of the first column or of all.
struct Passata {
    trameli::Lato Lato;
    bool TutteLeRighe;
    bool TutteLeColonne;
};

// An inner wall has two sides and gets one bar: its upper and its left side are never asked.
constexpr std::array<Passata, 4> Passate{{
    {Lato::Alto, false, true},
    {Lato::Sinistra, true, false},
    {Lato::Basso, true, true},
    {Lato::Destra, true, true},
}};

}  // namespace

Bounds PostoBarra(Cella cella, Lato lato, const Geometria& geometria) {
    const int cellaIntera = geometria.DimensioneCella;
    const int spessore = Quotient(cellaIntera, 3);
    const int sporgenza = Quotient(cellaIntera, 6);
    const int centro = Quotient(spessore, 2);
    const Punto inizio = SegmentoMuro(cella, lato, geometria).Da;
    const bool orizzontale = lato == Lato::Alto || lato == Lato::Basso;
    return {static_cast<double>(inizio.X - (orizzontale ? sporgenza : centro)),
            static_cast<double>(inizio.Y - (orizzontale ? centro : sporgenza)),
            static_cast<double>(orizzontale ? cellaIntera + spessore : spessore),
            static_cast<double>(orizzontale ? spessore : cellaIntera + spessore)};
}

std::vector<Bounds> PostiBarre(const Tramelo& tramelo, const Geometria& geometria) {
    std::vector<Bounds> posti;
    for (const Passata& passata : Passate) {
        const std::int16_t righe = passata.TutteLeRighe ? tramelo.Righe() : std::int16_t{1};
        const std::int16_t colonne = passata.TutteLeColonne ? tramelo.Colonne() : std::int16_t{1};
        for (std::int16_t r = 1; r <= righe; ++r) {
            for (std::int16_t c = 1; c <= colonne; ++c) {
                if (tramelo.Muri(r, c, passata.Lato)) {
                    posti.push_back(PostoBarra({r, c}, passata.Lato, geometria));
                }
            }
        }
    }
    return posti;
}

}  // namespace trameli
