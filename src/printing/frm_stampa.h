// The print window.
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "platform/check_box.h"
#include "platform/combo_box.h"
#include "platform/command_button.h"
#include "platform/form.h"
#include "platform/frame.h"
#include "platform/image.h"
#include "platform/label.h"
#include "platform/picture_box.h"
#include "platform/shape.h"
#include "platform/text_box.h"
#include "platform/up_down.h"
#include "printing/foglio.h"
#include "printing/immagine.h"
#include "printing/stampante.h"
#include "printing/stato_stampa.h"
#include "printing/testi_stampa.h"
#include "shell/servizi.h"

namespace trameli {

/// Puts a picture on paper: margins, size, printer, copies, and a preview of the sheet that is
/// drawn from the very pixels that are sent.
///
/// What belongs to the sheet's numbers, to the preview, and to printer and job has a file of its
/// own beside frm_stampa.cpp.
class frmStampa : public Form {
public:
    /// What can be asked for; only a picture box or a form can be printed.
    using Sorgente = std::variant<Control*, trameli::Form*>;

    /// Both must outlive it.
    frmStampa(trameli::Forms& forms, Servizi& servizi, StatoStampa& stato);

    // The controls, in the order of the Tab key.
    Frame zFrame1;
    Label zLabel1;
    ComboBox cboPrinterNames;
    CommandButton cmdProprieta;

    Frame fraFoglio;
    Shape shpFoglio;
    Shape shpBordo;
    PictureBox picPreview;  ///< stands for the whole sheet
    Label lblStampaInCorso;
    Label Label1;

    Label lblLblNCopie;
    TextBox txtNCopies;
    UpDown updNCopies;

    Frame zFrame2;
    Label zLabel7;
    TextBox txtPrX;
    UpDown updPrX;
    Label zLabel9;
    TextBox txtPrY;
    UpDown updPrY;
    CommandButton cmdOrigine;
    CheckBox chkCentro;

    Frame zFrame3;
    Label zLabel8;
    TextBox txtPrW;
    UpDown updPrW;
    Label zLabel2;
    TextBox txtPrH;
    UpDown updPrH;
    CommandButton cmdMax;
    CheckBox chkProporzioni;

    CommandButton cmdStampa;
    CommandButton cmdChiudi;
    Image imgPrinter;

    PictureBox picZoom;  ///< over everything else while the preview is enlarged
    Shape shpFoglioZoom;
    PictureBox picPreviewZoom;

    /// As Stampa::StampaFPB, with this window, for whatever is asked for.
    void StampaFPB(const Sorgente& sorgente, int x, int y, int w, int h, int orientamento,
                   const std::string& nomeDocumento);
    /// As Stampante::FoglioStampa, without opening the window.
    void FoglioStampa(int& w, int& h, std::optional<int> orientamento = std::nullopt);

protected:
    void Form_Load() override;
    void Form_Resize() override;
    void Form_Activate() override;
    bool Form_KeyDown(int keyCode, int shift) override;
    void Form_QueryClose() override;
    void Form_Unload() override;

private:
    void Vesti();
    void AllargaPerLaLingua();
    void Centra();
    void DisponiFoglio();
    void DisponiAnteprima();
    void DisponiStampante();

    /// Whether it was opened for something that is to be printed.
    bool Aperta() const;
    std::optional<std::string> Cattura();
    void Fallisci(const std::string& messaggio);

    static int FiltraTastoNumerico(const TextBox& casella, int keyAscii, bool consentiMeno);
    void NumeroCambiato(TextBox& casella, int& numero, const Limiti& limiti);
    void LarghezzaScelta();
    void AltezzaScelta();
    void chkProporzioni_Click();
    void chkCentro_Click();
    void cmdMax_Click();
    void cmdOrigine_Click();
    void Scrivi(const PostoStampa& posto);

    void DimensionaFoglio();
    void DisponiMiniatura();
    void AggiornaAnteprima();
    void AggiornaSeHaMisura();
    void AggiornaZoom();
    bool IngrandisciFoglio();
    void ErroreDiCopia(const TestoNumerato& titolo);
    bool DisegnaImmagine(PictureBox& superficie);
    void picPreview_Click();
    void picZoom_Click();
    void picPreviewZoom_Click();
    void LasciaZoom();
    void AbilitaSfondo(bool abilitato);

    void ElencaStampanti();
    void cboPrinterNames_Click();
    void cmdProprieta_Click();
    void cmdStampa_Click();
    void cmdChiudi_Click();
    void LeggiFoglio();
    void Abilita(bool abilitati);

    Servizi& servizi_;
    StatoStampa& stato_;
    Stampante stampante_;
    Immagine immagine_;

    Sorgente sorgente_;  ///< what is printed; nothing until the window is opened for something
    std::string nomeDocumento_;
    std::string stampanteScelta_;  ///< selected in the list
    int orientamentoChiesto_ = 0;
    Bounds cornice_;  ///< design place of the miniature's outline: `FoglioLeft`, `FoglioTop`

    bool attivata_ = false;    ///< it has come to the front before
    bool inLavoro_ = false;    ///< a job is under way
    bool chiudiDopo_ = false;  ///< somebody closed the window meanwhile
};

}  // namespace trameli
