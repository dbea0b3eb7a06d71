#include "play/scansione.h"

#include <cstddef>

#include "base/rounding.h"

namespace trameli {

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
    const Lato lato = DirezioniScansione.at(static_cast<std::size_t>(direzione));
    const auto [riga, colonna] = Vicina({0, 0}, lato);
    return {testa,
            {Saturated(testa.X + colonna * aspetto.Lunghezza),
             Saturated(testa.Y + riga * aspetto.Lunghezza)}};
}

void DisegnaTrattoScansione(Surface& superficie, Punto testa, std::int16_t direzione,
                            const AspettoScansione& aspetto) {
    superficie.DrawWidth(aspetto.Penna);
    Disegna(superficie, TrattoScansione(testa, direzione, aspetto), Estremi::Quadri, aspetto.Colore,
            aspetto.TwipsPerPixel);
}

void TogliTrattoScansione(Surface& superficie, Punto testa, std::int16_t direzione,
                          const AspettoScansione& aspetto) {
    superficie.DrawWidth(aspetto.PennaGomma);
    Disegna(superficie, TrattoScansione(testa, direzione, aspetto), Estremi::Quadri,
            aspetto.ColoreSfondo, aspetto.TwipsPerPixel);
}

}  // namespace trameli
