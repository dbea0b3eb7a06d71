// What the toolkit says while it starts.
#pragma once

#include <QtGlobal>

namespace trameli {

/// Holds back what the toolkit and the libraries below it say on standard error as long as this
/// lives, and passes it on then. If the toolkit gives up meanwhile, because there is no display to
/// connect to, one line takes the place of all that, and the process ends with code 2 instead of a
/// core dump.
class QuietStart {
public:
    /// `platform` is the kind of display that the command line asks for, or nothing.
    explicit QuietStart(const char* platform);
    ~QuietStart();
    QuietStart(const QuietStart&) = delete;
    QuietStart& operator=(const QuietStart&) = delete;

private:
    int held_;
    QtMessageHandler before_;
};

}  // namespace trameli
