// The desktop-like dialogs that windows ask for.
#pragma once

#include "platform/colour.h"
#include "platform/dialogs.h"

namespace trameli::CommDlgs {

/// Lets the player choose a colour. True if one was chosen: then `destinazione` is that colour.
/// Events are served meanwhile, so that the window that asked may be gone afterwards.
bool ScegliColore(Dialogs& dialoghi, Colour& destinazione);

}  // namespace trameli::CommDlgs
