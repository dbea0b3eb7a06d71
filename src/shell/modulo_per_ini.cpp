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
    VerificaCartelle();  // they may have gone since the start
    const std::string chiave = Capitals(stato_.FileUtente);
    if (!illeggibili_.contains(chiave) && !PortaAltrove() &&
        fileSystem_.Replace(stato_.FileUtente, Testo(stato_))) {
        nonSalvati_.erase(chiave);
        return;
    }
    nonSalvati_[chiave] = stato_;
    if (!avvisato_) {
        avvisato_ = true;  // before the message: while it is shown, a timer can save again
        dialogs_.Message(lingue_.TestoLingua("0034", "Impossibile salvare le impostazioni.") +
                             "\n" + fileSystem_.OnThisMachine(stato_.FileUtente),
                         "Trameli", Icon::Critical, Buttons::Ok);
    }
}

void ModuloPerIni::ScriviInSilenzio() {
    avvisato_ = true;
    ScriviUtente();
}

void ModuloPerIni::LeggiUtente() {
    const std::string chiave = Capitals(stato_.FileUtente);
    const auto testo =
        PortaAltrove() ? std::nullopt : fileSystem_.Read(stato_.FileUtente, LimiteLettura);
    if (!testo && EsisteFile(stato_.FileUtente)) {
        illeggibili_.insert(chiave);
    } else if (illeggibili_.erase(chiave) > 0 && testo) {
        // What its user once saved is there after all, and counts more than what stood in for it.
        nonSalvati_.erase(chiave);
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

bool ModuloPerIni::PortaAltrove() const {
    if (!fileSystem_.IsLink(stato_.FileUtente) || !EsisteFile(stato_.FileUtente)) {
        return false;
    }
    const auto testo = fileSystem_.Read(stato_.FileUtente, LimiteLettura);
    return !testo || testo->size() == LimiteLettura || !Riconosci(*testo);
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
    if (!fileSystem_.IsLink(FileLeggimi)) {
        fileSystem_.Replace(FileLeggimi, lingue_.TestoLingua("0004") + separatore +
                                             lingue_.TestoLingua("0005") + separatore +
                                             lingue_.TestoLingua("0006") + "\r\n");
    }
}

void ModuloPerIni::RiordinaCartelle() {
    for (const char* cartella : {CartellaImpostazioni, CartellaUtenti, Lingue::Cartella}) {
        fileSystem_.Tidy(cartella);
    }
}

void ModuloPerIni::VerificaCartelle() {
    for (const char* cartella : {CartellaImpostazioni, CartellaUtenti}) {
        if (!EsisteCartella(cartella)) {
            CreaCartella(cartella);
        }
    }
}

}  // namespace trameli
