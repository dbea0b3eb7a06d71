// The languages of the program's texts.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "shell/file_lingua.h"
#include "shell/stato.h"

namespace trameli {

class Form;

/// Reads texts from language files, one file a language. A file is read once and then looked up in
/// memory; what is on the disk counts again when a language is chosen. What cannot be found leaves
/// everything as it is and is never told.
class Lingue {
public:
    /// The folder of the language files.
    static constexpr const char* Cartella = "P:\\lngtrameli";
    /// The file that keeps the choice of a language.
    static constexpr const char* FileScelta = "P:\\lngtrameli\\LangSetting.ini";
    /// The language of the texts that forms are made with.
    static constexpr const char* LinguaPrima = "italiano";

    /// Works on `LinguaCorrente`. `locale` is what the desktop says of its language, for instance
    /// "de_DE.UTF-8". All but that must outlive it; nothing is read yet.
    Lingue(Stato& stato, FileSystem& fileSystem, Dialogs& dialogs, std::string locale);

    /// The value of a key; empty if there is none, nothing if the file cannot be read.
    std::optional<std::string> LeggiChiave(const std::string& file, std::string_view sezione,
                                           std::string_view chiave);

    /// Writes a key and keeps what else is in the file. If that fails, it counts until a language
    /// is chosen the next time.
    bool ScriviChiave(const std::string& file, std::string_view sezione, std::string_view chiave,
                      std::string_view valore);

    /// The text of a four-digit number in the current language; empty if there is none.
    std::string TestoLingua(std::string_view id);
    /// The same, but the design text where there is none.
    std::string TestoLingua(std::string_view id, std::string_view disegno);

    /// Puts the captions, tool tips, tags and accessible names of the form and its controls into
    /// the current language, as far as that has them. Serves events after each control: the form
    /// may be gone afterwards.
    void TraduciForm(Form& form);

    /// The languages that there are, by their files' names without the extension.
    std::vector<std::string> Elenca() const;

    /// Takes the language that was chosen last, or the desktop's if none was chosen yet.
    void RiprendiScelta();
    /// Takes another language, or the same one again as its file is now.
    void Scegli(const std::string& lingua);
    /// Keeps the current language for the next start. False if that cannot be written.
    bool SalvaScelta();

private:
    static std::string FileDi(const std::string& lingua);

    const std::string& Corrente();
    const std::optional<FileLingua>& Letto(const std::string& file);
    std::string LinguaDelDesktop() const;
    void Prendi(const std::string& lingua);

    Stato& stato_;
    FileSystem& fileSystem_;
    Dialogs& dialogs_;
    std::string locale_;

    std::map<std::string, std::optional<FileLingua>> letti_;  // by path; nothing for a missing one
};

}  // namespace trameli
