// The play form of levels 0 to 4.
#pragma once

#include "play/form_a_passi.h"

namespace trameli {

/// Mazes of 6 by 9 cells, from an empty box to one with most of its walls. The walls can be lines
/// or bars.
class frmTrm0 : public FormAPassi {
public:
    /// `servizi` and `casuale` must outlive it.
    frmTrm0(trameli::Forms& forms, Servizi& servizi, Casuale& casuale);

    MenuItem mnuLineeMuri;
    /// The bars of the walls. Element 0 is never seen: it is what the others are made like.
    ControlArray<PictureBox> PictureMuri{"PictureMuri"};

protected:
    /// The other kind of walls, and the same maze from the start.
    void mnuLineeMuri_Click();

    void Accomoda() override;
    void Disponi() override;
    void mnuNuovo_Click() override;
    trameli::Pareti AspettoPareti() const override;
    void DisegnaTramelo() override;
    /// The window itself on the default printer; nothing is asked.
    bool StampaTramelo() override;

private:
    void ScriviLineeMuri();
    void DisegnaConLinee();
    void SistemaMuri();
    /// Unloads the bars of an earlier drawing but for the first ones, which the new one has taken.
    void TogliMuri(std::int16_t restano);

    bool LineeMuri = false;           ///< walls are lines; the form's own copy of the setting
    std::int16_t IndiceMuro = 0;      ///< which picture of the archive the bars show
    std::int16_t ContaPezziMuro = 0;  ///< bars in use: the highest index of PictureMuri
};

}  // namespace trameli
