#include "varnel/loads/VarnelPointLoad.h"

#include "varnel/geometry/VarnelObjectVisitor.h"

VarnelPointLoad::VarnelPointLoad() : VarnelPointLoad(VarnelPointLoadData(), KzVector3D()) {}

VarnelPointLoad::VarnelPointLoad(const VarnelPointLoadData &data, const KzVector3D &coor)
    : point_(new VarnelPoint(coor)), data_(data) {}

VarnelPointLoad::VarnelPointLoad(const VarnelPointLoad &other)
    : VarnelLoad(other),
      VarnelStateObject(other),
      point_(new VarnelPoint(*other.point_)),
      data_(other.data_) {}

VarnelPointLoad &VarnelPointLoad::operator=(const VarnelPointLoad &other) {
    VarnelLoad::operator=(other);
    VarnelStateObject::operator=(other);
    *point_ = *other.point_;
    data_ = other.data_;
    return *this;
}

void VarnelPointLoad::setForce(const KzVector3D &force) {
    data_.setForce(force);
    setChanged(true);
}

void VarnelPointLoad::setMoment(const KzVector3D &moment) {
    data_.setMoment(moment);
    setChanged(true);
}

void VarnelPointLoad::setBase(const KzMatrix44 &matrix) {
    data_.setBase(matrix);
    setChanged(true);
}

int VarnelPointLoad::getVisited(VarnelObjectVisitor *visitor) {
    return visitor ? visitor->visit(this) : 0;
}
