#ifndef VARNEL_MEMBERS_SHAREDLISTS_H
#define VARNEL_MEMBERS_SHAREDLISTS_H

#include "varnel/contracts/Lists.h"

namespace varnel {

/// Makes `target` hold the same objects as `source`, each shared by one more owner, and gives up what it
/// held before. Both may be one list.
template <class List>
void shareList(List &target, const List &source) {
    List taken(source);
    acquireAll(taken);
    taken.swap(target);
    releaseAll(taken);
}

}  // namespace varnel

#endif
