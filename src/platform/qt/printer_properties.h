// The dialog for a printer's settings.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/printers.h"

namespace trameli {

/// What there is to choose from.
struct PropertyChoices {
    std::vector<std::pair<std::string, std::string>> Papers;  ///< keys and names
    bool CanColour = false;
};

/// Lets the user change `settings`, and their paper, over the window in front. True for OK; else
/// they are as they were. The caller's form may be gone afterwards.
bool AskProperties(PrinterSettings& settings, const std::string& printer,
                   const PropertyChoices& choices, const PropertyTexts& texts);

}  // namespace trameli
