#include "varnel/geometry/VarnelAreaPolygon.h"

VarnelAreaPolygon::VarnelAreaPolygon(const std::vector<KzVector3D> &points) {
    for (const KzVector3D &point : points) VarnelArea::addVertex(point);
    setChanged(true);
}

VarnelAreaPolygon &VarnelAreaPolygon::operator=(const VarnelAreaPolygon &other) {
    VarnelArea::operator=(other);
    return *this;
}
