#include "varnel/geometry/VarnelCircle.h"

#include <cmath>

#include "varnel/contracts/KzMath.h"
#include "varnel/geometry/LinePoints.h"
#include "varnel/geometry/VarnelLineVisitor.h"

VarnelCircle::VarnelCircle(const KzVector3D &centre, const KzVector3D &start, const KzVector3D &end)
    : start_(new VarnelPoint(start)), end_(new VarnelPoint(end)), centre_(new VarnelPoint(centre)) {}

VarnelCircle::VarnelCircle(const VarnelCircle &other)
    : VarnelCircle(KzVector3D(), KzVector3D(), KzVector3D()) {
    copyGeometry(other);
}

double VarnelCircle::getRadius() const {
    return start_ ? start_->getCoor().distanceTo(centre_->getCoor()) : 0.0;
}

KzVector3D VarnelCircle::getNormal() const {
    if (!start_ || !end_) return KzVector3D();
    const KzVector3D u = getStartVec() - getCenterVec();
    const KzVector3D w = getEndVec() - getCenterVec();
    KzVector3D normal = u.crossProduct(w);
    if (normal.length() <= 1e-12 * u.length() * w.length()) return KzVector3D();
    return normal.normalize();
}

double VarnelCircle::getPhi() const {
    return start_ && end_ ? KzMath::getPhi(getStartVec(), getEndVec(), getCenterVec()) : 0.0;
}

void VarnelCircle::updateMinMax(KzVector3D *min, KzVector3D *max, const KzMatrix44 &matrix) const {
    // The ends alone: boxes follow the chords that copies and areas work with.
    varnel::updatePointMinMax(getStart(), min, max, matrix);
    varnel::updatePointMinMax(getEnd(), min, max, matrix);
}

bool VarnelCircle::isInPlane(const KzMatrix44 &plane) const {
    return varnel::isWithinPlane(getStart(), plane) && varnel::isWithinPlane(getEnd(), plane) &&
           varnel::isWithinPlane(centre_.get(), plane);
}

bool VarnelCircle::touchesPlane(const KzMatrix44 &plane) const {
    double height = 0.0;
    if (!start_ || !plane.cutWithLine(getCenterVec(), plane.getVector(2), height)) return false;
    // Exactly tangential, without a tolerance: an arc that lies in the plane or crosses it does not touch it.
    return std::fabs(height) == getRadius();
}

int VarnelCircle::operator==(const VarnelLine &other) const {
    if (this == &other) return 1;
    const auto *circle = dynamic_cast<const VarnelCircle *>(&other);
    return circle && *centre_ == *circle->centre_ && varnel::haveSameEnds(*this, other);
}

VarnelLine &VarnelCircle::operator=(const VarnelLine &other) {
    copyGeometry(dynamic_cast<const VarnelCircle &>(other));
    changed_ = true;
    return *this;
}

// The point's flag is set, not the arc's: every line that shares the point has to see the change.
void VarnelCircle::setStart(const KzVector3D &coordinates) {
    varnel::movePoint(getStart(), coordinates);
}

void VarnelCircle::setEnd(const KzVector3D &coordinates) {
    varnel::movePoint(getEnd(), coordinates);
}

KzVector3D VarnelCircle::getStartVec() const {
    return varnel::coordinatesOf(getStart());
}

KzVector3D VarnelCircle::getEndVec() const {
    return varnel::coordinatesOf(getEnd());
}

KzVector3D VarnelCircle::getCoor(double xi) const {
    const double degrees = getPhi() / KzMath::Pi_180;
    std::vector<KzVector3D> points{getStartVec()};
    // rotatePoints turns left-handed, so that the negative angle leads from the start to the end.
    KzMath::rotatePoints(points, getNormal(), getCenterVec(), -xi * degrees);
    return points.front();
}

std::vector<KzVector3D> VarnelCircle::getCoors() const {
    return {getCenterVec(), getStartVec(), getEndVec()};
}

void VarnelCircle::setCoors(const std::vector<KzVector3D> &coordinates) {
    if (coordinates.size() < 3) return;
    setCenter(coordinates[0]);
    setStart(coordinates[1]);
    setEnd(coordinates[2]);
}

int VarnelCircle::checkPointOn(const KzVector3D &place, double &xi) const {
    if (std::fabs(getRadius() - getCenterVec().distanceTo(place)) > 1e-7) return 0;
    // The angle has no sign: a place on the far side of the start counts like its mirror image.
    xi = KzMath::getPhi(getStartVec(), place, getCenterVec()) / getPhi();
    return 0.0 <= xi && xi <= 1.0;
}

bool VarnelCircle::getChanged() const {
    return changed_ || varnel::isChanged(getStart()) || varnel::isChanged(getEnd()) || centre_->getChanged();
}

void VarnelCircle::setChanged(bool changed) {
    changed_ = changed;
    varnel::setPointChanged(getStart(), changed);
    varnel::setPointChanged(getEnd(), changed);
    centre_->setChanged(changed);
}

bool VarnelCircle::distance(const KzVector3D &, const KzVector3D &, const KzMatrix44 &, double &) const {
    return false;
}

KzMatrix44 VarnelCircle::getBase(bool, bool, const KzVector3D &) {
    return KzMatrix44::getId();
}

bool VarnelCircle::hasSamePoints(const VarnelLine *other) const {
    const auto *circle = dynamic_cast<const VarnelCircle *>(other);
    // Meant the opposite way to operator==: arcs of one centre are no second edge over the same chord.
    return circle && *centre_ != *circle->centre_ && varnel::haveSameEnds(*this, *other);
}

int VarnelCircle::getVisited(VarnelLineVisitor *visitor) {
    return visitor ? visitor->visit(this) : 0;
}

/// The division into parts is left out: the copy of an arc comes undivided.
void VarnelCircle::copyGeometry(const VarnelCircle &other) {
    varnel::assignPoint(getStart(), other.getStart());
    varnel::assignPoint(getEnd(), other.getEnd());
    varnel::assignPoint(centre_.get(), other.centre_.get());
}

/// Whether start and end lie at exactly the same distance from the centre.
bool VarnelCircle::checkInvariant() const {
    return getRadius() == (getEndVec() - getCenterVec()).length();
}
