#include "shell/modulo_per_ini.h"

#include <optional>

#include "shell/file_utente.h"
#include "shell/maiuscolo.h"

namespace trameli {

ModuloPerIni::ModuloPerIni(Stato& stato, FileSystem& fileSystem, Dialogs& dialogs, Lingue& lingue)
    : stato_(stato), fileSystem_(fileSystem), dialogs_(dialogs), lingue_(lingue) {}

void ModuloPerIni::ImpostaPredefiniti() {
    static_cast<Impostazioni&>(stato_) = Impostazioni();
}

void ModuloPerIni::ScriviUtente() {
    const std::string& file = stato_.FileUtente;
    if (!illeggibili_.contains(Maiuscolo(file)) && fileSystem_.Replace(file, Testo(stato_))) {
        nonSalvati_.erase(Maiuscolo(file));
        return;
    }
    nonSalvati_[Maiuscolo(file)] = stato_;
    if (!avvisato_) {
        avvisato_ = true;  // before the message: while it is shown, a timer can save again
        dialogs_.Critical(
            "Impossibile salvare le impostazioni.\n" + fileSystem_.OnThisMachine(file), "Trameli");
    }
}

void ModuloPerIni::LeggiUtente() {
    const std::string file = Maiuscolo(stato_.FileUtente);
    std::optional<std::string> testo;
    if (EsisteFile(stato_.FileUtente)) {
        testo = fileSystem_.Read(stato_.FileUtente, LimiteLettura);
        if (!testo) {
            illeggibili_.insert(file);
        } else if (illeggibili_.erase(file) > 0) {
            // What its user once saved is back, and counts more than what stood in for it.
            nonSalvati_.erase(file);
        }
    }
    std::optional<Impostazioni> lette = testo ? Leggi(*testo) : std::nullopt;
    if (const auto trovato = nonSalvati_.find(file); trovato != nonSalvati_.end()) {
        lette = trovato->second;
    }
    if (lette) {
        static_cast<Impostazioni&>(stato_) = *lette;
    } else {
        ImpostaPredefiniti();
    }
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
