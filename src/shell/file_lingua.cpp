#include "shell/file_lingua.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "shell/codifica.h"

namespace trameli {

namespace {

constexpr std::string_view FineRiga = "\r\n";

/// Takes the next line off the front of a text, without its end. Between the two characters of a
/// line end there is an empty one.
std::string_view ProssimaRiga(std::string_view& resto) {
    const std::string_view riga = resto.substr(0, resto.find_first_of(FineRiga));
    resto.remove_prefix(std::min(riga.size() + 1, resto.size()));
    return riga;
}

std::string_view SenzaSpaziInFondo(std::string_view testo) {
    return testo.substr(0, testo.find_last_not_of(" \t") + 1);
}

std::string_view SenzaSpazi(std::string_view testo) {
    testo.remove_prefix(std::min(testo.find_first_not_of(" \t"), testo.size()));
    return SenzaSpaziInFondo(testo);
}

/// Adds a name in small letters, as far as names of forms, controls and properties have any.
void AggiungiMinuscolo(std::string& testo, std::string_view nome) {
    for (const char lettera : nome) {
        testo +=
            lettera >= 'A' && lettera <= 'Z' ? static_cast<char>(lettera + 'a' - 'A') : lettera;
    }
}

/// Where a key is kept. No name holds a line end.
std::string Posto(std::string_view sezione, std::string_view chiave) {
    std::string posto;
    posto.reserve(sezione.size() + 1 + chiave.size());
    AggiungiMinuscolo(posto, sezione);
    posto += '\n';
    AggiungiMinuscolo(posto, chiave);
    return posto;
}

/// The section that a line begins.
std::optional<std::string_view> SezioneDi(std::string_view riga) {
    riga = SenzaSpazi(riga);
    const std::size_t fine = riga.find(']');
    if (!riga.starts_with('[') || fine == std::string_view::npos) {
        return std::nullopt;
    }
    return SenzaSpazi(riga.substr(1, fine - 1));
}

/// A key with its value as it stands there.
struct Voce {
    std::string_view Chiave;
    std::string_view Valore;
};

std::optional<Voce> VoceDi(std::string_view riga) {
    const std::size_t uguale = riga.find('=');
    if (uguale == std::string_view::npos) {
        return std::nullopt;
    }
    return Voce{SenzaSpazi(riga.substr(0, uguale)), SenzaSpazi(riga.substr(uguale + 1))};
}

std::string_view SenzaVirgolette(std::string_view valore) {
    const bool tra = valore.size() >= 2 && valore.starts_with('"') && valore.ends_with('"');
    return tra ? valore.substr(1, valore.size() - 2) : valore;
}

std::string_view FinoAZero(std::string_view valore) {
    return valore.substr(0, valore.find('\0'));
}

std::string_view SenzaPrimo(std::string_view testo) {
    return testo.substr(PrimiCaratteri(testo, 1).size());
}

std::string_view SenzaUltimo(std::string_view testo) {
    const auto seguito = [](char carattere) { return (carattere & 0xC0) == 0x80; };
    while (!testo.empty() && seguito(testo.back())) {
        testo.remove_suffix(1);
    }
    return testo.substr(0, testo.size() - std::min<std::size_t>(testo.size(), 1));
}

/// Hands over each value with where it is kept, until `presa` says that it has seen enough.
template <typename Presa>
void Percorri(std::string_view testo, Presa presa) {
    std::string_view sezione;
    while (!testo.empty()) {
        const std::string_view riga = ProssimaRiga(testo);
        if (const auto nuova = SezioneDi(riga)) {
            sezione = *nuova;
        } else if (const auto voce = VoceDi(riga)) {
            const std::string_view valore = FinoAZero(SenzaVirgolette(voce->Valore));
            if (!presa(Posto(sezione, voce->Chiave),
                       PrimiCaratteri(valore, FileLingua::LimiteValore))) {
                return;
            }
        }
    }
}

}  // namespace

FileLingua::FileLingua(std::string_view byte) {
    // What was cut off in the middle of a line says nothing, and not even in what way it was
    // written.
    if (byte.size() >= LimiteLettura) {
        byte = byte.substr(0, LimiteLettura);
        byte = byte.substr(0, byte.find_last_of(FineRiga) + 1);
    }
    std::string testo = TestoUtf8(byte);
    if (byte.size() <= LimiteSezioni) {
        LeggiSezioni(testo);
    } else {
        LeggiRighe(std::move(testo));
    }
}

std::string FileLingua::Valore(std::string_view sezione, std::string_view chiave) const {
    if (!testo_.empty()) {
        return std::string(FinoAZero(ValoreDiRiga(chiave)));
    }
    const auto trovato = valori_.find(Posto(sezione, chiave));
    return trovato == valori_.end() ? std::string() : trovato->second;
}

std::string FileLingua::SoloValore(std::string_view byte, std::string_view sezione,
                                   std::string_view chiave) {
    if (byte.size() > LimiteSezioni) {
        return FileLingua(byte).Valore(sezione, chiave);
    }
    std::string trovato;
    Percorri(TestoUtf8(byte), [&, cercato = Posto(sezione, chiave)](const std::string& posto,
                                                                    std::string_view valore) {
        if (posto != cercato) {
            return true;
        }
        trovato = valore;
        return false;
    });
    return trovato;
}

void FileLingua::LeggiSezioni(std::string_view testo) {
    Percorri(testo, [this](std::string posto, std::string_view valore) {
        valori_.try_emplace(std::move(posto), valore);
        return true;
    });
}

void FileLingua::LeggiRighe(std::string testo) {
    testo_ = std::move(testo);
    for (std::string_view resto = testo_; !resto.empty();) {
        // Blanks behind a closing quote cannot be seen, and would keep it.
        const std::string_view riga = SenzaSpaziInFondo(ProssimaRiga(resto));
        if (!riga.empty()) {
            righe_.push_back({static_cast<std::size_t>(riga.data() - testo_.data()), riga.size()});
        }
    }
    // All lines that begin with a key then stand together.
    std::sort(righe_.begin(), righe_.end(),
              [this](const Riga& una, const Riga& altra) { return TestoDi(una) < TestoDi(altra); });
}

std::string_view FileLingua::TestoDi(const Riga& riga) const {
    return std::string_view(testo_).substr(riga.Inizio, riga.Lunghezza);
}

/// What a larger file says of a key.
std::string_view FileLingua::ValoreDiRiga(std::string_view chiave) const {
    const Riga* prima = nullptr;
    for (auto riga = std::lower_bound(
             righe_.begin(), righe_.end(), chiave,
             [this](const Riga&una, std::string_view cercata) { return TestoDi(una) < cercata; });
         riga != righe_.end() && TestoDi(*riga).starts_with(chiave); ++riga) {
        if (!prima || riga->Inizio < prima->Inizio) {
            prima = &*riga;
        }
    }
    if (!prima) {
        return {};
    }
    // The equals sign and the quotes.
    return SenzaUltimo(SenzaPrimo(SenzaPrimo(TestoDi(*prima).substr(chiave.size()))));
}

std::string ConValore(std::string_view byte, std::string_view sezione, std::string_view chiave,
                      std::string_view valore) {
    std::string testo = TestoUtf8(byte);
    std::string_view qui;
    std::optional<std::size_t> fineSezione;
    for (std::string_view resto = testo; !resto.empty();) {
        const std::string_view riga = ProssimaRiga(resto);
        const auto inizio = static_cast<std::size_t>(riga.data() - testo.data());
        qui = SezioneDi(riga).value_or(qui);
        if (Posto(qui, {}) != Posto(sezione, {})) {
            continue;
        }
        const auto voce = VoceDi(riga);
        if (voce && Posto(qui, voce->Chiave) == Posto(sezione, chiave)) {
            const std::size_t dopoUguale = riga.find('=') + 1;
            return testo.replace(inizio + dopoUguale, riga.size() - dopoUguale, valore);
        }
        if (!SenzaSpazi(riga).empty()) {
            fineSezione = inizio + riga.size();
        }
    }
    std::string nuova = std::string(chiave) + "=" + std::string(valore);
    if (fineSezione) {
        return testo.insert(*fineSezione, std::string(FineRiga) + nuova);
    }
    if (!testo.empty() && FineRiga.find(testo.back()) == std::string_view::npos) {
        testo += FineRiga;
    }
    return testo + "[" + std::string(sezione) + "]" + std::string(FineRiga) + nuova +
           std::string(FineRiga);
}

}  // namespace trameli
