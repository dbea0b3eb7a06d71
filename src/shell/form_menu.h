// The main menu.
#pragma once

#include "platform/combo_box.h"
#include "platform/command_button.h"
#include "platform/control_array.h"
#include "platform/form.h"
#include "platform/frame.h"
#include "platform/menu.h"
#include "platform/option_button.h"
#include "platform/shape.h"
#include "platform/timer.h"
#include "scaling/ess_resizer.h"
#include "shell/cornice.h"
#include "shell/giro_offerte.h"
#include "shell/servizi.h"

namespace trameli {

/// The window that the player comes back to between everything else: choice of level and user,
/// start and end. It is made anew whenever it is shown, and most of its set-up runs in a timer a
/// moment after it has come up.
class FormMenu : public Form {
public:
    /// `servizi` must outlive it. Entries for windows that `forms` does not know are disabled.
    FormMenu(trameli::Forms& forms, Servizi& servizi);

    // The menu bar.
    MenuItem mnuConfigura;
    MenuItem mnuInformazioni;
    MenuItem mnuDocumentazione;
    MenuItem mnuAbout;
    MenuItem mnuLanguages;
    ControlArray<MenuItem> mnuLanguage;

    Frame Frame1;
    Shape Shape1;
    Shape Shape2;
    Shape Shape3;
    ControlArray<OptionButton> Option1;
    ComboBox Combo1;
    ControlArray<CommandButton> Command1;
    Timer Timer1;
    EssResizer EssResizer1;

    // Round what is on offer to players with switches, in the frame of the levels and outside it.
    Cornice CorniceFrame;
    Cornice CorniceForm;

    /// Brings the controls into line with the settings.
    void ImpostaUtente();

protected:
    void Form_Load() override;
    void Form_Resize() override;
    void Form_Activate() override;
    bool Form_KeyDown(int keyCode, int shift) override;
    void Form_KeyUp(int keyCode, int shift) override;
    void Form_MouseMove() override;
    void Form_QueryClose() override;

private:
    void Frame1_MouseMove();
    void Option1_Click(int Index);
    void Option1_MouseMove(int Index);
    void Command1_Click(int Index);
    void Command1_MouseMove(int Index);
    void Combo1_Click();
    void Timer1_Timer();
    void mnuConfigura_Click();
    void mnuDocumentazione_Click();
    void mnuAbout_Click();
    void mnuLanguage_Click(int Index);

    /// Lists the languages that there are.
    void MLSFillMenuLanguages();
    void SpuntaLingua();
    void DisponiLivelli();
    void NominaLivelli();
    void DisponiBottoni();
    void EscludiLivelliATempo();
    void ElencaUtenti();
    void ScegliUtente();
    void EvidenziaLivello();
    void AvviaGioco();
    void AvviaScansione();
    void OffriLivelli(std::size_t fascia);
    void SeguiUtente();
    void ProssimoUtente();
    void ChiediUscita();
    /// The offer of what lies under `dove`, framed by `cornice` and announced as `nome`.
    GiroOfferte::Offerta OffertaDi(Cornice& cornice, const PlacedControl& dove,
                                   std::function<std::string()> nome, std::function<void()> prendi);
    const Shape& Riquadro(std::size_t fascia) const;
    void Cedi(const char* form);

    // The indices of the two buttons.
    static constexpr int Inizio = 0;
    static constexpr int Uscita = 1;

    Servizi& servizi_;
    GiroOfferte giro_;
    int durataGiro_ = 0;      ///< paces that the round of the whole window takes
    bool preparato_ = false;  ///< the timer has run; it does so once per loading
    bool scorre_ = false;     ///< a switch goes through the users
};

}  // namespace trameli
