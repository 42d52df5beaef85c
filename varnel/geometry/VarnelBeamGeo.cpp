#include "varnel/geometry/VarnelBeamGeo.h"

#include <array>

#include "varnel/contracts/KzMath.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/geometry/VarnelStraight.h"

VarnelBeamGeo::VarnelBeamGeo(const VarnelBeamGeo &other) : VarnelLineHolder(other) {
    copy(other);
}

VarnelBeamGeo &VarnelBeamGeo::operator=(const VarnelBeamGeo &other) {
    copy(other);
    return *this;
}

std::vector<KzVector3D> VarnelBeamGeo::getCoordinatesOfPoints() const {
    std::vector<KzVector3D> coordinates;
    if (getNumLines() == 0) return coordinates;
    coordinates.reserve(getNumPoints());
    for (std::size_t i = 0; i < getNumPoints(); ++i) coordinates.push_back(getCoor(i));
    return coordinates;
}

void VarnelBeamGeo::addVertex(const KzVector3D &coordinates) {
    if (!firstVertex()) {
        setFirstVertex(coordinates);
    } else if (lines().empty()) {
        addLine(new VarnelStraight(*firstVertex(), coordinates));
    } else {
        addLine(new VarnelStraight(*lines().back(), new VarnelPoint(coordinates)));
    }
}

bool VarnelBeamGeo::isDegenerated() const {
    const double tolerance = KzVector3D::getTolerance();
    return tolerance * tolerance > getLength() || hasZeroLine();
}

KzVector3D VarnelBeamGeo::getCOG() const {
    const std::size_t n = getNumLines();  // one less than there are points: the last one is left out
    std::array<KzVector3D, 64> inPlace;
    std::vector<KzVector3D> onHeap(n > inPlace.size() ? n : 0);
    KzVector3D *points = onHeap.empty() ? inPlace.data() : onHeap.data();
    const KzMatrix44 base = getBase();
    for (std::size_t i = 0; i < n; ++i) points[i] = base.transform(getCoor(i));
    return base.transformBack(KzMath::polylineCentroid(points, n));
}
