#include "play/disegno_traccia.h"

#include "base/rounding.h"

namespace trameli {

namespace {

void DisegnaTratti(Surface& superficie, const Traccia& traccia, const AspettoTraccia& aspetto) {
    superficie.DrawWidth(aspetto.PennaTraccia);
    for (int i = 1; i <= traccia.ContaPunti(); ++i) {
        Disegna(superficie, traccia.Tratto(i, aspetto.Indietro), aspetto.EstremiTratti,
                traccia.PercorsoColore(i), aspetto.TwipsPerPixel);
    }
}

}  // namespace

AspettoTraccia AspettoDi(const Spessori& spessori, std::int16_t dimensioneCella,
                         double twipsPerPixelX, bool coloraCasella, Colour coloreSfondo,
                         Colour coloreSimbolo) {
    AspettoTraccia aspetto{};
    aspetto.PennaSimbolo = 2 * spessori.SpessoreTraccia;
    aspetto.TwipsPerPixel = twipsPerPixelX;
    aspetto.ColoreSfondo = coloreSfondo;
    aspetto.ColoreSimbolo = coloreSimbolo;
    if (coloraCasella) {
        // From the middle of a cell back to the face of its wall.
        aspetto.Indietro =
            Quotient(dimensioneCella, 2) - MetaPenna(spessori.SpessoreMuri, twipsPerPixelX);
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
    superficie.DrawWidth(aspetto.PennaSimbolo);
    Disegna(superficie, {punto, punto}, estremi, aspetto.ColoreSimbolo, aspetto.TwipsPerPixel);
}

void DisegnaPasso(Surface& superficie, Traccia& traccia, Punto destinazione, Colour colore,
                  const AspettoTraccia& aspetto) {
    const Punto testa = traccia.Testa();
    superficie.DrawWidth(aspetto.PennaTraccia);
    superficie.DrawLine(testa.X, testa.Y, testa.X, testa.Y, aspetto.ColoreSfondo);
    // The symbol has corners if the picture was painted anew since the last step.
    superficie.DrawWidth(aspetto.PennaSimbolo);
    superficie.DrawBox(testa.X, testa.Y, testa.X, testa.Y, aspetto.ColoreSfondo);
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
