// Files on the disk that are there whole or not at all.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace trameli {

/// Where a chain of links ends, be there a file or not; nothing if it never does.
std::optional<std::filesystem::path> EndOfLinks(std::filesystem::path place);
/// True if nothing is there, or an ordinary file that nobody made read-only.
bool MayBeReplaced(const std::filesystem::path& place);

/// Makes `bytes` the content of a file, whole or not at all, whatever happens in between. A file
/// that is there already keeps its mode, owner and group as far as the system allows it. False if
/// it could not be written; then the old one is as it was.
bool ReplaceWhole(const std::filesystem::path& place, std::string_view bytes);

enum class Creation { Made, Taken, Failed };

/// Makes a new file with `bytes`, whole or not at all. One that has the name already stays as it
/// is, and the name counts as taken.
Creation CreateWhole(const std::filesystem::path& place, std::string_view bytes);

/// Removes what was left of the files of a folder by processes that were killed on the way. Nobody
/// may be writing there.
void RemoveUnfinished(const std::filesystem::path& folder);

}  // namespace trameli
