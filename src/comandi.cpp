#include "comandi.h"

#include <algorithm>
#include <array>
#include <optional>

#include "base/quoted.h"

namespace trameli {

namespace {

struct Opzione {
    std::string_view Nome;
    std::string_view Valore;  ///< what stands for its value in the help; empty if it has none
    std::string_view Aiuto;
    std::optional<Compito> Per;  ///< what the program is to do then, if that depends on it
};

/// Those with a single dash are the window system's own and are written as it wants them.
constexpr std::array Opzioni{
    Opzione{"--help", "", "show this and end", Compito::Aiuto},
    Opzione{"--version", "", "show the version and end", Compito::Versione},
    Opzione{"--quaderno", "FILE.pdf", "write a book of mazes, one a page, and end",
            Compito::Quaderno},
    Opzione{"--livello", "N", "of that level, 1 to 16", Compito::Quaderno},
    Opzione{"--numero", "N", "so many mazes, 1 to 1000", Compito::Quaderno},
    Opzione{"--seme", "N", "the same number gives the same mazes", Compito::Quaderno},
    Opzione{"--soluzioni", "", "with all solutions at the end", Compito::Quaderno},
    Opzione{"--utente", "NAME", "with the thickness and colours of that player", Compito::Quaderno},
    Opzione{"-display", "NAME", "the X server to play on, instead of $DISPLAY", {}},
    Opzione{"-platform", "NAME", "another kind of display: xcb, wayland, offscreen", {}},
    Opzione{"-session", "ID", "set by the desktop that brings back its last session", {}},
};

constexpr bool BastaCosi(Compito compito) {
    return compito == Compito::Aiuto || compito == Compito::Versione;
}

Comandi Sbagliati(const std::string& perche) {
    return {Compito::Gioco, {}, "trameli: " + perche + "; see 'trameli --help'"};
}

}  // namespace

Comandi LeggiComandi(const std::vector<std::string_view>& parole) {
    Comandi comandi;
    for (auto parola = parole.begin(); parola != parole.end(); ++parola) {
        // Of a long option the value may stand behind an equals sign.
        const std::size_t fine = parola->starts_with("--") ? parola->find('=') : parola->npos;
        const std::string_view nome = parola->substr(0, fine);
        const auto* const opzione = std::find_if(
            Opzioni.begin(), Opzioni.end(), [&](const Opzione& una) { return una.Nome == nome; });
        if (opzione == Opzioni.end()) {
            return Sbagliati((nome.starts_with('-') ? "unknown option " : "unexpected word ") +
                             Quoted(nome));
        }
        if (opzione->Valore.empty() && fine != parola->npos) {
            return Sbagliati("option " + Quoted(nome) + " takes no value");
        }
        std::string& valore = comandi.Opzioni[std::string(nome)];
        if (fine != parola->npos) {
            valore = parola->substr(fine + 1);
        } else if (!opzione->Valore.empty()) {
            if (++parola == parole.end()) {
                return Sbagliati("option " + Quoted(nome) + " needs a value");
            }
            valore = *parola;
        }
        comandi.Compito = opzione->Per.value_or(comandi.Compito);
        if (BastaCosi(comandi.Compito)) {
            break;
        }
    }
    return comandi;
}

std::string TestoAiuto() {
    constexpr std::size_t colonna = 24;
    std::string testo =
        "Usage: trameli [OPTION]...\n"
        "Trameli is a maze game for one or two keys. Without an option it is played.\n\n";
    for (const Opzione& opzione : Opzioni) {
        std::string riga = "  " + std::string(opzione.Nome);
        if (!opzione.Valore.empty()) {
            riga += " " + std::string(opzione.Valore);
        }
        riga.resize(std::max(colonna, riga.size() + 1), ' ');
        testo += riga + std::string(opzione.Aiuto) + "\n";
    }
    return testo;
}

std::string TestoVersione() {
    return "trameli " TRAMELI_VERSION "\n";
}

}  // namespace trameli
