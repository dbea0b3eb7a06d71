#include "platform/qt/quiet_start.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <QString>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "base/quoted.h"

namespace trameli {

namespace {

constexpr int NoDisplay = 2;

/// Where standard error leads while it is held. Shared by all, as standard error is, because the
/// toolkit calls its handler without anything to know it by.
int terminal = STDERR_FILENO;
/// The kind of display that the command line asks for; shared for the same reason.
const char* asked = nullptr;

/// What the display was looked for by.
std::string Surroundings() {
    std::string text;
    const auto tell = [&text](const char* name, const char* value) {
        if (value) {
            text += (text.empty() ? "" : ", ") + std::string(name) + " is " + Quoted(value);
        }
    };
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY"}) {
        tell(name, std::getenv(name));
    }
    if (text.empty()) {
        text = "neither DISPLAY nor WAYLAND_DISPLAY is set";
    }
    // The option counts, where both are there.
    constexpr const char* variable = "QT_QPA_PLATFORM";
    tell(asked ? "-platform" : variable, asked ? asked : std::getenv(variable));
    return text;
}

void Hear(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type != QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
        return;
    }
    dprintf(terminal, "trameli: no display can be opened: %s\n", Surroundings().c_str());
    _exit(NoDisplay);
}

}  // namespace

QuietStart::QuietStart(const char* platform)
    : held_(memfd_create("trameli", MFD_CLOEXEC)), before_(qInstallMessageHandler(Hear)) {
    asked = platform;
    constexpr int behindStandard = 3;
    const int kept = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, behindStandard);
    if (kept >= 0 && held_ >= 0) {
        terminal = kept;
        dup2(held_, STDERR_FILENO);
    }
}

QuietStart::~QuietStart() {
    qInstallMessageHandler(before_);
    if (terminal != STDERR_FILENO) {
        dup2(terminal, STDERR_FILENO);
        close(terminal);
        terminal = STDERR_FILENO;
    }
    std::array<char, BUFSIZ> said;
    off_t from = 0;
    for (ssize_t count = 0; (count = pread(held_, said.data(), said.size(), from)) > 0;) {
        from += write(STDERR_FILENO, said.data(), static_cast<std::size_t>(count));
    }
    close(held_);
}

}  // namespace trameli
