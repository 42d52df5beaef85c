#ifndef VARNEL_CONTRACTS_LARGEPAGES_H
#define VARNEL_CONTRACTS_LARGEPAGES_H

#include <cstddef>

namespace varnel {

/// Tells the system that this memory will be filled, so that it may hand it out in large pages: taking in a
/// document is half a matter of page faults. Only a hint, without effect where there is no such thing.
void preferLargePages(void *memory, std::size_t size) noexcept;

}  // namespace varnel

#endif
