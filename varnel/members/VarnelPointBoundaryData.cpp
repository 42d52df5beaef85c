#include "varnel/members/VarnelPointBoundaryData.h"

#include "varnel/contracts/KzMatrix44.h"

VarnelPointBoundaryData::VarnelPointBoundaryData(int dof, const std::vector<double> &stiffness)
    : VarnelBoundaryData(dof) {
    setStiffness(stiffness);
}

VarnelPointBoundaryData::VarnelPointBoundaryData(const VarnelPointBoundaryData &other)
    : VarnelBoundaryData() {
    copy(other);
}

VarnelPointBoundaryData &VarnelPointBoundaryData::operator=(const VarnelPointBoundaryData &other) {
    copy(other);
    return *this;
}

void VarnelPointBoundaryData::copy(const VarnelPointBoundaryData &other) {
    VarnelBoundaryData::copy(other);
    if (this != &other) {
        const VarnelBoundaryStiffnessData *springs = getStiffnessData();
        const bool none = springs && springs->getDispStiff() == KzVector3D::getOrigin() &&
                          springs->getRotStiff() == KzVector3D::getOrigin();
        if (none) setStiffnessData(nullptr);  // springs of zeros are none, and a copy has none
    }
    base_ = other.base_;
}

void VarnelPointBoundaryData::setAngle(double angle, int axis) {
    // Unlike a frame by itself, which a zero angle removes: from here on the support has one.
    if (angle == 0.0)
        base_.setMatrix(KzMatrix44::getId());
    else
        base_.setAngle(angle, axis);
}

bool VarnelPointBoundaryData::getChanged() const {
    return VarnelBoundaryData::getChanged() || base_.getChanged();
}

void VarnelPointBoundaryData::setChanged(bool changed) {
    VarnelBoundaryData::setChanged(changed);
    base_.setChanged(changed);
}
