// The texts of printing that code puts together.
#pragma once

#include <string>

#include "platform/printers.h"
#include "shell/lingue.h"

namespace trameli {

/// A numbered text, and what it is where no language file has it.
struct TestoNumerato {
    const char* Id;
    const char* Disegno;
};

/// Of the print window's messages and tool tips.
namespace TestoStampa {
inline constexpr TestoNumerato NonSiApre{"0009", "La stampante non si può aprire."};
inline constexpr TestoNumerato SenzaMisura{"0010", "L'immagine non ha dimensioni."};
inline constexpr TestoNumerato Chiusura{"0011", "La stampa non è riuscita."};
inline constexpr TestoNumerato ChiudiAnteprima{"0012", "Un clic chiude l'anteprima"};
inline constexpr TestoNumerato ChiudiZoom{"0013", "Un clic chiude l'anteprima"};
inline constexpr TestoNumerato Errore482{"0051", "Errore della stampante"};
inline constexpr TestoNumerato StampaDi{"0060", "Stampa di "};
inline constexpr TestoNumerato ErroreDiStampa{"0061", "Errore di stampa"};
inline constexpr TestoNumerato UnErrore{"0062", "Si è verificato un errore"};
inline constexpr TestoNumerato Interrotta{"0063", "Stampa interrotta."};
inline constexpr TestoNumerato ErroreStartDoc{"0064", "Errore di StartDoc."};
inline constexpr TestoNumerato Codice{"0065", "Codice di errore"};
inline constexpr TestoNumerato Eccedente{"0066", "Dimensioni stampa eccedenti i limiti del foglio"};
inline constexpr TestoNumerato CambioScala{"0067", "Posso cambiare la scala?"};
inline constexpr TestoNumerato TitoloScala{"0068", " Errore di Scala"};
inline constexpr TestoNumerato ErroreDiCopia{"0069", "Errore di Copia"};
inline constexpr TestoNumerato TitoloPreview{"0070", " Errore in Preview"};
inline constexpr TestoNumerato TitoloZoom{"0071", " Errore in Zoom"};
inline constexpr TestoNumerato SenzaDefault{"0072", "Stampante di default non specificata."};
inline constexpr TestoNumerato OrientamentoErrato{"0073", "Orientamento errato"};
}  // namespace TestoStampa

/// The title of messages about printing.
inline constexpr const char* TitoloStampa = "Trameli";
/// Between the lines of a message.
inline constexpr const char* ARigaNuova = "\r\n";

/// A numbered text in the current language.
inline std::string Testo(Lingue& lingue, const TestoNumerato& testo) {
    return lingue.TestoLingua(testo.Id, testo.Disegno);
}

/// The texts of the dialog for a printer's settings.
inline PropertyTexts TestiProprieta(Lingue& lingue) {
    const auto testo = [&](const char* id, const char* disegno) {
        return lingue.TestoLingua(id, disegno);
    };
    return {.Title = testo("0040", "Proprietà di "),
            .Paper = testo("0041", "Carta"),
            .Orientation = testo("0042", "Orientamento"),
            .Portrait = testo("0043", "Verticale"),
            .Landscape = testo("0044", "Orizzontale"),
            .Colour = testo("0045", "Colore"),
            .Coloured = testo("0046", "A colori"),
            .Grey = testo("0047", "In grigio"),
            .Copies = testo("0048", "Copie"),
            .Ok = testo("0049", "OK"),
            .Cancel = testo("0050", "Annulla")};
}

}  // namespace trameli
