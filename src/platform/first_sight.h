// What there is to be got ready for the first window.
#pragma once

#include "platform/font.h"
#include "platform/picture.h"

namespace trameli {

/// What of the first window takes longest, for the desktop to get ready while the toolkit starts. A
/// wrong one costs time and nothing else.
struct FirstSight {
    Font Lettering;
    Picture Image;
};

}  // namespace trameli
