// Windows that fill the screen and keep their proportions.
#pragma once

#include "platform/form.h"
#include "shell/servizi.h"

namespace trameli {

/// A form of the shell that is translated when it loads, and whose controls follow its size from
/// then on: first a part of the screen, and all of it from the activation on. It owns
/// `RidimensionaFinestra` until another one loads.
class FinestraAdattata : public Form {
protected:
    /// `servizi` must outlive it.
    FinestraAdattata(trameli::Forms& forms, std::string nome, DesignSize dimensioni,
                     Servizi& servizi);

    void Form_Load() override;
    void Form_Resize() override;
    /// Gives the form the whole screen.
    void RiempiSchermo();

    Servizi& servizi_;
};

}  // namespace trameli
