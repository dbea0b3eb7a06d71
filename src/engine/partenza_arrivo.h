// Start and finish: two opposite corners of the grid, the openings there, and the places in twips
// where the trace begins and the finish picture goes.
#pragma once

#include <cstdint>

#include "engine/tramelo.h"

namespace trameli {

/// How the maze lies on its picture box. Lengths in twips, but SpessoreMuri in pixels: it goes into
/// the sums of twips unconverted, and the places below are meant so.
struct Misure {
    std::int16_t DimensioneCella;   ///< side of a cell
    std::int16_t MargineSinistro;   ///< left edge of the box to the left outside wall
    std::int16_t MargineSuperiore;  ///< top edge of the box to the upper outside wall
    double SpessoreMuri;            ///< thickness of the walls, pixels
};

/// A place on the picture box, twips.
struct Punto {
    std::int16_t X;
    std::int16_t Y;
    bool operator==(const Punto&) const = default;
};

/// Top and left of the finish picture on the picture box, twips; may be negative.
struct Posizione {
    std::int16_t Alto;
    std::int16_t Sinistra;
    bool operator==(const Posizione&) const = default;
};

/// One choice of start and finish.
struct PartenzaArrivo {
    Cella CellaPartenza;  ///< the corner with the start opening
    Lato LatoPartenza;    ///< the side of it that is open
    Cella CellaArrivo;    ///< the opposite corner, with the finish opening
    Lato LatoArrivo;
    Cella CellaIniziale;  ///< where the player first stands: outside, before the start opening
    Punto PuntoIniziale;  ///< the middle of the start opening, on the line of the outside wall
    Posizione PosizioneArrivo;  ///< where the finish picture goes, outside the finish opening
};

/// In how many ways start and finish can lie.
inline constexpr int NumeroConfigurazioni = 8;

/// Configuration k, 0 to 7, on a grid of that size: 0 to 3 lead from top to bottom or back, 4 to 7
/// from side to side. What does not fit into 16 bits stops at their limit. Another k throws
/// std::out_of_range.
PartenzaArrivo Configurazione(int k, int righe, int colonne, const Misure& misure);

/// Draws one of the eight configurations (one draw) and opens start and finish in `tramelo`.
PartenzaArrivo TrovaPartenzaArrivo(Tramelo& tramelo, Casuale& casuale, const Misure& misure);

/// The same for the timed form, where the way always leads downwards: configuration 0, no draw, and
/// a finish picture a little nearer to the left than elsewhere.
PartenzaArrivo TrovaPartenzaArrivoATempo(Tramelo& tramelo, const Misure& misure);

/// Side of the square finish picture, twips, whatever the shape of its source.
std::int16_t LatoArrivoImmagine(const Misure& misure);

/// Which of `quante` pictures (1 or more) marks the finish: one draw, 0 to quante - 1.
int IndiceImmagineArrivo(Casuale& casuale, int quante);

}  // namespace trameli
