#include "support/live_memory.h"

#ifdef __SANITIZE_ADDRESS__
#include <cstddef>
/// Of the sanitizer's runtime; its header does not come with every compiler.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#else
#include <malloc.h>
#endif

namespace trameli {

std::int64_t LiveBytes() {
#ifdef __SANITIZE_ADDRESS__
    return static_cast<std::int64_t>(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = mallinfo2();
    return static_cast<std::int64_t>(info.uordblks + info.hblkhd);
#endif
}

}  // namespace trameli
