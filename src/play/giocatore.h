// Where the player stands in a maze, and what becomes of a wish to go somewhere.
#pragma once

#include "engine/partenza_arrivo.h"
#include "engine/tramelo.h"

namespace trameli {

/// What a move came to: a hit on a wall that moved nothing, the half step through the start
/// opening, a step from cell to cell, or the one out of the finish opening.
enum class Esito { Urto, Entrata, Passo, Arrivo };

/// The player's cell. Knows the maze and no window.
class Giocatore {
public:
    /// Puts the player before the start of a new maze.
    void Colloca(const PartenzaArrivo& percorso);
    /// The same start and finish in other places of the picture.
    void Trasferisci(const Geometria& da, const Geometria& a) {
        percorso_ = Trasferito(percorso_, da, a);
    }
    /// Back to where the maze began, with the first step still to come.
    void Azzera();

    /// The first step is not tested against the walls: it leads into the grid or hits. Leaving the
    /// grid is possible through the finish opening alone; out of the start opening is a hit like
    /// any other.
    Esito Muovi(Lato lato, const Tramelo& tramelo);

    /// Whether the player can leave the own cell over that side.
    bool Aperto(Lato lato, const Tramelo& tramelo) const;
    /// The player stands in the last cell, from which the finish opening leads out.
    bool AllArrivo() const { return !primaMossa_ && cellaCorrente_ == percorso_.CellaArrivo; }
    /// Whether the finish opening is on that side.
    bool Esce(Lato lato, const Tramelo& tramelo) const;

    /// Where the player stands; outside the grid before the first step and after the last.
    Cella CellaCorrente() const { return cellaCorrente_; }
    bool TrameloRisolto() const { return trameloRisolto_; }
    /// The first step is still to come.
    bool NonPartito() const { return primaMossa_; }
    /// Start and finish of this maze.
    const PartenzaArrivo& Percorso() const { return percorso_; }

private:
    PartenzaArrivo percorso_{};
    Cella cellaCorrente_{};
    bool primaMossa_ = true;
    bool trameloRisolto_ = false;
};

}  // namespace trameli
