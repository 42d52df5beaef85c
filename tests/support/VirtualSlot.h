#ifndef VARNEL_TESTS_SUPPORT_VIRTUALSLOT_H
#define VARNEL_TESTS_SUPPORT_VIRTUALSLOT_H

#include <cstddef>
#include <cstring>
#include <type_traits>

namespace varnel {

/// Slot of a virtual operation in the table of its class, from 0; -1 if the operation is not virtual. A
/// virtual destructor fills two slots (Itanium ABI), so in a class that begins with its destructor the slot
/// is also the position of the operation counted from 1 with the destructor as the first. Inherited
/// operations count first: those of the first base, then the class's own; operations of further bases have a
/// table of their own.
///
/// One overload is picked by a cast to its pointer type, `virtualSlot<int(Argument *)>(&Class::visit)` being
/// the short form (`int(Argument *) const` for const ones). Protected operations are reached through a
/// derived class with a `using` declaration, private ones through a derived class that overrides them.
template <class Operation>
int virtualSlot(Operation operation) {
    static_assert(std::is_member_function_pointer<Operation>::value, "a pointer to member function");
    std::ptrdiff_t coded = 0;
    std::memcpy(&coded, &operation, sizeof coded);
    if ((coded & 1) == 0) return -1;
    return static_cast<int>((coded - 1) / static_cast<std::ptrdiff_t>(sizeof(void *)));
}

template <class Signature, class Class>
int virtualSlot(Signature Class::*operation) {
    return virtualSlot<Signature Class::*>(operation);
}

}  // namespace varnel

#endif
