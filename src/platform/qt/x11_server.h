// What has to be said to an X server directly, since the toolkit has no words for it.
#pragma once

#include <xcb/xcb.h>

#include <QWindow>

namespace trameli {

/// The toolkit's connection; nothing where the desktop is not an X server.
xcb_connection_t* X11Server();

/// Asks once more for a window to be shown. One that is shown stays as it is.
void MapAgain(const QWindow& window);

}  // namespace trameli
