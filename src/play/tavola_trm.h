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
    TavolaTrm(trameli::Forms& forms, Servizi& servizi, Casuale& casuale, const DisegnoTrm& disegno);

    /// The store of pictures, which no window shows.
    FormArchivio& Archivio() const;

    /// Rows and columns of the form's mazes.
    virtual DimensioniGriglia Griglia() const;
    /// Makes room for a maze and its trace; there is none yet.
    void Alloca();
    /// Fits the grid into `pictureTramelo` as that is now.
    void ImpostaGeometria();
    void ImpostaSpessori();
    virtual Pareti AspettoPareti() const { return Pareti::Linee; }
    AspettoTraccia Aspetto() const;

    /// False until a maze was generated. Menu entries and keys can come before that, since the
    /// window is up before it is activated, and activation may wait.
    bool HaTramelo() const { return tramelo_ && tramelo_->RegioniRimaste() > 0; }
    void GeneraTramelo();
    /// What follows once the walls of a new maze stand.
    virtual void CompletaTramelo();
    virtual PartenzaArrivo TrovaPartenzaArrivo();
    void AzzeraVariabili();
    void InserisciPartenza();
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
