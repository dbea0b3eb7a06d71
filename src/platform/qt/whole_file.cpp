#include "platform/qt/whole_file.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "platform/qt/open_file.h"

namespace fs = std::filesystem;

namespace trameli {

namespace {

/// Longest name that a file can have on the disk, in bytes.
constexpr std::size_t LongestName = 255;

constexpr mode_t OfEverybody = 0666;  // what the process does not mask

/// What the name of an unfinished file ends in; it begins with a dot.
constexpr std::string_view Unfinished = ".new";

/// The folder of a file whose path can be a bare name.
fs::path FolderOf(const fs::path& path) {
    return path.has_parent_path() ? path.parent_path() : ".";
}

/// The name that a file has before it takes its place.
fs::path Beside(const fs::path& place) {
    const std::string name = "." + place.filename().string();
    return FolderOf(place) /
           (name.substr(0, LongestName - Unfinished.size()) + std::string(Unfinished));
}

/// A file that has no name yet, so that nothing is left of it if the process is killed.
class NamelessFile : public OpenFile {
public:
    NamelessFile(const fs::path& folder, mode_t mode)
        : OpenFile(folder, O_WRONLY | O_TMPFILE, mode) {}

    bool Name(const fs::path& name) const {
        const std::string here = "/proc/self/fd/" + std::to_string(Handle());
        return linkat(AT_FDCWD, here.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0;
    }
};

bool WriteAll(int handle, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(handle, bytes.data(), bytes.size());
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

std::optional<struct stat> StateOf(const fs::path& place) {
    struct stat state {};
    return stat(place.c_str(), &state) == 0 ? std::optional(state) : std::nullopt;
}

/// Makes a new file as reachable as the old one was. What the system refuses is no reason to lose
/// what is saved, but no other group must get the rights of the old one.
void Inherit(int handle, const struct stat& old) {
    constexpr auto sameOwner = static_cast<uid_t>(-1);
    const bool groupStays =
        fchown(handle, old.st_uid, old.st_gid) == 0 || fchown(handle, sameOwner, old.st_gid) == 0;
    const mode_t others = old.st_mode & S_IRWXO;
    const mode_t group = groupStays ? old.st_mode & S_IRWXG : old.st_mode & (others << 3);
    fchmod(handle, (old.st_mode & ~S_IFMT & ~S_IRWXG) | group);
}

/// Writes all bytes to the disk.
template <typename Prepare>
bool Fill(const OpenFile& file, std::string_view bytes, Prepare prepare) {
    if (!file.IsOpen()) {
        return false;
    }
    prepare(file.Handle());
    return WriteAll(file.Handle(), bytes) && fsync(file.Handle()) == 0;
}

/// Makes a new file of all bytes with that name.
template <typename Prepare>
bool Make(const fs::path& path, std::string_view bytes, mode_t mode, Prepare prepare) {
    // Always the same name, so that what a crash left there goes, whatever it is.
    unlink(path.c_str());
    if (NamelessFile file(FolderOf(path), mode); file.IsOpen()) {
        if (!Fill(file, bytes, prepare)) {
            return false;
        }
        if (file.Name(path)) {
            return file.Close();
        }
    }
    // Not every file system knows such files, and there can be a system without /proc.
    OpenFile file(path, O_WRONLY | O_CREAT | O_EXCL, mode);
    return Fill(file, bytes, prepare) && file.Close();
}

/// Writes all bytes into a new file beside `place` and gives it its name by `name`; the answer is
/// that of `name`. Nothing is left behind if anything fails.
template <typename Prepare, typename Name>
bool WriteBeside(const fs::path& place, std::string_view bytes, mode_t mode, Prepare prepare,
                 Name name) {
    const fs::path beside = Beside(place);
    if (!Make(beside, bytes, mode, prepare) || !name(beside)) {
        unlink(beside.c_str());
        return false;
    }
    // The new name itself has to reach the disk too; not every file system can be asked for that.
    const OpenFile folder(FolderOf(place), O_RDONLY | O_DIRECTORY);
    if (folder.IsOpen()) {
        fsync(folder.Handle());
    }
    return true;
}

/// Renames a file unless there is one of the new name. `errno` tells why it failed.
bool RenameToNew(const fs::path& from, const fs::path& to) {
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return true;
    }
    // File systems of other machines do not know that flag, but they know links.
    if ((errno != EINVAL && errno != ENOSYS) || link(from.c_str(), to.c_str()) != 0) {
        return false;
    }
    unlink(from.c_str());
    return true;
}

}  // namespace

std::optional<fs::path> EndOfLinks(fs::path place) {
    constexpr int longestChain = 40;  // as long as the system itself goes along
    std::error_code error;
    for (int i = 0; i < longestChain; ++i) {
        if (!fs::is_symlink(place, error)) {
            return place;
        }
        place = place.parent_path() / fs::read_symlink(place, error);
    }
    return std::nullopt;
}

bool MayBeReplaced(const fs::path& place) {
    std::error_code error;
    return !fs::exists(place, error) ||
           (fs::is_regular_file(place, error) && access(place.c_str(), W_OK) == 0);
}

bool ReplaceWhole(const fs::path& place, std::string_view bytes) {
    const auto old = StateOf(place);
    return WriteBeside(
        place, bytes, old ? old->st_mode & S_IRWXU : OfEverybody,
        [&old](int handle) {
            if (old) {
                Inherit(handle, *old);
            }
        },
        [&place](const fs::path& beside) { return rename(beside.c_str(), place.c_str()) == 0; });
}

Creation CreateWhole(const fs::path& place, std::string_view bytes) {
    std::error_code error;
    Creation result = Creation::Failed;
    if (fs::exists(fs::symlink_status(place, error))) {
        return Creation::Taken;
    }
    WriteBeside(
        place, bytes, OfEverybody, [](int) {},
        [&](const fs::path& beside) {
            const bool named = RenameToNew(beside, place);
            result = named ? Creation::Made : errno == EEXIST ? Creation::Taken : Creation::Failed;
            return named;
        });
    return result;
}

void RemoveUnfinished(const fs::path& folder) {
    std::error_code error;
    std::vector<fs::path> unfinished;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (name.starts_with('.') && name.ends_with(Unfinished)) {
            unfinished.push_back(entry->path());
        }
    }
    for (const fs::path& path : unfinished) {
        unlink(path.c_str());
    }
}

}  // namespace trameli
