// The user files on the disk, and the folders they lie in.
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>

#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "shell/lingue.h"
#include "shell/stato.h"

namespace trameli {

/// Saves and reads the settings of the current user. No failure gets in the way of the game: it
/// then goes on with the record in memory.
class ModuloPerIni {
public:
    /// The folder of the readme, and in it the folder of the user files.
    static constexpr const char* CartellaImpostazioni = "C:\\ImpostazioniProgrammiOvalia\\";
    static constexpr const char* CartellaUtenti = "C:\\ImpostazioniProgrammiOvalia\\trameli\\";
    static constexpr const char* FileLeggimi = "C:\\ImpostazioniProgrammiOvalia\\leggimi.txt";
    /// The user with whom every run begins.
    static constexpr const char* PrimoUtente = "_predefinito";
    static constexpr const char* PrimoFileUtente =
        "C:\\ImpostazioniProgrammiOvalia\\trameli\\_predefinito.INI";

    /// No user file is read any further. Sixteen lines need far less, but blanks in front of a
    /// number are no fault, however many.
    static constexpr std::size_t LimiteLettura = std::size_t{64} * 1024;

    /// Works on `stato`. All four must outlive it; nothing is read or written yet.
    ModuloPerIni(Stato& stato, FileSystem& fileSystem, Dialogs& dialogs, Lingue& lingue);

    /// Gives all sixteen settings their defaults.
    void ImpostaPredefiniti();

    /// Writes the settings to `FileUtente`, into folders made anew where they have gone. The first
    /// failure of a run is told in a message box, which serves events: a window's routine asks
    /// afterwards whether the window is still loaded.
    void ScriviUtente();

    /// The same where nothing can be told any more.
    void ScriviInSilenzio();

    /// Fills the settings from `FileUtente`; a missing or damaged file gives the defaults.
    void LeggiUtente();

    /// True if an ordinary file of that path exists.
    bool EsisteFile(const std::string& percorso) const;
    /// True if the path names an existing folder.
    bool EsisteCartella(const std::string& percorso) const;
    /// Makes a folder and writes the readme anew.
    void CreaCartella(const std::string& percorso);
    /// Makes the folders that are missing.
    void VerificaCartelle();
    /// Removes what a copy of the program that was killed while it saved has left. At the start
    /// only, when no other one runs.
    void RiordinaCartelle();

private:
    /// True if the current user's file is a link to what is there and no user file.
    bool PortaAltrove() const;

    Stato& stato_;
    FileSystem& fileSystem_;
    Dialogs& dialogs_;
    Lingue& lingue_;

    /// What could not be saved, by the path in capitals. It is newer than the files: without it the
    /// menu, which saves and reads the current user whenever it is shown, would bring back the old
    /// settings of a file that cannot be written.
    std::map<std::string, Impostazioni> nonSalvati_;
    /// Files that were there and could not be read or lie behind a link and are something else, by
    /// the path in capitals. What they hold is not replaced by the defaults that stand in for it.
    std::set<std::string> illeggibili_;
    bool avvisato_ = false;
};

}  // namespace trameli
