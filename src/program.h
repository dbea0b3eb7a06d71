// One run of the program.
#pragma once

#include <memory>

#include "engine/casuale.h"
#include "platform/first_sight.h"
#include "platform/forms.h"
#include "platform/services.h"
#include "printing/stampa_con_finestra.h"
#include "printing/stato_stampa.h"
#include "shell/lingue.h"
#include "shell/modulo_navigate.h"
#include "shell/modulo_per_ini.h"
#include "shell/servizi.h"
#include "shell/stato.h"
#include "shell/suoni.h"

namespace trameli {

/// Everything of one run but the services of the machine, which must outlive it. The only place
/// that knows every form. There can be any number of programs, one after the other or at once.
class Program {
public:
    /// Opens and reads nothing yet. `casuale` takes the place of the generator that `Main` seeds
    /// from the clock.
    explicit Program(const Services& services, std::unique_ptr<Casuale> casuale = nullptr);

    /// What the first window shows, to be got ready before there is a program.
    static FirstSight PrimaVista();

    /// Starts the game: reads the first user's settings and shows the splash. False if another
    /// instance runs: that was told in a message box, and nothing was opened, read or written.
    [[nodiscard]] bool Main();

    /// Serves events until the program ends.
    void Run();

    /// Saves the player's settings as they are now, and says nothing if it cannot.
    void Salva();

    /// The windows of this run.
    trameli::Forms& Forms() { return forms_; }
    /// Its shared variables.
    trameli::Stato& Stato() { return stato_; }

private:
    void RegistraForm();

    Services services_;
    std::unique_ptr<Casuale> casuale_;

    trameli::Stato stato_;
    Lingue lingue_;
    ModuloPerIni moduloPerIni_;
    Suoni suoni_;
    ModuloNavigate moduloNavigate_;
    StatoStampa statoStampa_;
    StampaConFinestra stampa_;
    Servizi servizi_;
    trameli::Forms forms_;  // last: the forms work with all of the above to their end
};

}  // namespace trameli
