// How play forms reach the print window without knowing it.
#pragma once

#include "platform/forms.h"
#include "shell/stampa.h"

namespace trameli {

/// Lets the print window put pictures on paper.
class StampaConFinestra final : public Stampa {
public:
    /// `forms`, which must outlive it, knows a frmStampa by the time somebody prints.
    explicit StampaConFinestra(Forms& forms) : forms_(forms) {}

    void StampaFPB(PictureBox& sorgente, int x, int y, int w, int h, int orientamento,
                   const std::string& nomeDocumento) override;

private:
    Forms& forms_;
};

}  // namespace trameli
