#pragma once

#include <cstddef>
#include <cstdint>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace quorin {

// Asks for the large-page backing of a buffer reserved for tens of megabytes, so that filling it
// takes one page fault per 2 MB instead of one per 4 KB (a third of loading a big index went to
// those faults). Only whole 2 MB pages inside the buffer are advised; a hint, which the system
// may ignore, and none where there is no such call.
inline void AdviseHugePages([[maybe_unused]] const void* data, [[maybe_unused]] size_t bytes) {
#if defined(__linux__) && defined(MADV_HUGEPAGE)
    constexpr uintptr_t kHugePage = uintptr_t{2} << 20;
    const auto start = reinterpret_cast<uintptr_t>(data);
    const uintptr_t first = (start + kHugePage - 1) & ~(kHugePage - 1);
    const uintptr_t last = (start + bytes) & ~(kHugePage - 1);
    if (last > first) {
        madvise(reinterpret_cast<void*>(first), last - first, MADV_HUGEPAGE);
    }
#endif
}

}  // namespace quorin
