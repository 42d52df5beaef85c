#ifndef VARNEL_RESULTS_VARNELOBJECTGROUPRESULTSTATE_H
#define VARNEL_RESULTS_VARNELOBJECTGROUPRESULTSTATE_H

#include <list>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/Shared.h"
#include "varnel/geometry/PlaceTable.h"

class KzVector3D;
class VarnelNodeResultLocation;

/// Nodal results of an object group in one state: one record for each distinct position. Copies share the
/// records, which are owned by all of them together.
class VARNEL_EXPORT VarnelObjectGroupResultState : public varnel::Shared {
  public:
    VarnelObjectGroupResultState();
    VarnelObjectGroupResultState(const VarnelObjectGroupResultState &other);
    VarnelObjectGroupResultState &operator=(const VarnelObjectGroupResultState &other);
    ~VarnelObjectGroupResultState();

    /// Records in the order of their creation.
    const std::list<VarnelNodeResultLocation *> &getNodalResults() const { return nodalResults_; }
    /// The first record at exactly this position; made if there is none, so always for a NaN.
    VarnelNodeResultLocation *giveResultPosition(const KzVector3D &position);
    /// Gives up all records; those that a copy shares live on there.
    void clear();

  private:
    std::list<VarnelNodeResultLocation *> nodalResults_;
    varnel::PlaceTable<VarnelNodeResultLocation> places_;
};

#endif
