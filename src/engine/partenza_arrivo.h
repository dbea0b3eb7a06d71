// Start and finish: two opposite corners of the grid, the openings there, and the places in twips
// where the trace begins and the finish picture goes.
#pragma once

#include <cstdint>

#include "engine/tramelo.h"

namespace trameli {

/// How the grid lies on its picture box, twips.
struct Geometria {
    std::int16_t DimensioneCella = 0;   ///< side of a cell
    std::int16_t MargineSinistro = 0;   ///< left edge of the box to the grid
    std::int16_t MargineSuperiore = 0;  ///< top edge of the box to the grid

    bool operator==(const Geometria&) const = default;
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
/// from side to side. `spessoreMuri` is the thickness of the walls in pixels: it goes into the sums
/// of twips unconverted, and the places are meant so. What does not fit into 16 bits stops at their
/// limit.
PartenzaArrivo Configurazione(int k, int righe, int colonne, const Geometria& geometria,
                              double spessoreMuri);

/// Draws one of the eight configurations (one draw) and opens start and finish in `tramelo`.
PartenzaArrivo TrovaPartenzaArrivo(Tramelo& tramelo, Casuale& casuale, const Geometria& geometria,
                                   double spessoreMuri);

/// The same for the timed form, where the way always leads downwards: configuration 0, no draw, and
/// a finish picture a little nearer to the left than elsewhere.
PartenzaArrivo TrovaPartenzaArrivoATempo(Tramelo& tramelo, const Geometria& geometria,
                                         double spessoreMuri);

/// The same middle of a cell or of a side on a grid that lies otherwise.
Punto Trasferito(Punto punto, const Geometria& da, const Geometria& a);

/// The same start and finish there.
PartenzaArrivo Trasferito(PartenzaArrivo scelta, const Geometria& da, const Geometria& a);

/// Side of the square finish picture, twips, whatever the shape of its source.
std::int16_t LatoArrivoImmagine(std::int16_t dimensioneCella, double spessoreMuri);

}  // namespace trameli
