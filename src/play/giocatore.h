// Where the player stands in a maze, and what becomes of a wish to go somewhere.
#pragma once

#include <cstdint>

#include "engine/partenza_arrivo.h"
#include "engine/tramelo.h"

namespace trameli {

/// What a move came to: a step, a hit on a wall that moved nothing, or the step out of the finish
/// opening.
enum class Esito { Passo, Urto, Arrivo };

/// The player's position as a cell and as a point on the picture box. Knows the maze and no window.
class Giocatore {
public:
    /// Puts the player before the start of a new maze with cells of `dimensioneCella` twips.
    void Colloca(const PartenzaArrivo& partenzaArrivo, std::int16_t dimensioneCella);
    /// The first step is still to come, and the maze is not solved; the place stays.
    void Azzera();
    /// Back to where the maze began.
    void TornaAllaPartenza();

    /// The step from outside through the start opening, half a cell long. It is not tested against
    /// the walls: the only way leads into the grid.
    Esito PrimoPasso(Lato lato, const Tramelo& tramelo);
    /// A step in the grid. Leaving it is possible through the finish opening alone; out of the
    /// start opening is a hit like any other.
    Esito Passo(Lato lato, const Tramelo& tramelo);

    /// Where the player stands; outside the grid before the first step and after the last.
    Cella CellaCorrente() const { return cellaCorrente_; }
    /// The head of the trace, twips.
    Punto PuntoCorrente() const { return puntoCorrente_; }
    bool PrimaMossa() const { return primaMossa_; }
    bool TrameloRisolto() const { return trameloRisolto_; }
    /// Start and finish of this maze.
    const PartenzaArrivo& Percorso() const { return percorso_; }

private:
    void Vai(Cella vicina, int lunghezza);

    PartenzaArrivo percorso_{};
    int dimensioneCella_ = 0;
    Cella cellaCorrente_{};
    Punto puntoCorrente_{};
    bool primaMossa_ = true;
    bool trameloRisolto_ = false;
};

}  // namespace trameli
