// Which printer, with which settings, and how large its sheet is.
#pragma once

#include <optional>
#include <string>

#include "platform/printers.h"
#include "printing/stato_stampa.h"
#include "shell/servizi.h"

namespace trameli {

/// The print window's link to the printers. Works on its variables and tells the player what fails.
class Stampante {
public:
    /// Both must outlive it.
    Stampante(Servizi& servizi, StatoStampa& stato) : servizi_(servizi), stato_(stato) {}

    /// Sheet size in millimetres of the printer in force, or of the default one; -1 and -1 if that
    /// cannot be opened, 0 and 0 if it gives no answer. `orientamento`, 1 or 2, is what the
    /// settings have from then on.
    void FoglioStampa(int& w, int& h, std::optional<int> orientamento);

    /// Opens a printer and fits the settings to it. An empty name becomes that of the default
    /// printer.
    bool ApriStampante(std::string& nome);
    /// Fits the settings to the open printer again.
    bool AggiornaDatiStampante();
    /// Lets the player change the settings of the open printer. Serves events: the caller's form
    /// may be gone afterwards.
    void MostraProprietaStampante();
    /// The sheet of a printer as the settings are, and which way round that is. 0 by 0 and false if
    /// the printer gives no answer, -1 for all three and false without a name.
    bool LeggiDimensioniFoglio(const std::string& nome, SheetSize& foglio, int& orientamento);
    /// The name of the default printer. None is told to the player.
    std::string StampantePredefinita();

private:
    void Avvisa(const std::string& testo);

    Servizi& servizi_;
    StatoStampa& stato_;
};

}  // namespace trameli
