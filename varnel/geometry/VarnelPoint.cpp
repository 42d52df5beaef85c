#include "varnel/geometry/VarnelPoint.h"

#include <cmath>

#include "varnel/contracts/KzMatrix44.h"
#include "varnel/geometry/VarnelObjectVisitor.h"

void VarnelPoint::updateMinMax(KzVector3D *min, KzVector3D *max, const KzMatrix44 &matrix) const {
    if (min && max) matrix.transformBack(coordinates_).updateMinMax(*min, *max);
}

int VarnelPoint::getVisited(VarnelObjectVisitor *visitor) {
    return visitor ? visitor->visit(this) : 0;
}

bool VarnelPoint::isInPlane(const KzMatrix44 &plane) const {
    return 0.01 > std::fabs(plane.transform(coordinates_).getZ());
}
