// Texts by number.
#pragma once

#include <string>
#include <string_view>

namespace trameli {

/// The texts that the program composes, by their numbers. There are no language files yet: every
/// text is empty, just as when its file is missing, and forms keep the captions they were made
/// with.
class Lingue {
public:
    /// The text of a four-digit number in the current language; empty if there is none.
    std::string TestoLingua(std::string_view id) const;
};

}  // namespace trameli
