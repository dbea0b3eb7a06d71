#include "stampa_quaderno.h"

#include <random>
#include <variant>

#include "base/quoted.h"
#include "comandi.h"
#include "platform/no_dialogs.h"
#include "platform/without_display.h"
#include "quaderno/richiesta.h"
#include "shell/lingue.h"
#include "shell/modulo_per_ini.h"
#include "shell/stato.h"

namespace trameli {

EsitoQuaderno StampaQuaderno(const std::map<std::string, std::string, std::less<>>& opzioni) {
    const auto letta = LeggiRichiesta(opzioni, std::random_device()());
    if (const std::string* const errore = std::get_if<std::string>(&letta)) {
        return {ComandiErrati, "trameli: " + *errore + "; see 'trameli --help'"};
    }
    const auto& richiesta = std::get<Richiesta>(letta);

    const WithoutDisplay machine;
    NoDialogs dialogs;
    Stato stato;
    Lingue lingue(stato, machine.Files(), dialogs, machine.Locale());
    ModuloPerIni moduloPerIni(stato, machine.Files(), dialogs, lingue);
    stato.NomeUtente = richiesta.Utente.value_or(ModuloPerIni::PrimoUtente);
    stato.FileUtente = ModuloPerIni::CartellaUtenti + stato.NomeUtente + ".ini";
    if (richiesta.Utente && !moduloPerIni.EsisteFile(stato.FileUtente)) {
        return {ComandiErrati, "trameli: there is no player " + Quoted(stato.NomeUtente)};
    }
    moduloPerIni.LeggiUtente();

    PageBook libro(LarghezzaPagina, AltezzaPagina, "Trameli");
    Scrivi(richiesta.Quaderno, stato, lingue.TestoLingua("0022", "Livello "), libro);
    if (!machine.Write(richiesta.File, libro.Bytes())) {
        return {1, "trameli: " + Quoted(richiesta.File) + " cannot be written"};
    }
    return {};
}

}  // namespace trameli
