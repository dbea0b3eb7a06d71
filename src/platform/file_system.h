// Files and folders under the names that the program knows them by.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace trameli {

/// What paths into the program folder begin with: sounds, languages and documents lie there.
inline constexpr char ProgramFolder[] = "P:";

/// The service for files. Paths are the program's own: "C:\..." with backslashes, UTF-8, without
/// regard to case. Where several names differ in case alone, one whose case differs from the path's
/// in the extension at most comes before the others; otherwise the first in alphabetical order
/// counts.
///
/// "C:\" stands for the folder `trameli` in the user's data folder. "P:\" stands for the program
/// folder. What is written there goes into a folder of the user's own, and what lies in that counts
/// before what came with the program.
///
/// A path with a part that could lead out of its folder ("..", a slash, a zero character) names
/// nothing. No call throws.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    /// True if an ordinary file of that path exists.
    virtual bool FileExists(const std::string& path) const = 0;

    /// True if the file that would be replaced is a link, wherever that leads.
    virtual bool IsLink(const std::string& path) const = 0;

    /// True if the path names an existing folder.
    virtual bool FolderExists(const std::string& path) const = 0;

    /// Makes a folder, with those above it. False if there is none afterwards.
    virtual bool CreateFolder(const std::string& path) = 0;

    /// The first bytes of an ordinary file, `limit` at the most; nothing if it cannot be read.
    virtual std::optional<std::string> Read(const std::string& path, std::size_t limit) const = 0;

    /// Makes `bytes` the content of the file, whole or not at all: whatever happens in between,
    /// the file holds either what it held before or what it is given. A new file gets its
    /// extension in small letters. False if it could not; there must be a folder for it, but for
    /// the program folder one is made.
    ///
    /// Of a link, the file that it leads to is replaced, whoever's that is; see `IsLink`. One that
    /// is not there yet is made only in the link's own folder or below.
    virtual bool Replace(const std::string& path, const std::string& bytes) = 0;

    /// Removes what saves that were cut off have left in a folder. No other copy of the program may
    /// be running.
    virtual void Tidy(const std::string& folder) = 0;

    /// Names in a folder, files and folders, that end in `ending` (without regard to case), in
    /// alphabetical order; of names that differ only in case the first alone.
    virtual std::vector<std::string> List(const std::string& folder,
                                          const std::string& ending) const = 0;

    /// Where a file lies on this machine, or would be made, to be shown to a person.
    virtual std::string OnThisMachine(const std::string& path) const = 0;
};

}  // namespace trameli
