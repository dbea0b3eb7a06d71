// Files in memory.
#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "shell/maiuscolo.h"

namespace trameli {

/// A file system that lives in a map, without regard to case. It fails when told to.
class FileSystemFinto : public FileSystem {
public:
    bool ScritturaGuasta = false;  ///< no file can be written
    bool CartelleGuaste = false;   ///< no folder can be made
    std::set<std::string>
        Illeggibili;  ///< paths in capitals of files that exist, but cannot be read

    int Scritture = 0;                     ///< files written
    mutable std::size_t UltimoLimite = 0;  ///< how much was asked for at the last read

    bool FileExists(const std::string& path) const override { return file_.contains(Chiave(path)); }

    bool FolderExists(const std::string& path) const override {
        return cartelle_.contains(ChiaveCartella(path));
    }

    bool CreateFolder(const std::string& path) override {
        if (!CartelleGuaste) {
            cartelle_.insert(ChiaveCartella(path));
        }
        return FolderExists(path);
    }

    std::optional<std::string> Read(const std::string& path, std::size_t limit) const override {
        UltimoLimite = limit;
        const auto trovato = file_.find(Chiave(path));
        if (trovato == file_.end() || Illeggibili.contains(Chiave(path))) {
            return std::nullopt;
        }
        return trovato->second.Byte.substr(0, limit);
    }

    bool Replace(const std::string& path, const std::string& bytes) override {
        const std::size_t barra = path.rfind('\\');
        if (ScritturaGuasta || FolderExists(path) || barra == std::string::npos ||
            !FolderExists(path.substr(0, barra))) {
            return false;
        }
        file_[Chiave(path)] = {path, bytes};
        ++Scritture;
        return true;
    }

    std::vector<std::string> List(const std::string& folder,
                                  const std::string& ending) const override {
        const std::string cartella = ChiaveCartella(folder) + "\\";
        std::vector<std::string> nomi;
        for (const auto& [chiave, file] : file_) {
            if (chiave.starts_with(cartella) && chiave.ends_with(Maiuscolo(ending)) &&
                chiave.find('\\', cartella.size()) == std::string::npos) {
                nomi.push_back(file.Percorso.substr(cartella.size()));
            }
        }
        return nomi;
    }

    std::string OnThisMachine(const std::string& path) const override { return "su:" + path; }

    /// The bytes of a file; empty if there is none.
    std::string Contenuto(const std::string& path) const {
        const auto trovato = file_.find(Chiave(path));
        return trovato == file_.end() ? std::string() : trovato->second.Byte;
    }

private:
    struct File {
        std::string Percorso;
        std::string Byte;
    };

    static std::string Chiave(const std::string& path) { return Maiuscolo(path); }
    static std::string ChiaveCartella(const std::string& path) {
        return Maiuscolo(path.ends_with('\\') ? path.substr(0, path.size() - 1) : path);
    }

    std::map<std::string, File> file_;
    std::set<std::string> cartelle_{"", "C:"};  // no path at all is the current folder
};

}  // namespace trameli
