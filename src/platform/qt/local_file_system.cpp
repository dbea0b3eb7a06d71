#include "platform/qt/local_file_system.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QString>
#include <algorithm>
#include <map>
#include <set>

#include "platform/qt/convert.h"
#include "platform/qt/open_file.h"
#include "platform/qt/whole_file.h"
#include "platform/text.h"

namespace fs = std::filesystem;

namespace trameli {

namespace {

constexpr std::string_view UserDrive = "C:\\";
constexpr std::size_t DriveLength = UserDrive.size();

/// The folder on "C:\" for what belongs into the program folder, where nobody may write.
constexpr const char* OwnProgramFolder = "programma";

/// Longest path on the disk that is tried; longer ones are refused by the system anyway.
constexpr std::size_t LongestPath = 4000;

QString Folded(const std::string& name) {
    return ToQt(name).toCaseFolded();
}

bool IsAscii(const std::string& text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
}

/// True for two names that are the same where case is disregarded. Asked for every file of a
/// folder, so plain letters are compared as they are.
bool IsSame(const std::string& a, const std::string& b) {
    if (IsAscii(a) && IsAscii(b)) {
        // Not with the locale's letters: in some the small I is another one.
        return a.size() == b.size() && qstricmp(a.c_str(), b.c_str()) == 0;
    }
    return Folded(a) == Folded(b);
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

/// Calls `action` with each name in a folder that the program can name too. A folder that is not
/// there has none; false if the folder cannot be looked through.
template <typename Action>
bool ForEachName(const fs::path& folder, Action action) {
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (name.find('\\') == std::string::npos && (IsAscii(name) || IsUtf8(name))) {
            action(name);
        }
    }
    return !error || error == std::errc::no_such_file_or_directory ||
           error == std::errc::not_a_directory;
}

bool Exists(const fs::path& place) {
    std::error_code error;
    return fs::exists(fs::symlink_status(place, error));
}

std::string WithExtension(const std::string& name, std::string (*spelled)(const std::string&)) {
    const std::size_t dot = std::min(name.rfind('.'), name.size());
    return name.substr(0, dot) + spelled(name.substr(dot));
}

std::string SmallLetters(const std::string& text) {
    return FromQt(ToQt(text).toLower());
}

/// The entry of that name in any case, else the name as it is. Nothing if that cannot be told: a
/// file in another spelling must not be taken for a missing one.
std::optional<fs::path> Within(const fs::path& folder, const std::string& name) {
    // Folders can be large, so the spellings that files really have come first. Extensions in
    // capitals come from other systems, with files that are copied from there.
    const std::set<std::string> likely{WithExtension(name, Capitals), name,
                                       WithExtension(name, SmallLetters)};
    for (const std::string& spelling : likely) {
        if (Exists(folder / spelling)) {
            return folder / spelling;
        }
    }
    std::optional<std::string> first;
    const bool complete = ForEachName(folder, [&](const std::string& entry) {
        if (IsSame(entry, name) && (!first || entry < *first)) {
            first = entry;
        }
    });
    if (!complete) {
        return std::nullopt;
    }
    return folder / first.value_or(name);
}

/// Where a path leads, with `folder` for its drive; nothing if it names nothing.
std::optional<fs::path> Below(const fs::path& folder, std::string_view path) {
    const auto parts = PartsOf(path);
    std::optional<fs::path> place = folder;
    for (std::size_t i = 0; parts && place && i < parts->size(); ++i) {
        place = Within(*place, parts->at(i));
        if (place && place->native().size() > LongestPath) {
            place.reset();
        }
    }
    return parts ? place : std::nullopt;
}

/// True if a file would lie in that folder or below, whichever way its path goes.
bool IsBelow(const fs::path& place, const fs::path& folder) {
    std::error_code error;
    const fs::path from =
        fs::weakly_canonical(place, error).lexically_relative(fs::weakly_canonical(folder, error));
    return !from.empty() && *from.begin() != "..";
}

}  // namespace

std::vector<fs::path> LocalFileSystem::FoldersOf(std::string_view path) const {
    if (IsOnUserDrive(path)) {
        return {root_};
    }
    if (!IsInProgramFolder(path)) {
        return {};
    }
    // What a user puts beside the program counts before what came with it.
    std::vector<fs::path> folders{root_ / OwnProgramFolder};
    if (!program_.empty()) {
        folders.push_back(program_);
    }
    return folders;
}

std::vector<fs::path> LocalFileSystem::PlacesOf(const std::string& path) const {
    std::vector<fs::path> places;
    for (const fs::path& folder : FoldersOf(path)) {
        if (const auto place = Below(folder, path); place && Exists(*place)) {
            places.push_back(*place);
        }
    }
    return places;
}

std::optional<fs::path> LocalFileSystem::FindFile(const std::string& path) const {
    for (const fs::path& place : PlacesOf(path)) {
        std::error_code error;
        if (fs::is_regular_file(place, error)) {
            return place;
        }
    }
    return std::nullopt;
}

std::optional<fs::path> LocalFileSystem::PlaceToMake(const std::string& path) const {
    const auto folders = FoldersOf(path);
    return folders.empty() ? std::nullopt : Below(folders.front(), path);
}

std::optional<fs::path> LocalFileSystem::PlaceToWrite(const std::string& path) const {
    auto place = PlaceToMake(path);
    if (place && !Exists(*place)) {
        place->replace_filename(WithExtension(place->filename().string(), SmallLetters));
    }
    return place;
}

bool LocalFileSystem::FileExists(const std::string& path) const {
    return FindFile(path).has_value();
}

bool LocalFileSystem::IsLink(const std::string& path) const {
    const auto place = PlaceToWrite(path);
    std::error_code error;
    return place && fs::is_symlink(*place, error);
}

bool LocalFileSystem::FolderExists(const std::string& path) const {
    const auto places = PlacesOf(path);
    return std::any_of(places.begin(), places.end(), [](const fs::path& place) {
        std::error_code error;
        return fs::is_directory(place, error);
    });
}

bool LocalFileSystem::CreateFolder(const std::string& path) {
    const auto place = PlaceToMake(path);
    std::error_code error;
    return place && (fs::create_directories(*place, error), fs::is_directory(*place, error));
}

std::optional<std::string> LocalFileSystem::Read(const std::string& path, std::size_t limit) const {
    const auto place = FindFile(path);
    if (!place) {
        return std::nullopt;
    }
    // A pipe of that name must not hold the program up.
    const OpenFile file(*place, O_RDONLY | O_NONBLOCK);
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
    auto place = PlaceToWrite(path);
    if (!place) {
        return false;
    }
    std::error_code error;
    if (IsInProgramFolder(path)) {
        fs::create_directories(place->parent_path(), error);
    }
    // What a link points to is replaced, not the link.
    const fs::path named = *place;
    place = EndOfLinks(named);
    if (!place ||
        (*place != named && !fs::exists(*place, error) && !IsBelow(*place, named.parent_path()))) {
        return false;
    }
    return MayBeReplaced(*place) && ReplaceWhole(*place, bytes);
}

void LocalFileSystem::Tidy(const std::string& folder) {
    if (const auto place = PlaceToMake(folder)) {
        RemoveUnfinished(*place);
    }
}

std::vector<std::string> LocalFileSystem::List(const std::string& folder,
                                               const std::string& ending) const {
    const QString foldedEnding = Folded(ending);
    std::map<QString, std::string> names;
    for (const fs::path& place : PlacesOf(folder)) {
        std::map<QString, std::string> here;
        ForEachName(place, [&](const std::string& name) {
            const QString folded = Folded(name);
            if (!folded.endsWith(foldedEnding)) {
                return;
            }
            const auto [first, isNew] = here.try_emplace(folded, name);
            if (!isNew && name < first->second) {
                first->second = name;
            }
        });
        names.merge(here);
    }
    std::vector<std::string> sorted;
    for (auto& [folded, name] : names) {
        sorted.push_back(std::move(name));
    }
    return sorted;
}

std::string LocalFileSystem::OnThisMachine(const std::string& path) const {
    auto place = FindFile(path);
    if (!place) {
        place = PlaceToWrite(path);
    }
    const auto folders = FoldersOf(path);
    if (const auto parts = folders.empty() ? std::nullopt : PartsOf(path); !place && parts) {
        // A folder that cannot be looked through keeps to itself how its files are spelled.
        place = folders.front();
        for (const std::string& part : *parts) {
            *place /= part;
        }
    }
    return place ? place->string() : path;
}

}  // namespace trameli
