#include "quaderno/richiesta.h"

#include <charconv>
#include <optional>

#include "base/griglie.h"
#include "shell/nome_utente.h"

namespace trameli {

namespace {

constexpr int MassimoTrameli = 1000;

/// The whole text as a number in those limits.
template <typename Numero>
std::optional<Numero> NumeroFra(const std::string& testo, Numero minimo, Numero massimo) {
    Numero numero{};
    const char* const fine = testo.data() + testo.size();
    const auto [letto, errore] = std::from_chars(testo.data(), fine, numero);
    if (errore != std::errc() || letto != fine || numero < minimo || numero > massimo) {
        return std::nullopt;
    }
    return numero;
}

std::string Attesi(const std::string& opzione, const std::string& che) {
    return "option '" + opzione + "' needs " + che;
}

}  // namespace

std::variant<Richiesta, std::string> LeggiRichiesta(
    const std::map<std::string, std::string, std::less<>>& opzioni, std::uint64_t semeDelMomento) {
    const auto valore = [&opzioni](const char* nome) -> std::optional<std::string> {
        const auto voce = opzioni.find(nome);
        return voce == opzioni.end() ? std::nullopt : std::optional(voce->second);
    };
    Richiesta richiesta;
    richiesta.File = valore("--quaderno").value_or("");
    if (richiesta.File.empty()) {
        return Attesi("--quaderno", "a file");
    }
    const auto livello = NumeroFra(valore("--livello").value_or(""), 1, NumeroLivelli);
    if (!livello) {
        return Attesi("--livello", "a level from 1 to " + std::to_string(NumeroLivelli));
    }
    const auto numero = NumeroFra(valore("--numero").value_or("1"), 1, MassimoTrameli);
    if (!numero) {
        return Attesi("--numero", "a number from 1 to " + std::to_string(MassimoTrameli));
    }
    const auto seme = NumeroFra<std::uint64_t>(
        valore("--seme").value_or(std::to_string(semeDelMomento)), 0, UINT64_MAX);
    if (!seme) {
        return Attesi("--seme", "a whole number from 0 to " + std::to_string(UINT64_MAX));
    }
    richiesta.Utente = valore("--utente");
    if (richiesta.Utente && !NomeUtenteAmmesso(*richiesta.Utente)) {
        return Attesi("--utente", "a player's name");
    }
    richiesta.Quaderno = {*livello - 1, *numero, *seme, valore("--soluzioni").has_value()};
    return richiesta;
}

}  // namespace trameli
