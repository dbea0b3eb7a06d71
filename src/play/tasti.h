// The keys of the play.
#pragma once

#include <optional>

#include "engine/tramelo.h"

namespace trameli {

/// Where a key leads, by its code: the cursor keys and those of the numeric pad in their places.
/// Nothing for any other key.
std::optional<Lato> DirezioneDi(int keyCode);

}  // namespace trameli
