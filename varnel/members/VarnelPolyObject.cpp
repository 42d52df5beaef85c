#include "varnel/members/VarnelPolyObject.h"

VarnelPolyObject::VarnelPolyObject(const VarnelPolyObject &other)
    : VarnelObject(other),
      VarnelPosition(),  // the number belongs to the original
      geometry_(other.getGeo() ? new VarnelArea(*other.getGeo()) : nullptr) {}

VarnelPolyObject::~VarnelPolyObject() = default;

void VarnelPolyObject::setArea(VarnelArea *area) {
    geometry_.replace(area);
    setChanged(true);
}

bool VarnelPolyObject::isInPlane(const KzMatrix44 &plane) const {
    return geometry_ && geometry_->isInPlane(plane);
}

bool VarnelPolyObject::touchesPlane(const KzMatrix44 &plane) const {
    return geometry_ && geometry_->touchesPlane(plane);
}

bool VarnelPolyObject::getChanged() const {
    return geometry_ && geometry_->getChanged();
}

void VarnelPolyObject::setChanged(bool changed) {
    if (geometry_) geometry_->setChanged(changed);
}

void VarnelPolyObject::copy(const VarnelPolyObject &other) {
    if (!other.getGeo()) {
        geometry_.reset();
        setArea(nullptr);
    } else if (!geometry_) {
        setArea(new VarnelArea(*other.getGeo()));
    }
}
