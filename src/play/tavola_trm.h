// The maze in the window of a play form.
#pragma once

#include <optional>

#include "base/griglie.h"
#include "drawing/geometria.h"
#include "drawing/spessori.h"
#include "engine/casuale.h"
#include "engine/tramelo.h"
#include "play/disegno_traccia.h"
#include "play/finestra_trm.h"
#include "play/giocatore.h"
#include "play/traccia.h"
#include "shell/servizi.h"

namespace trameli {

class FormArchivio;

/// Makes mazes for the level and shows them, with start, finish, player and trace, on
/// `pictureTramelo`. Knows nothing of keys, counters and menus.
class TavolaTrm : public FinestraTrm {
protected:
    /// `servizi` and `casuale` must outlive it.
    TavolaTrm(trameli::Forms& forms, Servizi& servizi, Casuale& casuale, const DisegnoTrm& disegno);

    /// The store of pictures, which no window shows.
    FormArchivio& Archivio() const;

    /// Rows and columns of the form's mazes.
    virtual DimensioniGriglia Griglia() const;
    /// Makes room for a maze and its trace; there is none yet.
    void Alloca();
    /// Fits the grid into `pictureTramelo` as that is now.
    void ImpostaGeometria();
    /// Works the thicknesses out from the settings and the cells' size.
    void ImpostaSpessori();
    /// What the walls are made of just now.
    virtual Pareti AspettoPareti() const { return Pareti::Linee; }
    /// The look of trace and symbol with the settings and thicknesses as they are now.
    AspettoTraccia Aspetto() const;

    /// False until a maze was generated. Menu entries and keys can come before that, since the
    /// window is up before it is activated, and activation may wait.
    bool HaTramelo() const { return tramelo_ && tramelo_->RegioniRimaste() > 0; }
    /// Makes and draws a new maze of the level, with the player at its start. Wants Alloca,
    /// ImpostaGeometria and ImpostaSpessori before.
    void GeneraTramelo();
    /// What follows once the walls of a new maze stand.
    virtual void CompletaTramelo();
    /// Chooses start and finish of a new maze and opens them in its walls.
    virtual PartenzaArrivo TrovaPartenzaArrivo();
    /// Forgets what was played of this maze; walls, start and finish stay.
    void AzzeraVariabili();
    /// Draws the symbol where the player stands and begins the trace there.
    void InserisciPartenza();
    /// Chooses the picture that marks the finish by a draw, and puts it there.
    virtual void InserisciArrivo();
    /// Draws the walls; the surface is not cleared before.
    virtual void DisegnaTramelo();

    Servizi& servizi_;
    Stato& stato_;
    Casuale& casuale_;

    std::optional<Tramelo> tramelo_;  ///< from the activation on
    Geometria geometria_;
    Spessori spessori_;
    Giocatore giocatore_;
    Traccia traccia_;
};

}  // namespace trameli
