#include "varnel/contracts/KzMatrix44.h"

#include <cmath>

#include "varnel/contracts/Rotation.h"

KzMatrix44 KzMatrix44::operator*(const KzMatrix44 &child) const noexcept {
    KzMatrix44 product;
    for (std::size_t axis = 0; axis < 3; ++axis) product.setVector(axis, turnBack(child.getVector(axis)));
    product.setVector(3, transformBack(child.getVector(3)));
    return product;
}

KzMatrix44 &KzMatrix44::rotate(double x, double y, double z, double angle, double tol) noexcept {
    KzVector3D axis(x, y, z);
    const double length = axis.length();
    const bool usable = length >= tol && length > 0.0 && std::isfinite(length);
    if (!usable) return *this;
    const varnel::Rotation rotation(axis.normalize(), angle);
    for (std::size_t i = 0; i < 3; ++i) setVector(i, rotation.apply(getVector(i)));
    return *this;
}

bool KzMatrix44::cutWithLine(const KzVector3D &point, const KzVector3D &direction, double &t) const noexcept {
    const KzVector3D normal = getVector(2);
    const double slope = normal.dotProduct(direction);
    const bool cuts = std::fabs(slope) > 1e-12 * normal.length() * direction.length();
    if (cuts) t = (getVector(3) - point).dotProduct(normal) / slope;
    return cuts;
}
