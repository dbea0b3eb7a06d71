// Texts and letters.
#pragma once

#include <string>

namespace trameli {

/// The text in capitals, whatever the system's locale. The result always equals the text where case
/// is disregarded, so that a user's name in capitals still names the user's file: a letter whose
/// capital is more than one, or that shares it with another letter, stays. So does a text that is
/// not UTF-8.
std::string Capitals(const std::string& text);

}  // namespace trameli
