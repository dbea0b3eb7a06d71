// Play forms whose symbol waits for the player.
#pragma once

#include "play/form_trm.h"

namespace trameli {

/// Each key released is a step, and the settings tell who is served: the keyboard, or switches
/// through the pictures that hold the keys for them. With two switches one goes from direction to
/// direction and the other takes the one on offer; with a single one, Timer1 does the going.
class FormAPassi : public FormTrm {
public:
    // These two do nothing but have the keyboard while scanning. They lie under the maze, where
    // they hide no part of it.
    PictureBox PictureScansioneAutomatica;
    PictureBox PictureScansioneManuale;

protected:
    FormAPassi(trameli::Forms& forms, Servizi& servizi, Casuale& casuale, const DisegnoTrm& disegno,
               DimensioniGriglia griglia, const Bounds& automatica, const Bounds& manuale);

    bool Form_KeyDown(int keyCode, int shift) override;
    void Form_KeyUp(int keyCode, int shift) override;
    /// With one switch, offers the next direction; with either number, fetches the keyboard.
    void Timer1_Timer();
    // A switch was released: Space offers the next direction and Enter takes it, or Space takes
    // what the timer has offered.
    void PictureScansioneManuale_KeyUp(int keyCode);
    void PictureScansioneAutomatica_KeyUp(int keyCode);

    Bounds PostoBottoneMenu() const override;
    /// Gives `pictureTramelo` the whole width and `altezza` twips, and puts the button under it and
    /// the cups beside that, their tops `scartoCoppe` twips below the button's.
    void DisponiControlli(double altezza, double scartoCoppe);
    /// Readies timer and pictures for the player's way to move.
    void ImpostaModoInput();
    /// Begins to offer directions in a new maze.
    void AvviaScansione();
    void RimettiOfferta() override;
    /// Takes all strokes away; nothing is on offer until the timer offers the next direction.
    void TogliLineeRotazione();

private:
    void OffriProssima();
    bool UscitaAppenaOfferta() const;
    void OffriDirezione();
    void MostraOfferta();
    void PrendiOfferta();
    /// The direction on offer.
    Lato Offerta() const;

    double uscitaDa_ = 0;  ///< since when the way out is on offer, in the clock's seconds
};

}  // namespace trameli
