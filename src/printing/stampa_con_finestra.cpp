#include "printing/stampa_con_finestra.h"

#include "printing/frm_stampa.h"

namespace trameli {

void StampaConFinestra::StampaFPB(PictureBox& sorgente, int x, int y, int w, int h,
                                  int orientamento, const std::string& nomeDocumento) {
    static_cast<frmStampa&>(forms_.Load("frmStampa"))
        .StampaFPB(&sorgente, x, y, w, h, orientamento, nomeDocumento);
}

}  // namespace trameli
