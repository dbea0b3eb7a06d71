#include "play/disegno_traccia.h"

#include "base/rounding.h"

namespace trameli {

namespace {

void DisegnaPunto(Surface& superficie, Punto punto, int penna, Estremi estremi, Colour colore) {
    superficie.DrawWidth(penna);
    Disegna(superficie, {punto, punto}, estremi, colore);
}

void DisegnaTratti(Surface& superficie, const Traccia& traccia, const AspettoTraccia& aspetto) {
    superficie.DrawWidth(aspetto.PennaTraccia);
    for (int i = 1; i <= traccia.ContaPunti(); ++i) {
        Disegna(superficie, traccia.Tratto(i, aspetto.Indietro), aspetto.EstremiTratti,
                traccia.PercorsoColore(i));
    }
}

}  // namespace

AspettoTraccia AspettoDi(const Spessori& spessori, std::int16_t dimensioneCella,
                         double twipsPerPixelX, bool coloraCasella, Colour coloreSfondo,
                         Colour coloreSimbolo) {
    AspettoTraccia aspetto{};
    aspetto.PennaSimbolo = 2 * spessori.SpessoreTraccia;
    aspetto.ColoreSfondo = coloreSfondo;
    aspetto.ColoreSimbolo = coloreSimbolo;
    if (coloraCasella) {
        // From the middle of a cell back to the face of its wall.
        const int muro = Nearest(twipsPerPixelX * spessori.SpessoreMuri);
        aspetto.Indietro = Quotient(dimensioneCella, 2) - Quotient(muro, 2);
        aspetto.PennaTraccia = spessori.LarghezzaCorridoio;
        aspetto.EstremiTratti = Estremi::Quadri;
    } else {
        aspetto.PennaTraccia = aspetto.PennaSimbolo;
        aspetto.EstremiTratti = Estremi::Tondi;
    }
    return aspetto;
}

void DisegnaSimbolo(Surface& superficie, Punto punto, const AspettoTraccia& aspetto,
                    Estremi estremi) {
    DisegnaPunto(superficie, punto, aspetto.PennaSimbolo, estremi, aspetto.ColoreSimbolo);
}

void DisegnaPasso(Surface& superficie, Traccia& traccia, Punto destinazione, Colour colore,
                  const AspettoTraccia& aspetto) {
    DisegnaPunto(superficie, traccia.Testa(), aspetto.PennaTraccia, Estremi::Tondi,
                 aspetto.ColoreSfondo);
    traccia.Aggiungi(destinazione, colore);
    DisegnaTratti(superficie, traccia, aspetto);
    DisegnaSimbolo(superficie, traccia.Testa(), aspetto);
}

void DisegnaPercorsoPerStampa(Surface& superficie, const Traccia& traccia,
                              const AspettoTraccia& aspetto) {
    DisegnaTratti(superficie, traccia, aspetto);
    DisegnaSimbolo(superficie, traccia.Testa(), aspetto, Estremi::Quadri);
}

}  // namespace trameli
