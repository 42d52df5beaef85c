#ifndef VARNEL_STAGES_VARNELPOINTBOUNDARYSTATE_H
#define VARNEL_STAGES_VARNELPOINTBOUNDARYSTATE_H

#include "varnel/contracts/Export.h"
#include "varnel/stages/VarnelObjectState.h"

class VarnelPointBoundary;

/// What a construction stage records of a point boundary: whether it is active. The point boundary is shared.
class VARNEL_EXPORT VarnelPointBoundaryState : public VarnelObjectState {
  public:
    explicit VarnelPointBoundaryState(VarnelPointBoundary *boundary);

    /// Null if the state stands for nothing.
    VarnelPointBoundary *getPointBoundary() const { return boundary_; }

    void getVisited(VarnelObjectStateVisitor *visitor) override;

  private:
    VarnelPointBoundary *boundary_;
};

#endif
