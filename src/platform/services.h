// The machine under the program.
#pragma once

#include <string>

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/documents.h"
#include "platform/file_system.h"
#include "platform/instances.h"
#include "platform/printers.h"
#include "platform/screen.h"
#include "platform/sounds.h"

namespace trameli {

/// Everything that a program asks of its machine. All of it must outlive the program.
struct Services {
    trameli::Clock& Clock;
    trameli::Screen& Screen;
    trameli::FileSystem& FileSystem;
    trameli::Dialogs& Dialogs;
    trameli::Instances& Instances;
    trameli::Sounds& Sounds;
    trameli::Documents& Documents;
    trameli::Printers& Printers;
    /// What the desktop says of its language, for instance "de_DE.UTF-8"; may be empty.
    std::string Locale;
    /// What the desktop writes between a number's whole part and the rest.
    std::string DecimalSeparator = ".";
};

}  // namespace trameli
