#include "varnel/loads/VarnelAreaLoad.h"

#include <utility>

#include "varnel/contracts/Shared.h"
#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelObjectVisitor.h"

VarnelAreaLoad::VarnelAreaLoad() = default;

VarnelAreaLoad::VarnelAreaLoad(const VarnelAreaLoad &other)
    : VarnelLoad(other), data_(other.data_), area_(other.area_ ? new VarnelArea(*other.area_) : nullptr) {
    varnel::acquire(area_);
}

VarnelAreaLoad &VarnelAreaLoad::operator=(const VarnelAreaLoad &other) {
    if (!other.area_) {
        dropArea();
    } else if (!area_) {
        area_ = new VarnelArea(*other.area_);
        varnel::acquire(area_);
        ownsArea_ = true;
    }
    VarnelLoad::operator=(other);
    data_ = other.data_;
    return *this;
}

VarnelAreaLoad::~VarnelAreaLoad() {
    dropArea();
}

void VarnelAreaLoad::setArea(VarnelArea *area) {
    if (ownsArea_) {
        varnel::acquire(area);
        varnel::letGo(area_);
    }
    area_ = area;
    setChanged(true);
}

void VarnelAreaLoad::setOwnsArea(bool ownsArea) {
    if (ownsArea && !ownsArea_) varnel::acquire(area_);
    if (!ownsArea && ownsArea_) varnel::letGo(area_);
    ownsArea_ = ownsArea;
}

KzMatrix44 VarnelAreaLoad::getBase() const {
    return area_ && data_.getType() == VarnelLoadData::LocalLoad ? area_->getBase() : KzMatrix44::getId();
}

int VarnelAreaLoad::getVisited(VarnelObjectVisitor *visitor) {
    return visitor ? visitor->visit(this) : 0;
}

bool VarnelAreaLoad::isInPlane(const KzMatrix44 &plane) const {
    return area_ && area_->isInPlane(plane);
}

bool VarnelAreaLoad::touchesPlane(const KzMatrix44 &plane) const {
    return area_ && area_->touchesPlane(plane);
}

KzVector3D VarnelAreaLoad::getCOG() {
    return area_ ? area_->getCOG() : KzVector3D();
}

void VarnelAreaLoad::dropArea() {
    if (ownsArea_) varnel::release(area_);
    area_ = nullptr;
}
