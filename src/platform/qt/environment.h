// What a process finds around it.
#pragma once

#include <filesystem>
#include <string>

namespace trameli {

/// The folder `trameli` in the user's data folder: $XDG_DATA_HOME if that is an absolute path,
/// else .local/share in the home folder.
std::filesystem::path UserDataFolder();

/// The program folder of an executable: share/trameli beside its own folder if the program is
/// installed or lies where it was built, else the one that was made when it was built. Empty if
/// neither exists.
std::filesystem::path FindProgramFolder(const std::filesystem::path& executable);
/// The file that this process runs.
std::filesystem::path ThisExecutable();

/// The language of messages, as every program of the system finds it: $LC_ALL, $LC_MESSAGES or
/// $LANG, the first that is set and not empty. Empty if none is.
std::string LocaleOfMessages();
/// The country whose paper is used, found in the same way: $LC_ALL, $LC_PAPER or $LANG.
std::string LocaleOfPaper();

/// Lets a write beyond the limit for the size of files fail as on a full disk. By itself the system
/// would end the process there.
void OutliveFileSizeLimit();

}  // namespace trameli
