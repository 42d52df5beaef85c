#include "varnel/members/VarnelGap.h"

#include "varnel/geometry/VarnelArea.h"
#include "varnel/members/VarnelGapControl.h"

VarnelGap::VarnelGap() : control_(new VarnelGapControl()) {}

VarnelGap::VarnelGap(const VarnelGap &other) = default;

VarnelGap &VarnelGap::operator=(const VarnelGap &other) = default;

VarnelGap::~VarnelGap() = default;

void VarnelGap::setControl(VarnelGapControl *control) {
    control_.reset(control);
}

void VarnelGap::setPolyline(VarnelArea *polyline) {
    polyline_.reset(polyline);
}

void VarnelGap::add(const KzVector3D &vertex) {
    if (!polyline_) polyline_.reset(new VarnelArea());
    polyline_->addVertex(vertex);
}

std::size_t VarnelGap::numberOfLines() const {
    return polyline_ ? polyline_->getNumLines() : 0;
}

KzVector3D VarnelGap::getVertex(std::size_t index) const {
    return polyline_ ? polyline_->getCoor(index) : KzVector3D::getOrigin();
}

bool VarnelGap::getChanged() const {
    return changed_ || (polyline_ && polyline_->getChanged());
}

void VarnelGap::setChanged(bool changed) {
    changed_ = changed;
    if (polyline_) polyline_->setChanged(changed);
}
