// Names for users.
#pragma once

#include <string_view>

namespace trameli {

/// True for what can be, or can become, a user's name. It is the name of a file: what no file can
/// be called, what would lead into another folder and what would hide it is none. Letters of all
/// scripts are welcome.
bool NomeUtenteAmmesso(std::string_view nome);

}  // namespace trameli
