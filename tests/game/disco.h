// What a player's machine holds on its disk.
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "support/stage.h"

namespace trameli {

/// The sixteen lines of a user file without their ends, by the names of the settings.
enum Riga : std::size_t {
    RigaLivello,
    RigaMaiuscolo,
    RigaRetrocedi,
    RigaLinee,
    RigaPareti,
    RigaAvanti,
    RigaSfondo,
    RigaSimbolo,
    RigaRitorno,
    RigaScansione,
    RigaSpessore,
    RigaSuoni,
    RigaSuonoMovimento,
    RigaPuntatore,
    RigaModoInput,
    RigaVelocita,
    NumeroRighe
};

struct FileUtente {
    std::array<std::string, NumeroRighe> Righe{
        " 3 ",       "False", "True", "True", " 0 ",   " 49152 ", " 12648447 ", " 255 ",
        " 8438015 ", " 255 ", " 1 ",  "True", "False", "False",   " 0 ",        " 4 "};

    /// The same with another line.
    FileUtente Con(Riga riga, const std::string& testo) const;
    FileUtente Con(Riga riga, int numero) const;
    std::string Bytes() const;
};

/// The program folder that the game brings along.
std::filesystem::path ProgrammaFornito();

/// A disk; the games played on it come and go.
class Disco {
public:
    /// What "C:\" stands for.
    std::filesystem::path Radice() const { return cartella_.Path() / "trameli"; }
    std::filesystem::path Impostazioni() const { return Radice() / "ImpostazioniProgrammiOvalia"; }
    std::filesystem::path Utenti() const { return Impostazioni() / "trameli"; }
    std::filesystem::path Leggimi() const { return Impostazioni() / "leggimi.txt"; }
    std::filesystem::path FileDi(const std::string& utente) const;

    /// Lays a user file out, with the folders above it.
    void Scrivi(const std::string& utente, const FileUtente& file = {}) const;
    /// The bytes of a user file, empty if there is none.
    std::string Leggi(const std::string& utente) const;
    /// A file that the user has put into the program folder, and its bytes.
    std::filesystem::path DelProgramma(const std::string& nome) const;
    void ScriviNelProgramma(const std::string& nome, const std::string& bytes) const;
    /// The names of all files below the root, in alphabetical order.
    std::vector<std::string> Tutti() const;

private:
    TemporaryFolder cartella_;
};

}  // namespace trameli
