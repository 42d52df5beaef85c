#include "varnel/members/VarnelJoint.h"

VarnelJoint::VarnelJoint(const VarnelJoint &other)
    : Shared(other), pos_(other.pos_), dof_(other.dof_), type_(other.type_) {
    setStiffness(other.getStiffness());
    setYield(other.getYield());
}

VarnelJoint &VarnelJoint::operator=(const VarnelJoint &other) {
    if (this == &other) return *this;
    pos_ = other.pos_;
    dof_ = other.dof_;
    type_ = other.type_;
    stiffness_.reset();
    yield_.reset();
    setStiffness(other.getStiffness());
    setYield(other.getYield());
    return *this;
}

void VarnelJoint::copySix(const double *values, std::unique_ptr<Six> &target) {
    if (!values) return;
    if (!target) target = std::make_unique<Six>();
    for (double &value : *target) value = *values++;
}
