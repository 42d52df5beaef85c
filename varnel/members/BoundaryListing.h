#ifndef VARNEL_MEMBERS_BOUNDARYLISTING_H
#define VARNEL_MEMBERS_BOUNDARYLISTING_H

#include <list>

#include "varnel/contracts/Export.h"

class VarnelLineBoundaryData;

namespace varnel {

using BoundaryList = std::list<VarnelLineBoundaryData *>;

/// Appends a record to a model's list of boundary data, and lets the record know: dying it leaves the list.
/// Null records are appended plainly.
VARNEL_EXPORT void list(VarnelLineBoundaryData *record, BoundaryList &entries);
/// Removes all entries of the record from the list.
VARNEL_EXPORT void unlist(VarnelLineBoundaryData *record, BoundaryList &entries);
/// Empties the list; its records no longer know it.
VARNEL_EXPORT void unlistAll(BoundaryList &entries);

}  // namespace varnel

#endif
