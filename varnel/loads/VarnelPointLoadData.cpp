#include "varnel/loads/VarnelPointLoadData.h"

VarnelPointLoadData::VarnelPointLoadData() : base_(std::make_unique<VarnelBase>()) {}

VarnelPointLoadData::VarnelPointLoadData(const KzVector3D &force) : VarnelPointLoadData() {
    force_ = force;
}

VarnelPointLoadData::VarnelPointLoadData(const VarnelPointLoadData &other) : VarnelLoadData(other) {
    *this = other;
}

VarnelPointLoadData &VarnelPointLoadData::operator=(const VarnelPointLoadData &other) {
    VarnelLoadData::operator=(other);
    force_ = other.force_;
    moment_ = other.moment_;
    isDispLoad_ = other.isDispLoad_;
    if (!other.base_) {
        base_.reset();
    } else {
        if (!base_) base_ = std::make_unique<VarnelBase>();
        *base_ = *other.base_;
    }
    return *this;
}

VarnelPointLoadData::~VarnelPointLoadData() = default;

void VarnelPointLoadData::setBase(VarnelBase *base) {
    if (base != base_.get()) base_.reset(base);
}

void VarnelPointLoadData::setBase(const KzMatrix44 &matrix) {
    if (!base_) base_ = std::make_unique<VarnelBase>();
    base_->setMatrix(matrix);
}

KzMatrix44 VarnelPointLoadData::getBaseMatrix() const {
    return base_ && base_->getMatrix() ? *base_->getMatrix() : KzMatrix44::getId();
}

double VarnelPointLoadData::getAngle(int index) const {
    return base_ ? base_->getAngle(index) : 0.0;
}

void VarnelPointLoadData::setAngle(double angle, int index) {
    if (base_) base_->setAngle(angle, index);
}

VarnelPointLoadData &VarnelPointLoadData::operator+=(const VarnelPointLoadData &other) {
    force_ += other.force_;
    moment_ += other.moment_;
    return *this;
}
