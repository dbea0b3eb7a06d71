// Wiring: the services of this machine and the program that runs on them.
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "comandi.h"
#include "platform/desktop.h"
#include "program.h"
#include "stampa_quaderno.h"

namespace {

int Tell(std::FILE* where, const std::string& text, int code) {
    const bool told = std::fputs(text.c_str(), where) >= 0 && std::fflush(where) == 0;
    return told ? code : 1;
}

int Play(int argc, char** argv, const trameli::Comandi& comandi) {
    if (const auto display = comandi.Opzioni.find("-display"); display != comandi.Opzioni.end()) {
        // For the programs too that open documents.
        setenv("DISPLAY", display->second.c_str(), 1);
    }
    trameli::Desktop desktop(argc, argv, trameli::Program::PrimaVista());
    trameli::Program program(desktop.Services());
    desktop.WhenDisplayIsLost([&program] { program.Salva(); });
    if (program.Main()) {
        program.Run();
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    // Before anything of a desktop is touched: a terminal may be all there is.
    const trameli::Comandi comandi = trameli::LeggiComandi({argv + std::min(argc, 1), argv + argc});
    if (!comandi.Errore.empty()) {
        return Tell(stderr, comandi.Errore + "\n", trameli::ComandiErrati);
    }
    switch (comandi.Compito) {
        case trameli::Compito::Aiuto:
            return Tell(stdout, trameli::TestoAiuto(), 0);
        case trameli::Compito::Versione:
            return Tell(stdout, trameli::TestoVersione(), 0);
        case trameli::Compito::Quaderno: {
            const trameli::EsitoQuaderno esito = trameli::StampaQuaderno(comandi.Opzioni);
            return esito.Errore.empty() ? 0 : Tell(stderr, esito.Errore + "\n", esito.Codice);
        }
        case trameli::Compito::Gioco:
            break;
    }
    return Play(argc, argv, comandi);
}
