// One job: from millimetres to documents in the queue.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/form.h"
#include "platform/printers.h"
#include "printing/foglio.h"
#include "printing/immagine.h"
#include "printing/stampante.h"
#include "printing/stato_stampa.h"
#include "shell/servizi.h"

namespace trameli {

/// Sends a picture to the printer in force, as many times as copies are wanted, each one a document
/// of its own. Window events are served meanwhile.
class Lavoro {
public:
    /// All of it must outlive the job. `finestra` waits for it: once that is unloaded, no further
    /// copy is sent and nothing more is told. Before each copy `ancora` is asked whether it is
    /// still wanted.
    Lavoro(Form& finestra, Servizi& servizi, StatoStampa& stato, Immagine& immagine,
           std::function<bool()> ancora)
        : finestra_(finestra),
          servizi_(servizi),
          stato_(stato),
          immagine_(immagine),
          ancora_(std::move(ancora)),
          stampante_(servizi, stato) {}

    /// Prints at that place of the sheet, after a question if it reaches beyond it. True if all
    /// copies that were still wanted were taken; else the player knows why. The picture is gone
    /// afterwards, unless the player cancelled.
    bool StampaImmagine(PostoStampa posto, const std::string& nome);

private:
    bool CreaContestoStampa(const std::string& stampante, const std::string& nome);
    bool RispettaFoglio(PostoStampa& posto, const SheetSize& foglio);
    bool InviaAllaStampante(const PixelRectangle& dove);
    std::optional<std::string> InviaCopie(const PixelRectangle& dove);

    Form& finestra_;
    Servizi& servizi_;
    StatoStampa& stato_;
    Immagine& immagine_;
    std::function<bool()> ancora_;
    Stampante stampante_;
    std::unique_ptr<PrintContext> prhDC_;
    std::string nomeDocumento_;
};

}  // namespace trameli
