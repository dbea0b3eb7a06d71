#include "game/disco.h"

#include <algorithm>

namespace trameli {

namespace fs = std::filesystem;

fs::path ProgrammaFornito() {
    return GAME_ASSETS;
}

FileUtente FileUtente::Con(Riga riga, const std::string& testo) const {
    FileUtente altro = *this;
    altro.Righe.at(riga) = testo;
    return altro;
}

FileUtente FileUtente::Con(Riga riga, int numero) const {
    return Con(riga, " " + std::to_string(numero) + " ");
}

std::string FileUtente::Bytes() const {
    std::string bytes;
    for (const std::string& riga : Righe) {
        bytes += riga + "\r\n";
    }
    return bytes;
}

fs::path Disco::FileDi(const std::string& utente) const {
    return Utenti() / (utente + ".ini");
}

void Disco::Scrivi(const std::string& utente, const FileUtente& file) const {
    fs::create_directories(Utenti());
    Write(FileDi(utente), file.Bytes());
}

std::string Disco::Leggi(const std::string& utente) const {
    return BytesOf(FileDi(utente));
}

fs::path Disco::DelProgramma(const std::string& nome) const {
    return Radice() / "programma" / nome;
}

void Disco::ScriviNelProgramma(const std::string& nome, const std::string& bytes) const {
    fs::create_directories(DelProgramma(nome).parent_path());
    Write(DelProgramma(nome), bytes);
}

std::vector<std::string> Disco::Tutti() const {
    std::vector<std::string> nomi;
    std::error_code errore;
    for (fs::recursive_directory_iterator voce(Radice(), errore), fine; !errore && voce != fine;
         voce.increment(errore)) {
        nomi.push_back(fs::relative(voce->path(), Radice()).string());
    }
    std::sort(nomi.begin(), nomi.end());
    return nomi;
}

}  // namespace trameli
