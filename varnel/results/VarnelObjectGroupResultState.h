#ifndef VARNEL_RESULTS_VARNELOBJECTGROUPRESULTSTATE_H
#define VARNEL_RESULTS_VARNELOBJECTGROUPRESULTSTATE_H

#include <list>

#include "varnel/contracts/CoordinateHash.h"
#include "varnel/contracts/Export.h"
#include "varnel/contracts/Shared.h"
#include "varnel/geometry/PointWatch.h"

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
    void clear();

  private:
    VarnelNodeResultLocation *find(const KzVector3D &position);
    void enter(VarnelNodeResultLocation *record);
    void tabulate();

    std::list<VarnelNodeResultLocation *> nodalResults_;

    // Made anew after a record was moved. A record has one watch only: where another state watches it, this
    // one walks its list instead.
    varnel::CoordinateIndex<VarnelNodeResultLocation> table_;
    varnel::PointWatch watch_;
    bool tabulable_ = true;
};

#endif
