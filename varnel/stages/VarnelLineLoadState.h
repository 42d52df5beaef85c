#ifndef VARNEL_STAGES_VARNELLINELOADSTATE_H
#define VARNEL_STAGES_VARNELLINELOADSTATE_H

#include "varnel/contracts/Export.h"
#include "varnel/stages/VarnelObjectState.h"

class VarnelLineLoad;

/// What a construction stage records of a line load: whether it is active. The line load is shared.
class VARNEL_EXPORT VarnelLineLoadState : public VarnelObjectState {
  public:
    explicit VarnelLineLoadState(VarnelLineLoad *load);

    /// Null if the state stands for nothing.
    VarnelLineLoad *getLineLoad() const { return load_; }

    void getVisited(VarnelObjectStateVisitor *visitor) override;

  private:
    VarnelLineLoad *load_;
};

#endif
