// How the bytes of a text file are to be read.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace trameli {

/// The text of a file in UTF-8. A byte-order mark goes; bytes that are not valid UTF-8 throughout
/// are those of an older editor, and are read as Windows-1252.
std::string TestoUtf8(std::string_view byte);

/// The first characters of a text in UTF-8, so many at the most.
std::string_view PrimiCaratteri(std::string_view testo, std::size_t quanti);

}  // namespace trameli
