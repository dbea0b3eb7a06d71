// Files on this machine's disk.
#pragma once

#include <filesystem>
#include <string_view>

#include "platform/file_system.h"

namespace trameli {

/// The program's paths on a file system that tells capitals from small letters.
class LocalFileSystem : public FileSystem {
public:
    /// `root` is the folder that "C:\" stands for. It is made when something is first put into it.
    /// `program` is the program folder as it was installed, if there is one.
    explicit LocalFileSystem(std::filesystem::path root, std::filesystem::path program = {})
        : root_(std::move(root)), program_(std::move(program)) {}

    bool FileExists(const std::string& path) const override;
    bool IsLink(const std::string& path) const override;
    bool FolderExists(const std::string& path) const override;
    bool CreateFolder(const std::string& path) override;
    std::optional<std::string> Read(const std::string& path, std::size_t limit) const override;
    bool Replace(const std::string& path, const std::string& bytes) override;
    void Tidy(const std::string& folder) override;
    std::vector<std::string> List(const std::string& folder,
                                  const std::string& ending) const override;
    std::string OnThisMachine(const std::string& path) const override;

private:
    /// The folders in which a path is looked for, in this order; the first one is written to. None
    /// for a path that names nothing.
    std::vector<std::filesystem::path> FoldersOf(std::string_view path) const;
    /// Where something of that path lies; parts that exist in other letters' case are taken as
    /// they stand there.
    std::vector<std::filesystem::path> PlacesOf(const std::string& path) const;
    /// The first of them that is an ordinary file.
    std::optional<std::filesystem::path> FindFile(const std::string& path) const;
    /// Where a folder of that path is made; nothing if it cannot be.
    std::optional<std::filesystem::path> PlaceToMake(const std::string& path) const;
    /// Where a file of that path is replaced or made.
    std::optional<std::filesystem::path> PlaceToWrite(const std::string& path) const;

    std::filesystem::path root_;
    std::filesystem::path program_;
};

}  // namespace trameli
