// The play form of levels 8 to 15.
#pragma once

#include "play/form_a_passi.h"

namespace trameli {

/// Perfect mazes, from 3 by 4 to 15 by 20 cells.
class frmTrm3 : public FormAPassi {
public:
    /// `servizi` and `casuale` must outlive it.
    frmTrm3(trameli::Forms& forms, Servizi& servizi, Casuale& casuale);

protected:
    void Accomoda() override;
    void Disponi() override;
    void mnuNuovo_Click() override;
};

}  // namespace trameli
