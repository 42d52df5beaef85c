#ifndef VARNEL_GEOMETRY_VARNELPLATEPOSITION_H
#define VARNEL_GEOMETRY_VARNELPLATEPOSITION_H

#include "varnel/contracts/Export.h"
#include "varnel/geometry/VarnelPoint.h"

/// A point on a plate at which results are held. Copies as a point does.
class VARNEL_EXPORT VarnelPlatePosition : public VarnelPoint {
  public:
    VarnelPlatePosition(double x, double y, double z) noexcept : VarnelPoint(KzVector3D(x, y, z)) {}
};

#endif
