#ifndef VARNEL_MEMBERS_VARNELPLATEEDGEDATA_H
#define VARNEL_MEMBERS_VARNELPLATEEDGEDATA_H

#include <memory>

#include "varnel/contracts/Export.h"
#include "varnel/members/VarnelLineBoundaryData.h"

/// What a plate knows of one of its edges: the joint and the support.
class VARNEL_EXPORT VarnelPlateEdgeData {
  public:
    VarnelPlateEdgeData() = default;
    VarnelPlateEdgeData(const VarnelPlateEdgeData &) = delete;
    VarnelPlateEdgeData &operator=(const VarnelPlateEdgeData &) = delete;

    /// Bit mask of the degrees of freedom released at the edge.
    int getJoint() const { return joint_; }
    void setJoint(int joint) { joint_ = joint; }
    /// Owned; null for an edge without a support.
    VarnelLineBoundaryData *getBoundary() const { return boundary_.get(); }
    /// Takes over; the former one is freed.
    void setBoundary(VarnelLineBoundaryData *boundary) {
        if (boundary != boundary_.get()) boundary_.reset(boundary);
    }

  private:
    int joint_ = 0;
    std::unique_ptr<VarnelLineBoundaryData> boundary_;
};

#endif
