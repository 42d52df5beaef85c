#include "varnel/geometry/VarnelAreaRectangle.h"

#include <cmath>

VarnelAreaRectangle::VarnelAreaRectangle(const KzVector3D &corner0, const KzVector3D &corner1,
                                         const KzVector3D &corner2, const KzVector3D &corner3) {
    for (const KzVector3D &corner : {corner0, corner1, corner2, corner3}) VarnelArea::addVertex(corner);
    setChanged(true);
}

VarnelAreaRectangle::VarnelAreaRectangle(const KzVector3D &origin, double width, double height, double angle)
    : VarnelAreaRectangle(KzVector3D(0.0, 0.0, 0.0), KzVector3D(1.0, 0.0, 0.0), KzVector3D(1.0, 1.0, 0.0),
                          KzVector3D(0.0, 1.0, 0.0)) {
    setAreaRectangle(origin, width, height, angle);
}

VarnelAreaRectangle &VarnelAreaRectangle::operator=(const VarnelAreaRectangle &other) {
    VarnelArea::operator=(other);
    return *this;
}

void VarnelAreaRectangle::getAreaRectangle(KzVector3D &origin, double &width, double &height,
                                           double &angle) const {
    origin = getCoor(0);
    const KzVector3D a = getCoor(1) - origin;
    const KzVector3D b = getCoor(3) - origin;
    angle = std::atan2(a.getY(), a.getX());
    width = a.length();
    height = b.length();
}

void VarnelAreaRectangle::setAreaRectangle(const KzVector3D &origin, double width, double height,
                                           double angle) {
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const KzVector3D alongWidth(width * c, width * s, 0.0);
    const KzVector3D alongHeight(-(height * s), height * c, 0.0);
    setCoor(0, origin);
    setCoor(1, origin + alongWidth);
    setCoor(2, origin + alongWidth + alongHeight);
    setCoor(3, origin + alongHeight);
    setChanged(true);
}
