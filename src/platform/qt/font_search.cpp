#include "platform/qt/font_search.h"

#include <fontconfig/fontconfig.h>

namespace trameli {

// What it reads stays with the library. If the toolkit asks before it is done, both read, and one
// of the two lists is thrown away.
FontSearch::FontSearch() : thread_([] { FcInit(); }) {}

}  // namespace trameli
