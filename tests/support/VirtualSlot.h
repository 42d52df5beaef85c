#ifndef VARNEL_TESTS_SUPPORT_VIRTUALSLOT_H
#define VARNEL_TESTS_SUPPORT_VIRTUALSLOT_H

#include <cstddef>
#include <cstring>

namespace varnel {

/// Slot of a virtual operation in the table of its class, from 0. A virtual destructor fills two slots
/// (Itanium ABI), so in a class that begins with its destructor the slot is also the position of the
/// operation counted from 1 with the destructor as the first.
template <class Operation>
int virtualSlot(Operation operation) {
    static_assert(sizeof operation >= sizeof(std::ptrdiff_t), "a pointer to member function");
    std::ptrdiff_t coded = 0;
    std::memcpy(&coded, &operation, sizeof coded);
    return static_cast<int>((coded - 1) / static_cast<std::ptrdiff_t>(sizeof(void *)));
}

}  // namespace varnel

#endif
