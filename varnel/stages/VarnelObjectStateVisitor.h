#ifndef VARNEL_STAGES_VARNELOBJECTSTATEVISITOR_H
#define VARNEL_STAGES_VARNELOBJECTSTATEVISITOR_H

#include "varnel/contracts/Export.h"

class VarnelBeamState;
class VarnelLineLoadState;
class VarnelPlateState;
class VarnelPointBoundaryState;
class VarnelPointLoadState;

/// Turns a VarnelObjectState back into its own class. States are lent for the call.
class VARNEL_EXPORT VarnelObjectStateVisitor {
  public:
    virtual ~VarnelObjectStateVisitor() = default;

    virtual void visit(VarnelLineLoadState *state) = 0;
    virtual void visit(VarnelPointLoadState *state) = 0;
    virtual void visit(VarnelPointBoundaryState *state) = 0;
    virtual void visit(VarnelBeamState *state) = 0;
    virtual void visit(VarnelPlateState *state) = 0;

  protected:
    VarnelObjectStateVisitor() = default;
    VarnelObjectStateVisitor(const VarnelObjectStateVisitor &) = default;
    VarnelObjectStateVisitor &operator=(const VarnelObjectStateVisitor &) = default;
};

#endif
