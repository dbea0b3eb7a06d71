#include "shell/lingue.h"

#include <algorithm>
#include <utility>

namespace trameli {

namespace {

constexpr std::string_view Estensione = ".lng";
constexpr const char* SezioneLingua = "Language";
constexpr const char* ChiaveScelta = "CurrentLanguage";
/// The two letters by which the world knows a language.
constexpr const char* ChiaveSigla = "Locale";
constexpr const char* SiglaPrima = "it";

/// The language of a locale such as "pt_BR.UTF-8", without country, code page and variant.
std::string Sigla(std::string_view locale) {
    std::string sigla(locale.substr(0, locale.find_first_of("_-.@")));
    std::transform(sigla.begin(), sigla.end(), sigla.begin(), [](char lettera) {
        return lettera >= 'A' && lettera <= 'Z' ? static_cast<char>(lettera + 'a' - 'A') : lettera;
    });
    return sigla;
}

}  // namespace

Lingue::Lingue(Stato& stato, FileSystem& fileSystem, Dialogs& dialogs, std::string locale)
    : stato_(stato), fileSystem_(fileSystem), dialogs_(dialogs), locale_(std::move(locale)) {}

std::optional<std::string> Lingue::LeggiChiave(const std::string& file, std::string_view sezione,
                                               std::string_view chiave) {
    const auto& letto = Letto(file);
    return letto ? std::optional(letto->Valore(sezione, chiave)) : std::nullopt;
}

bool Lingue::ScriviChiave(const std::string& file, std::string_view sezione,
                          std::string_view chiave, std::string_view valore) {
    const std::string prima =
        fileSystem_.Read(file, FileLingua::LimiteLettura).value_or(std::string());
    const std::string testo = ConValore(prima, sezione, chiave, valore);
    letti_[file] = FileLingua(testo);
    // Behind a link there may be anything. It is ours if it has this value already.
    const bool altrui = fileSystem_.IsLink(file) && fileSystem_.FileExists(file) &&
                        FileLingua(prima).Valore(sezione, chiave).empty();
    return !altrui && fileSystem_.Replace(file, testo);
}

std::string Lingue::TestoLingua(std::string_view id) {
    return LeggiChiave(FileDi(Corrente()), "Strings", id).value_or(std::string());
}

std::string Lingue::TestoLingua(std::string_view id, std::string_view disegno) {
    std::string testo = TestoLingua(id);
    return testo.empty() ? std::string(disegno) : testo;
}

std::vector<std::string> Lingue::Elenca() const {
    std::vector<std::string> lingue;
    for (std::string nome : fileSystem_.List(Cartella, std::string(Estensione))) {
        nome.resize(nome.size() - std::min(nome.size(), Estensione.size()));
        if (!nome.empty() && fileSystem_.FileExists(FileDi(nome))) {
            lingue.push_back(std::move(nome));
        }
    }
    return lingue;
}

void Lingue::RiprendiScelta() {
    const std::string scelta =
        LeggiChiave(FileScelta, SezioneLingua, ChiaveScelta).value_or(std::string());
    if (!scelta.empty()) {
        Prendi(scelta);
    } else if (stato_.LinguaCorrente.empty()) {
        Prendi(LinguaDelDesktop());
    }
}

void Lingue::Scegli(const std::string& lingua) {
    letti_.clear();
    Prendi(lingua);
}

bool Lingue::SalvaScelta() {
    return ScriviChiave(FileScelta, SezioneLingua, ChiaveScelta, stato_.LinguaCorrente);
}

std::string Lingue::FileDi(const std::string& lingua) {
    return std::string(Cartella) + "\\" + lingua + std::string(Estensione);
}

/// The current language, which is not known before the first need.
const std::string& Lingue::Corrente() {
    if (stato_.LinguaCorrente.empty()) {
        RiprendiScelta();
    }
    return stato_.LinguaCorrente;
}

const std::optional<FileLingua>& Lingue::Letto(const std::string& file) {
    const auto trovato = letti_.find(file);
    if (trovato != letti_.end()) {
        return trovato->second;
    }
    std::optional<FileLingua>& letto = letti_[file];
    if (const auto byte = fileSystem_.Read(file, FileLingua::LimiteLettura)) {
        letto.emplace(*byte);
    }
    return letto;
}

/// The first language that says it is that of the desktop.
std::string Lingue::LinguaDelDesktop() const {
    const std::string cercata = Sigla(locale_);
    if (cercata.empty()) {
        return LinguaPrima;  // a file without a code must not be taken for it
    }
    for (const std::string& lingua : Elenca()) {
        const auto byte = fileSystem_.Read(FileDi(lingua), FileLingua::LimiteLettura);
        if (byte && Sigla(FileLingua::SoloValore(*byte, SezioneLingua, ChiaveSigla)) == cercata) {
            return lingua;
        }
    }
    return LinguaPrima;
}

void Lingue::Prendi(const std::string& lingua) {
    stato_.LinguaCorrente = lingua;
    // Without a file the windows are in the language of their making.
    dialogs_.Language(LeggiChiave(FileDi(lingua), SezioneLingua, ChiaveSigla).value_or(SiglaPrima));
}

}  // namespace trameli
