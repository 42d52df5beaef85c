#include "varnel/geometry/VarnelStraight.h"

#include "varnel/contracts/KzMath.h"
#include "varnel/geometry/LinePoints.h"
#include "varnel/geometry/VarnelLineVisitor.h"

VarnelStraight::VarnelStraight(const KzVector3D &start, const KzVector3D &end)
    : start_(new VarnelPoint(start)), end_(new VarnelPoint(end)) {}

VarnelStraight::VarnelStraight(VarnelPoint *start, VarnelPoint *end) : start_(start), end_(end) {}

VarnelStraight::VarnelStraight(const VarnelLine &previous, VarnelPoint *end)
    : start_(previous.getEnd()), end_(end) {}

VarnelStraight::VarnelStraight(const VarnelStraight &other) : VarnelStraight(KzVector3D(), KzVector3D()) {
    copyGeometry(other);
}

KzVector3D VarnelStraight::getDir() const {
    return start_ && end_ ? end_->getCoor() - start_->getCoor() : KzVector3D();
}

void VarnelStraight::updateMinMax(KzVector3D *min, KzVector3D *max, const KzMatrix44 &matrix) const {
    varnel::updatePointMinMax(getStart(), min, max, matrix);
    varnel::updatePointMinMax(getEnd(), min, max, matrix);
}

bool VarnelStraight::isInPlane(const KzMatrix44 &plane) const {
    return varnel::isWithinPlane(getStart(), plane) && varnel::isWithinPlane(getEnd(), plane);
}

bool VarnelStraight::touchesPlane(const KzMatrix44 &plane) const {
    return varnel::isPointOfPlane(getStart(), plane) || varnel::isPointOfPlane(getEnd(), plane);
}

int VarnelStraight::operator==(const VarnelLine &other) const {
    return this == &other || VarnelStraight::hasSamePoints(&other);
}

VarnelLine &VarnelStraight::operator=(const VarnelLine &other) {
    copyGeometry(dynamic_cast<const VarnelStraight &>(other));
    changed_ = true;
    return *this;
}

// The point's flag is set, not the line's: every line that shares the point has to see the change.
void VarnelStraight::setStart(const KzVector3D &coordinates) {
    varnel::movePoint(getStart(), coordinates);
}

void VarnelStraight::setEnd(const KzVector3D &coordinates) {
    varnel::movePoint(getEnd(), coordinates);
}

KzVector3D VarnelStraight::getStartVec() const {
    return varnel::coordinatesOf(getStart());
}

KzVector3D VarnelStraight::getEndVec() const {
    return varnel::coordinatesOf(getEnd());
}

KzVector3D VarnelStraight::getCoor(double xi) const {
    return getStartVec() + xi * getDir();
}

std::vector<KzVector3D> VarnelStraight::getCoors() const {
    return {getStartVec(), getEndVec()};
}

void VarnelStraight::setCoors(const std::vector<KzVector3D> &coordinates) {
    if (coordinates.size() < 2) return;
    setStart(coordinates[0]);
    setEnd(coordinates[1]);
}

int VarnelStraight::checkPointOn(const KzVector3D &place, double &xi) const {
    const KzVector3D direction = getDir();
    const KzVector3D toStart = getStartVec() - place;
    if (!direction.isCollinear(toStart)) return 0;
    // Lengths have no sign: a place behind the start is accepted with the station of its mirror image.
    xi = toStart.length() / direction.length();
    return 0.0 <= xi && xi <= 1.0;
}

bool VarnelStraight::getChanged() const {
    return changed_ || varnel::isChanged(getStart()) || varnel::isChanged(getEnd());
}

void VarnelStraight::setChanged(bool changed) {
    changed_ = changed;
    varnel::setPointChanged(getStart(), changed);
    varnel::setPointChanged(getEnd(), changed);
}

double VarnelStraight::getLength() const {
    return start_ && end_ ? start_->getCoor().distanceTo(end_->getCoor()) : 0.0;
}

bool VarnelStraight::distance(const KzVector3D &point, const KzVector3D &direction, const KzMatrix44 &plane,
                              double &result) const {
    if (!start_ || !end_) return false;
    double along = 0.0;
    double hit = 0.0;
    if (!KzMath::lineIntersection3D(plane.transform(getStartVec()), plane.transform(getEndVec()),
                                    plane.transform(point), plane.transform(point + direction), along, hit,
                                    KzMath::getEpsReal())) {
        return false;
    }
    if (!(0.0 <= along && along <= 1.0)) return false;
    result = hit;
    return true;
}

KzMatrix44 VarnelStraight::getBase(bool localBase, bool useReference, const KzVector3D &reference) {
    KzMatrix44 base = KzMatrix44::getId();
    if (!localBase || !useReference) return base;
    const KzVector3D x = getDir().normalize();
    KzVector3D y = reference.crossProduct(x);
    if (y.isNull()) {
        y.setXYZ(0.0, 1.0, 0.0);
    } else {
        y.normalize();
    }
    base.setVector(0, x);
    base.setVector(1, y);
    base.setVector(2, x.crossProduct(y));
    return base;  // the origin stays zero: the frame turns loads and supports, it does not place them
}

bool VarnelStraight::hasSamePoints(const VarnelLine *other) const {
    return dynamic_cast<const VarnelStraight *>(other) && varnel::haveSameEnds(*this, *other);
}

int VarnelStraight::getVisited(VarnelLineVisitor *visitor) {
    return visitor ? visitor->visit(this) : 0;
}

void VarnelStraight::copyGeometry(const VarnelStraight &other) {
    varnel::assignPoint(getStart(), other.getStart());
    varnel::assignPoint(getEnd(), other.getEnd());
    copy(other);
}

/// Ends of the straight on the global axis along which it spans most, and the other place on that axis.
void VarnelStraight::maxSpan(double *span, const KzVector3D *other, double *otherValue) const {
    const KzVector3D d = getDir();
    double (KzVector3D::*component)() const noexcept = &KzVector3D::getX;
    // Compared with their signs: a long span against an axis loses to a short one along another.
    if (d.getY() > d.getX() && d.getY() >= d.getZ()) component = &KzVector3D::getY;
    if (d.getZ() > d.getX() && d.getZ() > d.getY()) component = &KzVector3D::getZ;
    span[0] = (getStartVec().*component)();
    span[1] = (getEndVec().*component)();
    if (other && otherValue) *otherValue = ((*other).*component)();
}
