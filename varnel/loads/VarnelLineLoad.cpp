#include "varnel/loads/VarnelLineLoad.h"

#include "varnel/geometry/VarnelObjectVisitor.h"

VarnelLineLoad::VarnelLineLoad(VarnelLine *line) : line_(line) {
    setChanged(true);
}

VarnelLineLoad::VarnelLineLoad(const VarnelLineLoad &other)
    : VarnelLoad(other),
      VarnelStateObject(other),
      locsys_(other.locsys_),
      line_(other.line_ ? other.line_->clone() : nullptr),
      data_(other.data_) {}

VarnelLineLoad &VarnelLineLoad::operator=(const VarnelLineLoad &other) {
    if (other.line_ && line_.get() != other.line_.get()) {
        if (line_)
            *line_ = *other.line_;
        else
            line_.reset(other.line_->clone());
    }
    VarnelLoad::operator=(other);
    VarnelStateObject::operator=(other);
    locsys_ = other.locsys_;  // the type of the local system is meant to stay
    data_ = other.data_;
    return *this;
}

void VarnelLineLoad::setLocsys(const KzVector3D &locsys) {
    locsys_ = locsys;
    setChanged(true);
}

KzMatrix44 VarnelLineLoad::getBase() const {
    if (!line_) return KzMatrix44::getId();
    return line_->getBase(data_.getType() == VarnelLoadData::LocalLoad, true, locsys_);
}

int VarnelLineLoad::getVisited(VarnelObjectVisitor *visitor) {
    return visitor ? visitor->visit(this) : 0;
}

bool VarnelLineLoad::isInPlane(const KzMatrix44 &plane) const {
    return line_ && line_->isInPlane(plane);
}

bool VarnelLineLoad::touchesPlane(const KzMatrix44 &plane) const {
    return line_ && line_->touchesPlane(plane);
}

KzVector3D VarnelLineLoad::getCOG() {
    if (!line_) return KzVector3D();
    return (line_->getStartVec() + line_->getEndVec()) * 0.5;
}
