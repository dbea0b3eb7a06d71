#include "play/scansione.h"

#include <algorithm>
#include <cstddef>

#include "base/rounding.h"

namespace trameli {

namespace {

// What an eye finds at once, in pixels: how thick a stroke is where the trace leaves it the room,
// how far it reaches beyond the symbol, and its rim where it does not.
constexpr int PennaMinima = 2;
constexpr int SporgenzaMinima = 4;
constexpr int OrloMinimo = 2;

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

AspettoScansione AspettoScansioneDi(const Spessori& spessori, Pareti pareti,
                                    std::int16_t dimensioneCella, double twipsPerPixelX,
                                    Colour colore, Colour coloreSfondo) {
    const int mezzaCella = Quotient(dimensioneCella, 2);
    const int simbolo = spessori.SpessoreTraccia;
    AspettoScansione aspetto{};
    // A pixel more than the wall, so that no rounding lets a stroke touch it.
    aspetto.Lunghezza = mezzaCella - MetaPenna(spessori.SpessoreMuri + 1, twipsPerPixelX);
    aspetto.Penna = std::max(simbolo - 1, std::min(simbolo, PennaMinima));
    aspetto.PennaGomma = simbolo;
    // A bar hides what reaches under it.
    const int visibile = pareti == Pareti::Barre
                             ? std::min(aspetto.Lunghezza, Quotient(dimensioneCella, 3))
                             : aspetto.Lunghezza;
    aspetto.SopraIlSimbolo = visibile < (simbolo + SporgenzaMinima) * twipsPerPixelX;
    aspetto.Orlo = std::max(OrloMinimo, Quotient(simbolo, 4));
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
    const Segmento tratto = TrattoScansione(testa, direzione, aspetto);
    if (aspetto.SopraIlSimbolo) {
        // Stroke and symbol may be of one colour.
        Riempi(superficie, Allunga(tratto, Nearest(aspetto.Orlo * aspetto.TwipsPerPixel), 0),
               aspetto.Penna + 2 * aspetto.Orlo, aspetto.ColoreSfondo, aspetto.TwipsPerPixel);
    }
    Riempi(superficie, tratto, aspetto.Penna, aspetto.Colore, aspetto.TwipsPerPixel);
}

void TogliTrattoScansione(Surface& superficie, Punto testa, std::int16_t direzione,
                          const AspettoScansione& aspetto) {
    Riempi(superficie, TrattoScansione(testa, direzione, aspetto), aspetto.PennaGomma,
           aspetto.ColoreSfondo, aspetto.TwipsPerPixel);
}

}  // namespace trameli
