#include "varnel/members/VarnelPointBoundary.h"

#include "varnel/geometry/VarnelObjectVisitor.h"

VarnelPointBoundary::VarnelPointBoundary(const KzVector3D &location, int dof,
                                         SysBase::ConstructionStage *stage)
    : geometry_(new VarnelPoint(KzVector3D())), assignedStage_(stage) {
    data_.setDof(dof);
    geometry_->setCoor(location);
}

VarnelPointBoundary::VarnelPointBoundary(const VarnelPointBoundary &other)
    : VarnelStateObject(other),
      VarnelObject(other),
      VarnelPosition(other),
      changed_(other.changed_),
      spacing_(other.spacing_),
      data_(other.data_),
      geometry_(new VarnelPoint(*other.geometry_)),
      assignedStage_(other.assignedStage_),
      typInd_(other.typInd_) {}

VarnelPointBoundary &VarnelPointBoundary::operator=(const VarnelPointBoundary &other) {
    VarnelStateObject::operator=(other);
    VarnelPosition::operator=(other);
    changed_ = other.changed_;
    spacing_ = other.spacing_;
    data_ = other.data_;
    *geometry_ = *other.geometry_;
    assignedStage_ = other.assignedStage_;
    typInd_ = other.typInd_;
    return *this;
}

VarnelPointBoundary::~VarnelPointBoundary() = default;

void VarnelPointBoundary::setDof(int dof) {
    data_.setDof(dof);
    changed_ = true;
}

KzMatrix44 VarnelPointBoundary::getBase() const {
    const KzMatrix44 *matrix = data_.getBaseMatrix();
    return matrix ? *matrix : KzMatrix44::getId();
}

bool VarnelPointBoundary::onlyRotatedInXY() const {
    const KzMatrix44 *matrix = data_.getBaseMatrix();
    return matrix && matrix->getVector(2).getZ() == 1.0;
}

void VarnelPointBoundary::setStiffness(const std::vector<double> &values) {
    data_.setStiffness(values);
    changed_ = true;
}

bool VarnelPointBoundary::getChanged() const {
    return changed_ || data_.getChanged() || geometry_->getChanged();
}

void VarnelPointBoundary::setChanged(bool changed) {
    geometry_->setChanged(changed);
    data_.setChanged(changed);
    changed_ = changed;
}

void VarnelPointBoundary::getVisited(VarnelPointBoundaryVisitor *) {}

int VarnelPointBoundary::getVisited(VarnelObjectVisitor *visitor) {
    return visitor ? visitor->visit(this) : 0;
}

bool VarnelPointBoundary::isInPlane(const KzMatrix44 &plane) const {
    return geometry_->isInPlane(plane);
}

bool VarnelPointBoundary::touchesPlane(const KzMatrix44 &plane) const {
    return geometry_->touchesPlane(plane);
}
