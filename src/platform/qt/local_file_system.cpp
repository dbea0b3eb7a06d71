#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QString>
#include <algorithm>
#include <map>

#include "platform/qt/convert.h"
#include "platform/qt/local_file_system.h"

namespace fs = std::filesystem;

namespace trameli {

namespace {

constexpr std::string_view UserDrive = "C:\\";
constexpr std::size_t DriveLength = UserDrive.size();

/// Longest name that a file can have on the disk, in bytes.
constexpr std::size_t LongestName = 255;

/// Longest path on the disk that is tried; longer ones are refused by the system anyway.
constexpr std::size_t LongestPath = 4000;

QString Folded(const std::string& name) {
    return ToQt(name).toCaseFolded();
}

/// A part of a path that stays inside its folder on every file system.
bool IsName(std::string_view part) {
    return !part.empty() && part != "." && part != ".." &&
           part.find_first_of(std::string_view("/\0", 2)) == std::string_view::npos && IsUtf8(part);
}

bool IsOnUserDrive(std::string_view path) {
    const std::string_view drive = path.substr(0, DriveLength);
    return drive == UserDrive || drive == "c:\\";
}

bool IsInProgramFolder(std::string_view path) {
    const std::string_view drive = path.substr(0, DriveLength);
    return drive == "P:\\" || drive == "p:\\";
}

/// The parts of a path behind the drive; nothing if one of them is not a name.
std::optional<std::vector<std::string>> PartsOf(std::string_view path) {
    std::vector<std::string> parts;
    std::string_view rest = path.substr(DriveLength);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\\'), rest.size());
        if (!IsName(rest.substr(0, end))) {
            return std::nullopt;
        }
        parts.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return parts;
}

/// Names in a folder by themselves without regard to case.
using Names = std::map<QString, std::string>;

/// The names in a folder that the program can name too; of several that differ only in case the
/// first in alphabetical order. A folder that is not there has none; nothing if the folder cannot
/// be looked through.
std::optional<Names> NamesIn(const fs::path& folder) {
    Names names;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::string name = entry->path().filename().string();
        if (!IsUtf8(name) || name.find('\\') != std::string::npos) {
            continue;
        }
        const auto [place, isNew] = names.try_emplace(Folded(name), name);
        if (!isNew && name < place->second) {
            place->second = std::move(name);
        }
    }
    if (error && error != std::errc::no_such_file_or_directory &&
        error != std::errc::not_a_directory) {
        return std::nullopt;
    }
    return names;
}

/// The entry of that name in any case, else the name as it is. Nothing if that cannot be told: a
/// file in another spelling must not be taken for a missing one.
std::optional<fs::path> Within(const fs::path& folder, const std::string& name) {
    const auto names = NamesIn(folder);
    if (!names) {
        return std::nullopt;
    }
    const auto found = names->find(Folded(name));
    return folder / (found == names->end() ? name : found->second);
}

/// Where a chain of links ends, be there a file or not; nothing if it never does.
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

/// The extension of a new file in small letters, whatever a path literal spells.
std::string WithSmallExtension(const std::string& name) {
    const std::size_t dot = std::min(name.rfind('.'), name.size());
    return name.substr(0, dot) + FromQt(ToQt(name.substr(dot)).toLower());
}

/// A file that is closed when it goes out of scope.
class OpenFile {
public:
    OpenFile(const fs::path& path, int flags) : handle_(open(path.c_str(), flags, 0666)) {}
    ~OpenFile() { Close(); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int Handle() const { return handle_; }
    bool IsOpen() const { return handle_ >= 0; }
    bool Close() {
        const bool closed = handle_ >= 0 && close(handle_) == 0;
        handle_ = -1;
        return closed;
    }

private:
    int handle_;
};

/// The name under which a file is written before it takes its place.
fs::path Beside(const fs::path& place) {
    constexpr std::string_view ending = ".new";
    const std::string name = "." + place.filename().string();
    return place.parent_path() /
           (name.substr(0, LongestName - ending.size()) + std::string(ending));
}

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

}  // namespace

std::optional<fs::path> LocalFileSystem::Find(const std::string& path) const {
    const bool inProgramFolder = IsInProgramFolder(path) && !program_.empty();
    if (!inProgramFolder && !IsOnUserDrive(path)) {
        return std::nullopt;
    }
    const auto parts = PartsOf(path);
    if (!parts) {
        return std::nullopt;
    }
    std::optional<fs::path> place = inProgramFolder ? program_ : root_;
    for (const std::string& part : *parts) {
        place = Within(*place, part);
        if (!place || place->native().size() > LongestPath) {
            return std::nullopt;
        }
    }
    return place;
}

std::optional<fs::path> LocalFileSystem::FindOrName(const std::string& path) const {
    auto place = Find(path);
    std::error_code error;
    if (place && fs::symlink_status(*place, error).type() == fs::file_type::not_found) {
        place->replace_filename(WithSmallExtension(place->filename().string()));
    }
    return place;
}

bool LocalFileSystem::FileExists(const std::string& path) const {
    const auto place = Find(path);
    std::error_code error;
    return place && fs::is_regular_file(*place, error);
}

bool LocalFileSystem::FolderExists(const std::string& path) const {
    const auto place = Find(path);
    std::error_code error;
    return place && fs::is_directory(*place, error);
}

bool LocalFileSystem::CreateFolder(const std::string& path) {
    const auto place = Find(path);
    if (!place || IsInProgramFolder(path)) {
        return false;
    }
    std::error_code error;
    fs::create_directories(*place, error);
    return fs::is_directory(*place, error);
}

std::optional<std::string> LocalFileSystem::Read(const std::string& path, std::size_t limit) const {
    const auto place = Find(path);
    if (!place) {
        return std::nullopt;
    }
    // A pipe of that name must not hold the program up.
    const OpenFile file(*place, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat state {};
    if (!file.IsOpen() || fstat(file.Handle(), &state) != 0 || !S_ISREG(state.st_mode)) {
        return std::nullopt;
    }
    const std::size_t wanted = std::min(limit, static_cast<std::size_t>(state.st_size));
    std::string bytes(wanted, '\0');
    std::size_t length = 0;
    while (length < wanted) {
        const ssize_t count = read(file.Handle(), bytes.data() + length, wanted - length);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return std::nullopt;
        }
        if (count == 0) {
            break;
        }
        length += static_cast<std::size_t>(count);
    }
    bytes.resize(length);
    return bytes;
}

bool LocalFileSystem::Replace(const std::string& path, const std::string& bytes) {
    auto place = FindOrName(path);
    if (!place || IsInProgramFolder(path)) {
        return false;
    }
    // What a link points to is replaced, not the link.
    place = EndOfLinks(*place);
    if (!place) {
        return false;
    }
    std::error_code error;
    // A file that somebody made read-only stays as it is.
    if (fs::exists(*place, error) &&
        (!fs::is_regular_file(*place, error) || access(place->c_str(), W_OK) != 0)) {
        return false;
    }
    const fs::path beside = Beside(*place);
    // Always the same name, so that what a crash left there goes, whatever it is.
    unlink(beside.c_str());
    OpenFile file(beside, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC);
    const bool written = file.IsOpen() && WriteAll(file.Handle(), bytes) &&
                         fsync(file.Handle()) == 0 && file.Close() &&
                         rename(beside.c_str(), place->c_str()) == 0;
    if (!written) {
        unlink(beside.c_str());
        return false;
    }
    // The new name itself has to reach the disk too; not every file system can be asked for that.
    const OpenFile folder(place->parent_path(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder.IsOpen()) {
        fsync(folder.Handle());
    }
    return true;
}

std::vector<std::string> LocalFileSystem::List(const std::string& folder,
                                               const std::string& ending) const {
    std::vector<std::string> names;
    if (const auto place = Find(folder)) {
        for (const auto& [folded, name] : NamesIn(*place).value_or(Names())) {
            if (folded.endsWith(Folded(ending))) {
                names.push_back(name);
            }
        }
    }
    return names;
}

std::string LocalFileSystem::OnThisMachine(const std::string& path) const {
    const auto place = FindOrName(path);
    return place ? place->string() : path;
}

}  // namespace trameli
