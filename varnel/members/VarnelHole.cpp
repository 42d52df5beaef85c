#include "varnel/members/VarnelHole.h"

#include "varnel/geometry/VarnelObjectVisitor.h"

VarnelHole::VarnelHole() {
    setNumber(-1);
}

VarnelHole::VarnelHole(const VarnelHole &other) : VarnelHole() {
    copy(other);
}

VarnelHole &VarnelHole::operator=(const VarnelHole &other) {
    copy(other);
    return *this;
}

VarnelHole::~VarnelHole() = default;

void VarnelHole::copy(const VarnelHole &other) {
    name_ = other.name_;
    loadDistribution_ = other.loadDistribution_;
    VarnelPolyObject::copy(other);
}

void VarnelHole::setLoadDistribution(bool value) {
    loadDistribution_ = value;
    changed_ = true;
}

int VarnelHole::getVisited(VarnelObjectVisitor *visitor) {
    return visitor ? visitor->visit(this) : 0;
}

bool VarnelHole::getChanged() const {
    return VarnelPolyObject::getChanged() || changed_;
}

void VarnelHole::setChanged(bool changed) {
    VarnelPolyObject::setChanged(changed);
    changed_ = changed;
}
