#include "varnel/members/VarnelBoundaryData.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double smallestStiffness = 0.001;  // springs that are no stiffer are none

}  // namespace

void VarnelBoundaryData::setStiffness(const std::vector<double> &values) {
    const bool any = std::any_of(values.begin(), values.end(),
                                 [](double value) { return std::fabs(value) > smallestStiffness; });
    if (any) {
        checkStiffnessData();
        if (values.size() > 2) stiffnessData_->setDispStiff(KzVector3D(values[0], values[1], values[2]));
        if (values.size() > 5) stiffnessData_->setRotStiff(KzVector3D(values[3], values[4], values[5]));
    } else {
        resetStiffness();
    }
    changed_ = true;
}

std::vector<double> VarnelBoundaryData::getStiffness() const {
    KzVector3D displacement, rotation;
    if (stiffnessData_) {
        displacement = stiffnessData_->getDispStiff();
        rotation = stiffnessData_->getRotStiff();
    }
    return {displacement.getX(), displacement.getY(), displacement.getZ(),
            rotation.getX(),     rotation.getY(),     rotation.getZ()};
}

void VarnelBoundaryData::resetStiffness() {
    stiffnessData_.reset();
    changed_ = true;
}

void VarnelBoundaryData::setDispStiff(const KzVector3D &stiffness) {
    checkStiffnessData();
    stiffnessData_->setDispStiff(stiffness);
}

void VarnelBoundaryData::setRotStiff(const KzVector3D &stiffness) {
    checkStiffnessData();
    stiffnessData_->setRotStiff(stiffness);
}

void VarnelBoundaryData::copy(const VarnelBoundaryData &other) {
    dof_ = other.dof_;
    if (!other.stiffnessData_) {
        stiffnessData_.reset();
    } else if (this != &other) {
        stiffnessData_.reset(new VarnelBoundaryStiffnessData(*other.stiffnessData_));
    }
    name_ = other.name_;
    height_ = other.height_;
    specificWeight_ = other.specificWeight_;
    transferOwnWeight_ = other.transferOwnWeight_;
    changed_ = true;
}

void VarnelBoundaryData::checkStiffnessData() {
    if (!stiffnessData_) stiffnessData_.reset(new VarnelBoundaryStiffnessData);
}
