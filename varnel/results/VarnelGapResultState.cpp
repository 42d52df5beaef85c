#include "varnel/results/VarnelGapResultState.h"

#include "varnel/contracts/SysBase/InterfaceStressLocation.h"
#include "varnel/members/SharedLists.h"

VarnelGapResultState::VarnelGapResultState(const VarnelGapResultState &other)
    : Shared(other), number_(other.number_), stressLocations_(other.stressLocations_) {
    varnel::acquireAll(stressLocations_);
}

VarnelGapResultState &VarnelGapResultState::operator=(const VarnelGapResultState &other) {
    number_ = other.number_;
    varnel::shareList(stressLocations_, other.stressLocations_);
    return *this;
}

VarnelGapResultState::~VarnelGapResultState() {
    removeStressLocations();
}

void VarnelGapResultState::add(SysBase::InterfaceStressLocation *location) {
    if (!location) return;
    stressLocations_.push_back(location);
    varnel::acquire(location);
}

void VarnelGapResultState::removeStressLocations() {
    varnel::releaseAll(stressLocations_);
}
