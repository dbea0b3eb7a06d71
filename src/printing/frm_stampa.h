// The print window.
#pragma once

#include <string>

#include "platform/form.h"
#include "platform/picture_box.h"
#include "shell/servizi.h"

namespace trameli {

/// Puts a picture on paper: margins, size, printer, copies, and a preview of the sheet.
class frmStampa : public Form {
public:
    /// `servizi` must outlive it.
    frmStampa(trameli::Forms& forms, Servizi& servizi);

    /// As Stampa::StampaFPB, with this window.
    void StampaFPB(PictureBox& sorgente, int x, int y, int w, int h, int orientamento,
                   const std::string& nomeDocumento);

private:
    Servizi& servizi_;
};

}  // namespace trameli
