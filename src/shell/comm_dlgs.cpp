#include "shell/comm_dlgs.h"

#include <optional>

namespace trameli::CommDlgs {

bool ScegliColore(Dialogs& dialoghi, Colour& destinazione) {
    const std::optional<Colour> scelto = dialoghi.ChooseColour();
    destinazione = scelto.value_or(destinazione);
    return scelto.has_value();
}

}  // namespace trameli::CommDlgs
