// The real services of a desktop machine.
#pragma once

#include <functional>
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

    /// What is done if the display goes while this object lives, before the process ends with code
    /// 1. No window and no message can be shown then.
    void WhenDisplayIsLost(std::function<void()> action);

private:
    struct Native;
    std::shared_ptr<Native> native_;
};

}  // namespace trameli
