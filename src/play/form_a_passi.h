// Play forms whose symbol waits for the player.
#pragma once

#include "play/form_trm.h"

namespace trameli {

/// Each key released is a step, and the settings tell who is served: the keyboard, or switches
/// through the pictures that hold the keys for them.
class FormAPassi : public FormTrm {
protected:
    using FormTrm::FormTrm;

    void Form_KeyUp(int keyCode, int shift) override;

    /// Gives `pictureTramelo` the whole width and `altezza` twips, puts the button under it and
    /// hides the cups, their tops `scartoCoppe` twips below the button's.
    void DisponiControlli(double altezza, double scartoCoppe);
    void ImpostaModoInput();
};

}  // namespace trameli
