// Message boxes.
#pragma once

#include <string>

namespace trameli {

/// The service for dialogs. In a test the answers come from a script.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// Shows a message with the critical icon and one OK button; returns when it is closed. Other
    /// windows take no input meanwhile, but timers go on.
    virtual void Critical(const std::string& text, const std::string& title) = 0;
};

}  // namespace trameli
