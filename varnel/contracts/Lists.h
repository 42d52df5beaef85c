#ifndef VARNEL_CONTRACTS_LISTS_H
#define VARNEL_CONTRACTS_LISTS_H

#include "varnel/contracts/Shared.h"

namespace varnel {

/// Deletes every object of a list of owned pointers and empties it. The list is empty before the first
/// destructor runs, so that a dying object never meets its dead neighbours. Null entries are skipped.
template <class List>
void deleteAll(List &list) {
    List dying;
    dying.swap(list);
    for (auto *object : dying) delete object;
}

/// Gives up this list's share of every object in it and empties it.
template <class List>
void releaseAll(List &list) {
    List dying;
    dying.swap(list);
    for (auto *object : dying) release(object);
}

/// Takes a share of every object of a list that was copied from another owner.
template <class List>
void acquireAll(const List &list) {
    for (const auto *object : list) acquire(object);
}

}  // namespace varnel

#endif
