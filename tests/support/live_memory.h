// How much memory is in use.
#pragma once

#include <cstdint>

namespace trameli {

/// Bytes that were allocated on the heap and not given back, by the libraries too.
std::int64_t LiveBytes();

}  // namespace trameli
