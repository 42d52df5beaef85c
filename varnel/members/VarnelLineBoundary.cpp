#include "varnel/members/VarnelLineBoundary.h"

#include "varnel/geometry/VarnelObjectVisitor.h"

VarnelLineBoundary::VarnelLineBoundary(VarnelLineBoundary &other)
    : VarnelObject(other),
      geometry_(other.geometry_ ? other.geometry_->clone() : nullptr),
      data_(other.data_) {}

VarnelLineBoundary::~VarnelLineBoundary() {
    geometry_.reset();  // the line goes before the values
}

void VarnelLineBoundary::setLocal(bool local) {
    data_.setLocal(local);
    changed_ = true;
}

KzMatrix44 VarnelLineBoundary::getBase() const {
    return geometry_ ? geometry_->getBase(getLocal(), true, getLocsys()) : KzMatrix44::getId();
}

int VarnelLineBoundary::getVisited(VarnelObjectVisitor *visitor) {
    return visitor ? visitor->visit(this) : 0;
}

bool VarnelLineBoundary::isInPlane(const KzMatrix44 &plane) const {
    return geometry_ && geometry_->isInPlane(plane);
}

bool VarnelLineBoundary::touchesPlane(const KzMatrix44 &plane) const {
    return geometry_ && geometry_->touchesPlane(plane);
}

bool VarnelLineBoundary::getChanged() const {
    return changed_ || data_.getChanged() || (geometry_ && geometry_->getChanged());
}

void VarnelLineBoundary::setChanged(bool changed) {
    data_.setChanged(changed);
    if (geometry_) geometry_->setChanged(changed);
    changed_ = changed;
}
