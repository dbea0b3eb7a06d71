// Capital letters.
#pragma once

#include <string>
#include <string_view>

namespace trameli {

/// The text with its Latin, Greek and Cyrillic letters in capitals, whatever the system's locale.
/// Text and result are UTF-8; bytes that are none stay as they are. The result always equals the
/// text where case is disregarded, so that a user's name in capitals still names the user's file.
std::string Maiuscolo(std::string_view testo);

}  // namespace trameli
