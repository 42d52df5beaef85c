#ifndef VARNEL_GEOMETRY_VARNELPOINTBOUNDARYVISITOR_H
#define VARNEL_GEOMETRY_VARNELPOINTBOUNDARYVISITOR_H

#include "varnel/contracts/Export.h"

class VarnelPointBoundaryCircle;
class VarnelPointBoundaryRectan;

/// Turns a shaped VarnelPointBoundary back into its own class. Boundaries are lent for the call.
class VARNEL_EXPORT VarnelPointBoundaryVisitor {
  public:
    virtual void visit(VarnelPointBoundaryRectan *boundary) = 0;
    virtual void visit(VarnelPointBoundaryCircle *boundary) = 0;

  protected:
    VarnelPointBoundaryVisitor() = default;
    VarnelPointBoundaryVisitor(const VarnelPointBoundaryVisitor &) = default;
    VarnelPointBoundaryVisitor &operator=(const VarnelPointBoundaryVisitor &) = default;
    // Not virtual: nobody owns a visitor through this interface.
    ~VarnelPointBoundaryVisitor() = default;
};

#endif
