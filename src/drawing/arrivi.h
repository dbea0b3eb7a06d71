// The pictures that mark the finish.
#pragma once

#include <string>

#include "platform/picture.h"

namespace trameli {

inline constexpr int NumeroArrivi = 20;

/// One of them, 0 to NumeroArrivi - 1.
inline Picture ImmagineArrivo(int quale) {
    return {std::string("arrivo/") + (quale < 10 ? "0" : "") + std::to_string(quale) + ".svg"};
}

}  // namespace trameli
