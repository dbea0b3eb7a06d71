// What the program is and who made it.
#pragma once

#include "platform/command_button.h"
#include "platform/image.h"
#include "platform/label.h"
#include "shell/finestra_adattata.h"

namespace trameli {

/// The About window. Its picture opens the document about the use of the program.
class FormInfo : public FinestraAdattata {
public:
    /// `servizi` must outlive it.
    FormInfo(trameli::Forms& forms, Servizi& servizi);

    Image Image1;
    Label Label1;  ///< name, version and makers
    Label Label4;  ///< what a language file adds
    Label Label3;  ///< terms of use
    CommandButton Command1;

protected:
    void Form_Activate() override;
    void Form_QueryClose() override;

private:
    void Image1_Click();
    void Command1_Click();
};

}  // namespace trameli
