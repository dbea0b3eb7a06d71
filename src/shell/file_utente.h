// The text of a user file: sixteen values, one a line, without keys. Nothing here touches a disk.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shell/impostazioni.h"

namespace trameli {

/// The record as a user file holds it: sixteen lines, each closed by CR LF.
std::string Testo(const Impostazioni& impostazioni);

/// The record that the text of a user file holds; nothing if the text ends early or a value cannot
/// be converted. What follows the sixteenth value is not looked at. A value outside its range takes
/// its default, so all values of the result are within theirs.
std::optional<Impostazioni> Leggi(std::string_view testo);

/// True if the text is a user file and nothing more: `Leggi` takes it, its flags are the words that
/// `Testo` writes, and behind the sixteenth value there are blanks at most. A list of any numbers
/// can be read as a record too.
bool Riconosci(std::string_view testo);

}  // namespace trameli
