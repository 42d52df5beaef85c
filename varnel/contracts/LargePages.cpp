#include "varnel/contracts/LargePages.h"

#if defined(__linux__)
#include <sys/mman.h>

#include <cstdint>
#endif

namespace varnel {

#if defined(__linux__) && defined(MADV_HUGEPAGE)

void preferLargePages(void *memory, std::size_t size) noexcept {
    constexpr std::uintptr_t page = std::uintptr_t{1} << 21;
    const auto start = reinterpret_cast<std::uintptr_t>(memory);
    const std::uintptr_t first = (start + page - 1) & ~(page - 1);
    const std::uintptr_t last = (start + size) & ~(page - 1);
    if (first < last)
        static_cast<void>(madvise(reinterpret_cast<void *>(first), last - first, MADV_HUGEPAGE));
}

#else

void preferLargePages(void *, std::size_t) noexcept {}

#endif

}  // namespace varnel
