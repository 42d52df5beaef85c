#include "varnel/loads/VarnelBeamLoad.h"

#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/geometry/VarnelObjectVisitor.h"
#include "varnel/members/VarnelBeam.h"

VarnelBeamLoad::VarnelBeamLoad() = default;

VarnelBeamLoad::VarnelBeamLoad(const VarnelBeamLoad &other)
    : VarnelLoad(other),
      data_(other.data_),
      clonedBeam_(other.getBeam() ? std::make_unique<VarnelBeam>(*other.getBeam()) : nullptr) {
    beam_.set(clonedBeam_.get());
}

VarnelBeamLoad &VarnelBeamLoad::operator=(const VarnelBeamLoad &other) {
    if (!other.getBeam()) {
        if (getBeam() == clonedBeam_.get()) clonedBeam_.reset();
        beam_.set(nullptr);
    } else if (!getBeam()) {
        clonedBeam_ = std::make_unique<VarnelBeam>(*other.getBeam());
        beam_.set(clonedBeam_.get());
    }
    VarnelLoad::operator=(other);
    data_ = other.data_;
    return *this;
}

VarnelBeamLoad::~VarnelBeamLoad() = default;

void VarnelBeamLoad::setData(const VarnelBeamLoadData &data) {
    data_ = data;
    setChanged(true);
}

void VarnelBeamLoad::setBeam(VarnelBeam *beam) {
    beam_.set(beam);
    VarnelLoad::setChanged(true);
}

VarnelBeamGeo *VarnelBeamLoad::getGeo() const {
    return getBeam() ? getBeam()->getGeo() : nullptr;
}

void VarnelBeamLoad::setForce(const KzVector3D &force) {
    data_.setForce(force);
    setChanged(true);
}

void VarnelBeamLoad::setMoment(const KzVector3D &moment) {
    data_.setMoment(moment);
    setChanged(true);
}

int VarnelBeamLoad::getVisited(VarnelObjectVisitor *visitor) {
    return visitor ? visitor->visit(this) : 0;
}

bool VarnelBeamLoad::isInPlane(const KzMatrix44 &plane) const {
    return getBeam() && getBeam()->isInPlane(plane);
}

bool VarnelBeamLoad::touchesPlane(const KzMatrix44 &plane) const {
    return getBeam() && getBeam()->touchesPlane(plane);
}

bool VarnelBeamLoad::getChanged() const {
    return VarnelLoad::getChanged() || (getBeam() && getBeam()->getChanged());
}

void VarnelBeamLoad::setChanged(bool changed) {
    VarnelLoad::setChanged(changed);
    if (getBeam()) getBeam()->setChanged(changed);
}

KzVector3D VarnelBeamLoad::getCOG() {
    return getGeo() ? getGeo()->getCOG() : KzVector3D();
}
