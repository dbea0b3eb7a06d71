#include "play/scansione.h"

#include <algorithm>
#include <cstddef>

#include "base/rounding.h"

namespace trameli {

namespace {

/// A bar from end to end of the stroke. It is filled between its edges, not drawn with a pen, whose
/// half thickness is rounded and would let it end a pixel further, in a wall. And edges that lie
/// further apart in twips never lie closer in pixels: a thicker bar covers a thinner one.
void Riempi(Surface& superficie, const Segmento& tratto, int penna, Colour colore,
            double twipsPerPixel) {
    const auto& [da, a] = tratto;
    const int spessore = Nearest(std::max(1, penna) * twipsPerPixel);
    const int prima = Quotient(spessore, 2);
    const int dopo = spessore - prima;
    if (da.X == a.X) {
        superficie.FillBox(da.X - prima, da.Y, da.X + dopo, a.Y, colore);
    } else {
        superficie.FillBox(da.X, da.Y - prima, a.X, da.Y + dopo, colore);
    }
}

}  // namespace

AspettoScansione AspettoScansioneDi(const Spessori& spessori, std::int16_t dimensioneCella,
                                    double twipsPerPixelX, Colour colore, Colour coloreSfondo) {
    AspettoScansione aspetto{};
    // A pixel more than the wall, so that no rounding lets a stroke touch it.
    aspetto.Lunghezza =
        Quotient(dimensioneCella, 2) - MetaPenna(spessori.SpessoreMuri + 1, twipsPerPixelX);
    aspetto.Penna = spessori.SpessoreTraccia - 1;
    aspetto.PennaGomma = spessori.SpessoreTraccia;
    aspetto.TwipsPerPixel = twipsPerPixelX;
    aspetto.Colore = colore;
    aspetto.ColoreSfondo = coloreSfondo;
    return aspetto;
}

Segmento TrattoScansione(Punto testa, std::int16_t direzione, const AspettoScansione& aspetto) {
    const Lato verso = DirezioniScansione.at(static_cast<std::size_t>(direzione));
    return {testa, Sposta(testa, verso, aspetto.Lunghezza)};
}

void DisegnaTrattoScansione(Surface& superficie, Punto testa, std::int16_t direzione,
                            const AspettoScansione& aspetto) {
    Riempi(superficie, TrattoScansione(testa, direzione, aspetto), aspetto.Penna, aspetto.Colore,
           aspetto.TwipsPerPixel);
}

void TogliTrattoScansione(Surface& superficie, Punto testa, std::int16_t direzione,
                          const AspettoScansione& aspetto) {
    Riempi(superficie, TrattoScansione(testa, direzione, aspetto), aspetto.PennaGomma,
           aspetto.ColoreSfondo, aspetto.TwipsPerPixel);
}

}  // namespace trameli
