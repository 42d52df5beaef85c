#ifndef VARNEL_PROCESS_VARNELMEDIATOR_H
#define VARNEL_PROCESS_VARNELMEDIATOR_H

#include "varnel/contracts/Export.h"

class VarnelSubSystem;

/// For hosts that keep a view of a subsystem in step with its model. The library neither makes nor calls one.
class VARNEL_EXPORT VarnelMediator {
  public:
    /// Does nothing here.
    virtual void updateSubSystem(VarnelSubSystem *subSystem);
};

#endif
