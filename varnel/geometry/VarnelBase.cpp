#include "varnel/geometry/VarnelBase.h"

#include <cmath>

VarnelBase::VarnelBase(const VarnelBase &other)
    : changed_(other.changed_), matrix_(other.matrix_ ? new KzMatrix44(*other.matrix_) : nullptr) {}

VarnelBase &VarnelBase::operator=(const VarnelBase &other) {
    changed_ = true;  // also if the source is unchanged: it is this object that changes
    if (other.matrix_)
        setMatrix(*other.matrix_);
    else
        matrix_.reset();
    return *this;
}

double VarnelBase::getAngle(int axis) const noexcept {
    if (!matrix_) return 0.0;
    const KzVector3D x = matrix_->getVector(0);
    if (axis == 1) return std::atan2(x.getZ(), x.getX());
    if (axis == 2) return std::atan2(x.getY(), x.getX());
    return 0.0;
}

void VarnelBase::setAngle(double angle, int axis) {
    changed_ = true;
    if (angle == 0.0) {
        matrix_.reset();  // with any offset: an angle always begins a new frame
        return;
    }
    setMatrix(KzMatrix44::getId());
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    if (axis == 1) {
        // The frame turns left-handed about y: x moves towards +z. Meant, and getAngle reads it so.
        matrix_->setVector(0, KzVector3D(c, 0.0, s));
        matrix_->setVector(2, KzVector3D(-s, 0.0, c));
    } else if (axis == 2) {
        matrix_->setVector(0, KzVector3D(c, s, 0.0));
        matrix_->setVector(1, KzVector3D(-s, c, 0.0));
    }
}

void VarnelBase::setMatrix(const KzMatrix44 &matrix) {
    changed_ = true;
    if (matrix_)
        *matrix_ = matrix;
    else
        matrix_ = std::make_unique<KzMatrix44>(matrix);
}

KzVector3D VarnelBase::getOffset() const noexcept {
    return matrix_ ? matrix_->getVector(3) : KzVector3D();
}

void VarnelBase::setOffset(const KzVector3D &offset) {
    // The flag stays as it is, unlike with the other setters: moving an origin counts as no change.
    if (!matrix_) matrix_ = std::make_unique<KzMatrix44>();
    matrix_->setVector(3, offset);
}
