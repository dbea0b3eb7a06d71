// The real services of a desktop machine.
#pragma once

#include <memory>

#include "platform/first_sight.h"
#include "platform/services.h"

namespace trameli {

/// The connection to the desktop, made once at the start of the process and kept to its end. It
/// takes the arguments that belong to the window system out of the command line.
class Desktop {
public:
    /// Ends the process with one line on standard error and code 2 if no display can be opened.
    Desktop(int& argc, char** argv, const FirstSight& firstSight);
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /// The services; they live as long as this object.
    trameli::Services Services() const;

private:
    struct Native;
    std::unique_ptr<Native> native_;
};

}  // namespace trameli
