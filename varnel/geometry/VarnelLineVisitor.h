#ifndef VARNEL_GEOMETRY_VARNELLINEVISITOR_H
#define VARNEL_GEOMETRY_VARNELLINEVISITOR_H

#include "varnel/contracts/Export.h"

class VarnelCircle;
class VarnelStraight;

/// Turns a VarnelLine back into its own class. Lines are lent for the call.
class VARNEL_EXPORT VarnelLineVisitor {
  public:
    virtual int visit(VarnelCircle *circle) = 0;
    virtual int visit(VarnelStraight *straight) = 0;

  protected:
    VarnelLineVisitor() = default;
    VarnelLineVisitor(const VarnelLineVisitor &) = default;
    VarnelLineVisitor &operator=(const VarnelLineVisitor &) = default;
    // Not virtual: nobody owns a visitor through this interface.
    ~VarnelLineVisitor() = default;
};

#endif
