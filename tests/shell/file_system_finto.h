// Files in memory.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/text.h"

namespace trameli {

/// Files that live in a map, without regard to case, and fail when told to. Every folder is there.
class FileSystemFinto : public FileSystem {
public:
    bool ScritturaGuasta = false;       ///< no file can be written
    std::set<std::string> Illeggibili;  ///< paths in capitals of files that cannot be read

    bool FileExists(const std::string& path) const override {
        return file_.contains(Capitals(path));
    }
    bool IsLink(const std::string& /*path*/) const override { return false; }
    bool FolderExists(const std::string& /*path*/) const override { return true; }
    bool CreateFolder(const std::string& /*path*/) override { return true; }

    std::optional<std::string> Read(const std::string& path, std::size_t limit) const override {
        if (!FileExists(path) || Illeggibili.contains(Capitals(path))) {
            return std::nullopt;
        }
        return Contenuto(path).substr(0, limit);
    }

    bool Replace(const std::string& path, const std::string& bytes) override {
        if (!ScritturaGuasta) {
            file_[Capitals(path)] = bytes;
        }
        return !ScritturaGuasta;
    }

    std::vector<std::string> List(const std::string& /*folder*/,
                                  const std::string& /*ending*/) const override {
        return {};
    }

    std::string OnThisMachine(const std::string& path) const override { return "su:" + path; }

    /// The bytes of a file that exists.
    const std::string& Contenuto(const std::string& path) const { return file_.at(Capitals(path)); }

private:
    std::map<std::string, std::string> file_;
};

}  // namespace trameli
