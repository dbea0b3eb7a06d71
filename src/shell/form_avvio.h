// The splash.
#pragma once

#include "platform/command_button.h"
#include "platform/control_array.h"
#include "platform/first_sight.h"
#include "platform/form.h"
#include "platform/image.h"
#include "platform/label.h"
#include "scaling/ess_resizer.h"
#include "shell/servizi.h"

namespace trameli {

/// The first window of a run. It stays until it is clicked and then opens the menu.
class FormAvvio : public Form {
public:
    /// `servizi` must outlive it; it is read again at each event.
    FormAvvio(trameli::Forms& forms, Servizi& servizi);

    /// What of it takes longest to show.
    static FirstSight PrimaVista();

    // The controls, those further back first.
    Image Image1;
    ControlArray<Label> Label2;
    CommandButton Command1;
    EssResizer EssResizer1;

protected:
    void Form_Load() override;
    void Form_Resize() override;
    void Form_Activate() override;

private:
    void Command1_Click();
    void Label2_Click();

    void DisegnaSfondo();
    void MostraMenu();

    Servizi& servizi_;
    bool sfondoDisegnato_ = false;
};

}  // namespace trameli
