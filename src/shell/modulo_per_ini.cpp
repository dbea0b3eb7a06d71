#include "shell/modulo_per_ini.h"

#include <optional>

#include "platform/text.h"
#include "shell/file_utente.h"

namespace trameli {

ModuloPerIni::ModuloPerIni(Stato& stato, FileSystem& fileSystem, Dialogs& dialogs, Lingue& lingue)
    : stato_(stato), fileSystem_(fileSystem), dialogs_(dialogs), lingue_(lingue) {}

void ModuloPerIni::ImpostaPredefiniti() {
    static_cast<Impostazioni&>(stato_) = Impostazioni();
}

void ModuloPerIni::ScriviUtente() {
    const std::string chiave = Capitals(stato_.FileUtente);
    const bool risparmiato = nonLetti_.contains(chiave) && EsisteFile(stato_.FileUtente);
    if (!risparmiato && fileSystem_.Replace(stato_.FileUtente, Testo(stato_))) {
        Conosciuto(chiave);
        nonSalvati_.erase(chiave);
        return;
    }
    nonSalvati_[chiave] = stato_;
    if (!avvisato_) {
        avvisato_ = true;  // before the message: while it is shown, a timer can save again
        dialogs_.Message(
            "Impossibile salvare le impostazioni.\n" + fileSystem_.OnThisMachine(stato_.FileUtente),
            "Trameli", Icon::Critical, Buttons::Ok);
    }
}

void ModuloPerIni::LeggiUtente() {
    const std::string chiave = Capitals(stato_.FileUtente);
    std::optional<std::string> testo;
    if (EsisteFile(stato_.FileUtente)) {
        testo = fileSystem_.Read(stato_.FileUtente, LimiteLettura);
    }
    if (!testo && !conosciuti_.contains(chiave)) {
        nonLetti_.insert(chiave);
    } else if (testo && nonLetti_.contains(chiave)) {
        // What its user once saved is there after all, and counts more than what stood in for it.
        nonSalvati_.erase(chiave);
    }
    if (testo) {
        Conosciuto(chiave);
    }
    std::optional<Impostazioni> lette = testo ? Leggi(*testo) : std::nullopt;
    if (const auto trovato = nonSalvati_.find(chiave); trovato != nonSalvati_.end()) {
        lette = trovato->second;
    }
    if (lette) {
        static_cast<Impostazioni&>(stato_) = *lette;
    } else {
        ImpostaPredefiniti();
    }
}

/// From now on the run knows what is in the file.
void ModuloPerIni::Conosciuto(const std::string& chiave) {
    conosciuti_.insert(chiave);
    nonLetti_.erase(chiave);
}

bool ModuloPerIni::EsisteFile(const std::string& percorso) const {
    return fileSystem_.FileExists(percorso);
}

bool ModuloPerIni::EsisteCartella(const std::string& percorso) const {
    return !percorso.empty() && fileSystem_.FolderExists(percorso);
}

void ModuloPerIni::CreaCartella(const std::string& percorso) {
    fileSystem_.CreateFolder(percorso);
    const std::string separatore = "\r\n \r\n";
    // Nobody misses the readme if it cannot be written, so that is not told.
    fileSystem_.Replace(FileLeggimi, lingue_.TestoLingua("0004") + separatore +
                                         lingue_.TestoLingua("0005") + separatore +
                                         lingue_.TestoLingua("0006") + "\r\n");
}

void ModuloPerIni::VerificaCartelle() {
    for (const char* cartella : {CartellaImpostazioni, CartellaUtenti}) {
        if (!EsisteCartella(cartella)) {
            CreaCartella(cartella);
        }
    }
}

}  // namespace trameli
