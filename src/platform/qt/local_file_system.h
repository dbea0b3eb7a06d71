// Files on this machine's disk.
#pragma once

#include <filesystem>

#include "platform/file_system.h"

namespace trameli {

/// The program's paths on a file system that tells capitals from small letters.
class LocalFileSystem final : public FileSystem {
public:
    /// `root` is the folder that "C:\" stands for. It is made when something is first put into it.
    /// `program` is the program folder; without one, paths into it name nothing.
    explicit LocalFileSystem(std::filesystem::path root, std::filesystem::path program = {})
        : root_(std::move(root)), program_(std::move(program)) {}

    bool FileExists(const std::string& path) const override;
    bool FolderExists(const std::string& path) const override;
    bool CreateFolder(const std::string& path) override;
    std::optional<std::string> Read(const std::string& path, std::size_t limit) const override;
    bool Replace(const std::string& path, const std::string& bytes) override;
    std::vector<std::string> List(const std::string& folder,
                                  const std::string& ending) const override;
    std::string OnThisMachine(const std::string& path) const override;

private:
    /// The place on the disk; parts that exist in other letters' case are taken as they stand
    /// there. Nothing for a path that names nothing.
    std::optional<std::filesystem::path> Find(const std::string& path) const;
    /// The same for a file, under the name that it gets if there is none yet.
    std::optional<std::filesystem::path> FindOrName(const std::string& path) const;

    std::filesystem::path root_;
    std::filesystem::path program_;
};

}  // namespace trameli
