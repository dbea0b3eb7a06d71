#include "platform/qt/environment.h"

#include <pwd.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace fs = std::filesystem;

namespace trameli {

namespace {

std::string LocaleOf(const char* category) {
    for (const char* name : {"LC_ALL", category, "LANG"}) {
        if (const char* value = std::getenv(name); value && *value) {
            return value;
        }
    }
    return {};
}

}  // namespace

fs::path UserDataFolder() {
    const char* data = std::getenv("XDG_DATA_HOME");
    if (data && fs::path(data).is_absolute()) {
        return fs::path(data) / "trameli";
    }
    const char* home = std::getenv("HOME");
    if (!home || !*home) {
        const passwd* user = getpwuid(getuid());
        home = user ? user->pw_dir : "/";
    }
    return fs::path(home) / ".local" / "share" / "trameli";
}

fs::path ThisExecutable() {
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error);
}

fs::path FindProgramFolder(const fs::path& executable) {
    // Tests lie elsewhere than the game and find its files all the same. What is beside a program
    // comes first, so that an old build never takes the place of what belongs to it.
    const fs::path installed = executable.parent_path().parent_path() / "share" / "trameli";
    for (const fs::path& folder : {installed, fs::path(TRAMELI_BUILT_PROGRAM_FOLDER)}) {
        std::error_code error;
        if (folder.is_absolute() && fs::is_directory(folder, error)) {
            return folder;
        }
    }
    return {};
}

std::string LocaleOfMessages() {
    return LocaleOf("LC_MESSAGES");
}

std::string LocaleOfPaper() {
    return LocaleOf("LC_PAPER");
}

void OutliveFileSizeLimit() {
    // Not ignored: that would hold for the programs too that open documents.
    struct sigaction nothing {};
    nothing.sa_handler = [](int) {};
    nothing.sa_flags = SA_RESTART;
    sigaction(SIGXFSZ, &nothing, nullptr);
}

}  // namespace trameli
