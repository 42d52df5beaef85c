#ifndef VARNEL_GEOMETRY_VARNELOBJECTVISITOR_H
#define VARNEL_GEOMETRY_VARNELOBJECTVISITOR_H

#include "varnel/contracts/Export.h"

class VarnelAreaLoad;
class VarnelBeam;
class VarnelBeamLoad;
class VarnelHole;
class VarnelLineBoundary;
class VarnelLineLoad;
class VarnelLoadDistributionArea;
class VarnelPlate;
class VarnelPoint;
class VarnelPointBoundary;
class VarnelPointLoad;

/// Turns a VarnelObject back into its own class: VarnelObject::getVisited calls the operation of that
/// class. Objects are lent for the call; the result is handed back to the caller of getVisited.
class VARNEL_EXPORT VarnelObjectVisitor {
  public:
    virtual ~VarnelObjectVisitor() = default;

    virtual int visit(VarnelLoadDistributionArea *area) = 0;
    virtual int visit(VarnelBeamLoad *load) = 0;
    virtual int visit(VarnelAreaLoad *load) = 0;
    virtual int visit(VarnelLineLoad *load) = 0;
    virtual int visit(VarnelPointLoad *load) = 0;
    virtual int visit(VarnelPointBoundary *boundary) = 0;
    virtual int visit(VarnelLineBoundary *boundary) = 0;
    virtual int visit(VarnelHole *hole) = 0;
    virtual int visit(VarnelBeam *beam) = 0;
    virtual int visit(VarnelPlate *plate) = 0;
    virtual int visit(VarnelPoint *point) = 0;

  protected:
    VarnelObjectVisitor() = default;
    VarnelObjectVisitor(const VarnelObjectVisitor &) = default;
    VarnelObjectVisitor &operator=(const VarnelObjectVisitor &) = default;
};

#endif
