// The lettering of the windows that greet and congratulate.
#pragma once

#include "platform/font.h"

namespace trameli {

/// The font of a speech balloon, in points.
inline Font Fumetto(double punti, bool grassetto = true) {
    return {"Comic Sans MS", punti, grassetto};
}

}  // namespace trameli
