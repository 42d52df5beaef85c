#ifndef VARNEL_STAGES_VARNELPOINTLOADSTATE_H
#define VARNEL_STAGES_VARNELPOINTLOADSTATE_H

#include "varnel/contracts/Export.h"
#include "varnel/stages/VarnelObjectState.h"

class VarnelPointLoad;

/// What a construction stage records of a point load: whether it is active. The point load is shared.
class VARNEL_EXPORT VarnelPointLoadState : public VarnelObjectState {
  public:
    explicit VarnelPointLoadState(VarnelPointLoad *load);

    /// Null if the state stands for nothing.
    VarnelPointLoad *getPointLoad() const { return load_; }

    void getVisited(VarnelObjectStateVisitor *visitor) override;

  private:
    VarnelPointLoad *load_;
};

#endif
