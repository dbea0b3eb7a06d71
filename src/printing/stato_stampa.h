// The variables of the print window that outlive it.
#pragma once

#include <memory>
#include <string>

#include "platform/printers.h"
#include "printing/foglio.h"

namespace trameli {

/// What the print window still knows when it opens again: a later print starts from it. None of it
/// is written to the disk.
struct StatoStampa {
    std::string NomeStampante;  ///< the printer in force; empty before the first print

    /// The printer that was opened last. It stays open when the window closes.
    std::unique_ptr<Printer> hStampante;
    PrinterSettings DatiStampante;          ///< the settings in force
    PrinterSettings DatiStampanteIniziali;  ///< the same when the window opened
    PrinterSettings BufferUscita;           ///< the settings that pages are made for
    int ColoreStampante = 0;                ///< one of PrinterSettings::Colours, as taken over last

    SheetSize Foglio;          ///< `LarghezzaFoglio` and `AltezzaFoglio`, millimetres
    PostoStampa Posto;         ///< `PrX`, `PrY`, `PrW` and `PrH`, as the boxes last had them
    float Proporzione = 1.0F;  ///< width for a height of 1, by whoever opened the window

    int NumeroCopie = 0;    ///< copies wanted
    int CopieIniziali = 0;  ///< the same when the window opened
};

}  // namespace trameli
