#include "printing/frm_stampa.h"

#include "platform/forms.h"

namespace trameli {

frmStampa::frmStampa(trameli::Forms& forms, Servizi& servizi)
    : Form(forms, "frmStampa", {9360, 7845}, FormStyle::Windowed), servizi_(servizi) {}

void frmStampa::StampaFPB(PictureBox& /*sorgente*/, int /*x*/, int /*y*/, int /*w*/, int /*h*/,
                          int /*orientamento*/, const std::string& /*nomeDocumento*/) {
    servizi_.Lingue.TraduciForm(*this);
}

}  // namespace trameli
