#include "stampa_quaderno.h"

#include <random>
#include <variant>

#include "comandi.h"
#include "platform/no_dialogs.h"
#include "platform/without_display.h"
#include "quaderno/richiesta.h"
#include "shell/lingue.h"
#include "shell/modulo_per_ini.h"
#include "shell/stato.h"

namespace trameli {

EsitoQuaderno StampaQuaderno(int& argc, char** argv,
                             const std::map<std::string, std::string, std::less<>>& opzioni) {
    const auto letta = LeggiRichiesta(opzioni, std::random_device()());
    if (const std::string* const errore = std::get_if<std::string>(&letta)) {
        return {ComandiErrati, "trameli: " + *errore + "; see 'trameli --help'"};
    }
    const auto& richiesta = std::get<Richiesta>(letta);

    const WithoutDisplay machine(argc, argv);
    NoDialogs dialogs;
    Stato stato;
    Lingue lingue(stato, machine.Files(), dialogs, machine.Locale());
    ModuloPerIni moduloPerIni(stato, machine.Files(), dialogs, lingue);
    stato.FileUtente = ModuloPerIni::PrimoFileUtente;
    stato.NomeUtente = ModuloPerIni::PrimoUtente;
    moduloPerIni.LeggiUtente();

    PageBook libro(LarghezzaPagina, AltezzaPagina, "Trameli");
    Scrivi(richiesta.Quaderno, stato, lingue.TestoLingua("0022", "Livello "), libro);
    if (!machine.Write(richiesta.File, libro.Bytes())) {
        return {1, "trameli: '" + richiesta.File + "' cannot be written"};
    }
    return {};
}

}  // namespace trameli
