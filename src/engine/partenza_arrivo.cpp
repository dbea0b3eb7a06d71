#include "engine/partenza_arrivo.h"

#include <array>

#include "base/rounding.h"

namespace trameli {

namespace {

// What the sums of the table are made of, in more bits than any of them needs.
struct Termini {
    std::int64_t R;   // rows
    std::int64_t C;   // columns
    std::int64_t L;   // side of a cell
    std::int64_t MS;  // left margin
    std::int64_t MT;  // upper margin
    std::int64_t H;   // half a cell, to the middle of an opening
    std::int64_t F;   // a sixth of a cell, which centres a picture two thirds of a cell wide
    std::int64_t T2;  // half a wall
};

using Somma = std::int64_t (*)(const Termini& t);

enum class Angolo { AltoSinistra, AltoDestra, BassoSinistra, BassoDestra };

struct Riga {
    Angolo Partenza;
    Lato LatoPartenza;
    Angolo Arrivo;
    Lato LatoArrivo;
    Somma X;
    Somma Y;
    Somma Alto;
    Somma Sinistra;
};

using enum Angolo;

// One row a configuration; then the first point (x, y) and the finish picture (top, left). The left
// of rows 5 and 7 has neither the sixth nor the half wall: there the picture is cut off by the
// edge.
// clang-format off
constexpr std::array<Riga, NumeroConfigurazioni> Tabella{{
    {AltoSinistra, Lato::Alto, BassoDestra, Lato::Basso,
     [](const Termini& t) { return t.H + t.MS; },
     [](const Termini& t) { return t.MT; },
     [](const Termini& t) { return t.R * t.L + t.MT + t.T2; },
     [](const Termini& t) { return (t.C - 1) * t.L + t.MS + t.F + t.T2; }},
    {BassoDestra, Lato::Basso, AltoSinistra, Lato::Alto,
     [](const Termini& t) { return t.H + t.MS + (t.C - 1) * t.L; },
     [](const Termini& t) { return t.R * t.L + t.MT; },
     [](const Termini& t) { return t.MT - t.L + t.F - t.T2; },
     [](const Termini& t) { return t.MS + t.F + t.T2; }},
    {AltoDestra, Lato::Alto, BassoSinistra, Lato::Basso,
     [](const Termini& t) { return t.H + t.MS + (t.C - 1) * t.L; },
     [](const Termini& t) { return t.MT; },
     [](const Termini& t) { return t.R * t.L + t.MT + t.T2; },
     [](const Termini& t) { return t.MS + t.F + t.T2; }},
    {BassoSinistra, Lato::Basso, AltoDestra, Lato::Alto,
     [](const Termini& t) { return t.H + t.MS; },
     [](const Termini& t) { return t.R * t.L + t.MT; },
     [](const Termini& t) { return t.MT - t.L + t.F - t.T2; },
     [](const Termini& t) { return (t.C - 1) * t.L + t.MS + t.F + t.T2; }},
    {AltoSinistra, Lato::Sinistra, BassoDestra, Lato::Destra,
     [](const Termini& t) { return t.MS; },
     [](const Termini& t) { return t.H + t.MT; },
     [](const Termini& t) { return (t.R - 1) * t.L + t.MT + t.F + t.T2; },
     [](const Termini& t) { return t.C * t.L + t.MS + t.F + t.T2; }},
    {BassoDestra, Lato::Destra, AltoSinistra, Lato::Sinistra,
     [](const Termini& t) { return t.C * t.L + t.MS; },
     [](const Termini& t) { return t.H + (t.R - 1) * t.L + t.MT; },
     [](const Termini& t) { return t.MT + t.F + t.T2; },
     [](const Termini& t) { return t.MS - t.L; }},
    {BassoSinistra, Lato::Sinistra, AltoDestra, Lato::Destra,
     [](const Termini& t) { return t.MS; },
     [](const Termini& t) { return t.H + (t.R - 1) * t.L + t.MT; },
     [](const Termini& t) { return t.MT + t.F + t.T2; },
     [](const Termini& t) { return t.C * t.L + t.MS + t.F + t.T2; }},
    {AltoDestra, Lato::Destra, BassoSinistra, Lato::Sinistra,
     [](const Termini& t) { return t.C * t.L + t.MS; },
     [](const Termini& t) { return t.H + t.MT; },
     [](const Termini& t) { return (t.R - 1) * t.L + t.MT + t.F + t.T2; },
     [](const Termini& t) { return t.MS - t.L; }},
}};
// clang-format on

// The timed form places its finish picture by a column count of its own, whatever the grid.
constexpr int ColonneFinoArrivoATempo = 10;

Cella CellaDi(Angolo angolo, int righe, int colonne) {
    const bool inBasso = angolo == BassoSinistra || angolo == BassoDestra;
    const bool aDestra = angolo == AltoDestra || angolo == BassoDestra;
    return {Saturated(inBasso ? righe : 1), Saturated(aDestra ? colonne : 1)};
}

void Apri(Tramelo& tramelo, const PartenzaArrivo& scelta) {
    tramelo.Apri(scelta.CellaPartenza, scelta.LatoPartenza);
    tramelo.Apri(scelta.CellaArrivo, scelta.LatoArrivo);
}

}  // namespace

PartenzaArrivo Configurazione(int k, int righe, int colonne, const Misure& misure) {
    const Riga& riga = Tabella.at(static_cast<std::size_t>(k));
    const Termini t{
        .R = righe,
        .C = colonne,
        .L = misure.DimensioneCella,
        .MS = misure.MargineSinistro,
        .MT = misure.MargineSuperiore,
        .H = Floor(misure.DimensioneCella / 2.0),
        .F = Quotient(misure.DimensioneCella, 6),
        .T2 = Quotient(Nearest(misure.SpessoreMuri), 2),
    };
    const Cella partenza = CellaDi(riga.Partenza, righe, colonne);
    return {
        .CellaPartenza = partenza,
        .LatoPartenza = riga.LatoPartenza,
        .CellaArrivo = CellaDi(riga.Arrivo, righe, colonne),
        .LatoArrivo = riga.LatoArrivo,
        .CellaIniziale = Vicina(partenza, riga.LatoPartenza),
        .PuntoIniziale = {Saturated(riga.X(t)), Saturated(riga.Y(t))},
        .PosizioneArrivo = {Saturated(riga.Alto(t)), Saturated(riga.Sinistra(t))},
    };
}

PartenzaArrivo TrovaPartenzaArrivo(Tramelo& tramelo, Casuale& casuale, const Misure& misure) {
    const int k = casuale.FinoA(NumeroConfigurazioni);
    const PartenzaArrivo scelta = Configurazione(k, tramelo.Righe(), tramelo.Colonne(), misure);
    Apri(tramelo, scelta);
    return scelta;
}

PartenzaArrivo TrovaPartenzaArrivoATempo(Tramelo& tramelo, const Misure& misure) {
    PartenzaArrivo scelta = Configurazione(0, tramelo.Righe(), tramelo.Colonne(), misure);
    // A whole wall instead of half of one, and no sixth: only the sum is rounded.
    scelta.PosizioneArrivo.Sinistra =
        Saturated(Nearest(ColonneFinoArrivoATempo * misure.DimensioneCella +
                          misure.MargineSinistro + misure.SpessoreMuri));
    Apri(tramelo, scelta);
    return scelta;
}

std::int16_t LatoArrivoImmagine(const Misure& misure) {
    const std::int32_t interno = Nearest(misure.DimensioneCella - misure.SpessoreMuri);
    return Saturated(2 * Quotient(std::int64_t{interno}, 3));
}

int IndiceImmagineArrivo(Casuale& casuale, int quante) {
    return casuale.FinoA(quante);
}

}  // namespace trameli
