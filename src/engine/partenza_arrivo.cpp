#include "engine/partenza_arrivo.h"

#include <array>
#include <cstddef>

#include "base/rounding.h"

namespace trameli {

namespace {

/// A corner of the grid and the side of it that is open. The finish is always the opposite of both.
struct Angolo {
    bool InBasso;
    bool ADestra;
    Lato Aperto;
};

constexpr std::array<Angolo, NumeroConfigurazioni> Partenze{{
    {false, false, Lato::Alto},
    {true, true, Lato::Basso},
    {false, true, Lato::Alto},
    {true, false, Lato::Basso},
    {false, false, Lato::Sinistra},
    {true, true, Lato::Destra},
    {true, false, Lato::Sinistra},
    {false, true, Lato::Destra},
}};

// The timed form places its finish picture by a column count of its own, whatever the grid.
constexpr int ColonneFinoArrivoATempo = 10;

Cella CellaDi(const Angolo& angolo, int righe, int colonne) {
    return {Saturated(angolo.InBasso ? righe : 1), Saturated(angolo.ADestra ? colonne : 1)};
}

/// The middle of a side of a cell.
Punto MezzoDi(Cella cella, Lato lato, const Geometria& geometria) {
    const int intera = geometria.DimensioneCella;
    const int mezza = Floor(intera / 2.0);
    const int x = (cella.Colonna - 1) * intera + geometria.MargineSinistro;
    const int y = (cella.Riga - 1) * intera + geometria.MargineSuperiore;
    switch (lato) {
        case Lato::Alto:
            return {Saturated(x + mezza), Saturated(y)};
        case Lato::Destra:
            return {Saturated(x + intera), Saturated(y + mezza)};
        case Lato::Basso:
            return {Saturated(x + mezza), Saturated(y + intera)};
        case Lato::Sinistra:
            break;
    }
    return {Saturated(x), Saturated(y + mezza)};
}

/// The place of a picture, two thirds of a cell wide, before that side of the cell.
Posizione DavantiA(Cella cella, Lato lato, const Geometria& geometria, double spessoreMuri) {
    const int intera = geometria.DimensioneCella;
    const int x = (cella.Colonna - 1) * intera + geometria.MargineSinistro;
    const int y = (cella.Riga - 1) * intera + geometria.MargineSuperiore;
    const int sesto = Quotient(intera, 6);
    const int mezzoMuro = Quotient(Nearest(spessoreMuri), 2);
    switch (lato) {
        case Lato::Alto:
            return {Saturated(y - intera + sesto - mezzoMuro), Saturated(x + sesto + mezzoMuro)};
        case Lato::Destra:
            return {Saturated(y + sesto + mezzoMuro), Saturated(x + intera + sesto + mezzoMuro)};
        case Lato::Basso:
            return {Saturated(y + intera + mezzoMuro), Saturated(x + sesto + mezzoMuro)};
        case Lato::Sinistra:
            break;
    }
    // With neither the sixth nor the half wall, a little further off than at the other sides.
    return {Saturated(y + sesto + mezzoMuro), Saturated(x - intera)};
}

/// Counted in half cells, so that nothing is lost on smaller cells and back.
std::int16_t Trasferita(int coordinata, int margine, int cella, int margineNuovo, int cellaNuova) {
    const int mezze = cella > 0 ? Nearest(2.0 * (coordinata - margine) / cella) : 0;
    const int intere = Floor(mezze / 2.0);
    return Saturated(margineNuovo + intere * cellaNuova +
                     (mezze - 2 * intere) * Floor(cellaNuova / 2.0));
}

void Apri(Tramelo& tramelo, const PartenzaArrivo& scelta) {
    tramelo.Apri(scelta.CellaPartenza, scelta.LatoPartenza);
    tramelo.Apri(scelta.CellaArrivo, scelta.LatoArrivo);
}

}  // namespace

PartenzaArrivo Configurazione(int k, int righe, int colonne, const Geometria& geometria,
                              double spessoreMuri) {
    const Angolo& partenza = Partenze.at(static_cast<std::size_t>(k));
    const Angolo arrivo{!partenza.InBasso, !partenza.ADestra, Opposto(partenza.Aperto)};
    const Cella cellaPartenza = CellaDi(partenza, righe, colonne);
    const Cella cellaArrivo = CellaDi(arrivo, righe, colonne);
    return {
        .CellaPartenza = cellaPartenza,
        .LatoPartenza = partenza.Aperto,
        .CellaArrivo = cellaArrivo,
        .LatoArrivo = arrivo.Aperto,
        .CellaIniziale = Vicina(cellaPartenza, partenza.Aperto),
        .PuntoIniziale = MezzoDi(cellaPartenza, partenza.Aperto, geometria),
        .PosizioneArrivo = DavantiA(cellaArrivo, arrivo.Aperto, geometria, spessoreMuri),
    };
}

PartenzaArrivo TrovaPartenzaArrivo(Tramelo& tramelo, Casuale& casuale, const Geometria& geometria,
                                   double spessoreMuri) {
    const int k = casuale.FinoA(NumeroConfigurazioni);
    const PartenzaArrivo scelta =
        Configurazione(k, tramelo.Righe(), tramelo.Colonne(), geometria, spessoreMuri);
    Apri(tramelo, scelta);
    return scelta;
}

PartenzaArrivo TrovaPartenzaArrivoATempo(Tramelo& tramelo, const Geometria& geometria,
                                         double spessoreMuri) {
    PartenzaArrivo scelta =
        Configurazione(0, tramelo.Righe(), tramelo.Colonne(), geometria, spessoreMuri);
    // A whole wall instead of half of one, and no sixth: only the sum is rounded.
    scelta.PosizioneArrivo.Sinistra =
        Saturated(Nearest(ColonneFinoArrivoATempo * geometria.DimensioneCella +
                          geometria.MargineSinistro + spessoreMuri));
    Apri(tramelo, scelta);
    return scelta;
}

Punto Trasferito(Punto punto, const Geometria& da, const Geometria& a) {
    return {Trasferita(punto.X, da.MargineSinistro, da.DimensioneCella, a.MargineSinistro,
                       a.DimensioneCella),
            Trasferita(punto.Y, da.MargineSuperiore, da.DimensioneCella, a.MargineSuperiore,
                       a.DimensioneCella)};
}

PartenzaArrivo Trasferito(PartenzaArrivo scelta, const Geometria& da, const Geometria& a) {
    const double scala =
        da.DimensioneCella > 0 ? 1.0 * a.DimensioneCella / da.DimensioneCella : 0.0;
    scelta.PuntoIniziale = Trasferito(scelta.PuntoIniziale, da, a);
    const auto [alto, sinistra] = scelta.PosizioneArrivo;
    scelta.PosizioneArrivo = {
        Saturated(a.MargineSuperiore + Nearest((alto - da.MargineSuperiore) * scala)),
        Saturated(a.MargineSinistro + Nearest((sinistra - da.MargineSinistro) * scala))};
    return scelta;
}

std::int16_t LatoArrivoImmagine(std::int16_t dimensioneCella, double spessoreMuri) {
    return Saturated(2 * Quotient(Nearest(dimensioneCella - spessoreMuri), 3));
}

}  // namespace trameli
