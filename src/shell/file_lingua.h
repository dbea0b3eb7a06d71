// The text of a language or initialisation file: sections, keys and values. Nothing here touches a
// disk.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace trameli {

/// What one file holds, read once and then looked up. Whatever the bytes are, what can be read of
/// them counts, and the rest is as if it were not there.
class FileLingua {
public:
    /// No file is looked at any further: ten times what a complete language needs.
    static constexpr std::size_t LimiteLettura = 1 << 20;
    /// Up to here a file has sections.
    static constexpr std::size_t LimiteSezioni = 64000;
    /// Longest value of a file with sections, in characters.
    static constexpr std::size_t LimiteValore = 511;

    /// A file that holds nothing.
    FileLingua() = default;
    /// The bytes as they are on the disk, `LimiteLettura` at the most.
    explicit FileLingua(std::string_view byte);

    /// The value of a key without its double quotes, up to the first zero character; empty if there
    /// is none.
    ///
    /// In a file with sections, capitals and small letters are alike in names of sections and keys,
    /// and of equal ones the first counts. In a larger one a section has no meaning, and the first
    /// line that begins with just the key decides: whatever stands behind the key and one more
    /// character, without its first and last.
    std::string Valore(std::string_view sezione, std::string_view chiave) const;

    /// The same of the bytes of a file of which nothing else is asked: up to `LimiteSezioni` it is
    /// read only as far as that.
    static std::string SoloValore(std::string_view byte, std::string_view sezione,
                                  std::string_view chiave);

private:
    /// A line by its place in the text.
    struct Riga {
        std::size_t Inizio;
        std::size_t Lunghezza;
    };

    void LeggiSezioni(std::string_view testo);
    void LeggiRighe(std::string testo);
    std::string_view TestoDi(const Riga& riga) const;
    std::string_view ValoreDiRiga(std::string_view chiave) const;

    std::unordered_map<std::string, std::string> valori_;  // by section and key in small letters

    // Of a larger file: its text, and its lines in alphabetical order.
    std::string testo_;
    std::vector<Riga> righe_;
};

/// The text of an initialisation file with a value set: that of the key if the section has it
/// already, else of a new one. Everything else stays as it is.
std::string ConValore(std::string_view byte, std::string_view sezione, std::string_view chiave,
                      std::string_view valore);

}  // namespace trameli
