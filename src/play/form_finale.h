// The end of a level.
#pragma once

#include "engine/casuale.h"
#include "platform/command_button.h"
#include "platform/form.h"
#include "platform/image.h"
#include "platform/label.h"
#include "scaling/ess_resizer.h"
#include "shell/giro_offerte.h"
#include "shell/servizi.h"

namespace trameli {

/// Congratulates on five solved mazes, with music on a coloured ground, and asks whether to stay
/// at the level or to go on to the next. The first second it cannot be answered, so that a key
/// meant for the maze answers nothing.
class FormFinale : public Form {
public:
    /// `servizi` and `casuale` must outlive it. The one draw, for the colours, comes when it loads.
    FormFinale(trameli::Forms& forms, Servizi& servizi, Casuale& casuale);

    // The controls, those further back first.
    Image Image1;            ///< the trophy
    Label LabelNome;         ///< the player's name, on the trophy's base
    Label Label1;            ///< the congratulations
    Label Label2;            ///< the level that was solved
    CommandButton Command1;  ///< stays at the level
    CommandButton Command2;  ///< goes on
    EssResizer EssResizer1;

protected:
    void Form_Load() override;
    void Form_Resize() override;
    void Form_Activate() override;
    /// The level reached is saved before the window goes.
    void Form_QueryClose() override;
    bool Form_KeyDown(int keyCode, int shift) override;
    void Form_KeyUp(int keyCode, int shift) override;
    void Form_Unload() override;

private:
    void Command1_Click();
    void Command2_Click();

    void DisegnaSfondo();
    GiroOfferte::Offerta OffertaDi(CommandButton& bottone);
    void Evidenzia(CommandButton& bottone);
    void ApriGioco();

    Servizi& servizi_;
    Stato& stato_;
    Casuale& casuale_;

    int SchemaColori = 0;         ///< 0 to 6
    bool attivato_ = false;       ///< has come to the front once
    CommandButton* evidenziato_;  ///< has the focus, or will have it with the window
    GiroOfferte giro_;            ///< goes from button to button for those who have switches
};

}  // namespace trameli
