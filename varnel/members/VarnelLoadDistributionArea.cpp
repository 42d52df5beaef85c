#include "varnel/members/VarnelLoadDistributionArea.h"

#include "varnel/geometry/VarnelObjectVisitor.h"

VarnelLoadDistributionArea::VarnelLoadDistributionArea(const VarnelLoadDistributionArea &other)
    : VarnelPolyObject() {
    copy(other);
}

VarnelLoadDistributionArea &VarnelLoadDistributionArea::operator=(const VarnelLoadDistributionArea &other) {
    copy(other);
    return *this;
}

VarnelLoadDistributionArea::~VarnelLoadDistributionArea() = default;

void VarnelLoadDistributionArea::copy(const VarnelLoadDistributionArea &other) {
    name_ = other.name_;
    VarnelPolyObject::copy(other);
}

void VarnelLoadDistributionArea::updateMinMax(KzVector3D *min, KzVector3D *max,
                                              const KzMatrix44 &matrix) const {
    if (getGeo()) getGeo()->updateMinMax(min, max, matrix);
}

int VarnelLoadDistributionArea::getVisited(VarnelObjectVisitor *visitor) {
    return visitor ? visitor->visit(this) : 0;
}

bool VarnelLoadDistributionArea::getChanged() const {
    return VarnelPolyObject::getChanged() || changed_;
}

void VarnelLoadDistributionArea::setChanged(bool changed) {
    VarnelPolyObject::setChanged(changed);
    changed_ = changed;
}

void VarnelLoadDistributionArea::setName(const std::string &name) {
    name_ = name;
    changed_ = true;
}
