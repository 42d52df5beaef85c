#include "varnel/results/VarnelBeamResultState.h"

#include "varnel/contracts/KzBeamStressResultantsLocation.h"
#include "varnel/members/SharedLists.h"
#include "varnel/results/VarnelBeamDisplacementLocation.h"

VarnelBeamResultState::VarnelBeamResultState(const VarnelBeamResultState &other)
    : th2_(other.th2_),
      number_(other.number_),
      displacementLocations_(other.displacementLocations_),
      stressLocations_(other.stressLocations_) {
    varnel::acquireAll(displacementLocations_);
    varnel::acquireAll(stressLocations_);
}

VarnelBeamResultState &VarnelBeamResultState::operator=(const VarnelBeamResultState &other) {
    th2_ = other.th2_;
    number_ = other.number_;
    varnel::shareList(displacementLocations_, other.displacementLocations_);
    varnel::shareList(stressLocations_, other.stressLocations_);
    return *this;
}

VarnelBeamResultState::~VarnelBeamResultState() {
    varnel::releaseAll(displacementLocations_);
    varnel::releaseAll(stressLocations_);
}

void VarnelBeamResultState::add(VarnelBeamDisplacementLocation *location) {
    if (!location) return;
    displacementLocations_.push_back(location);
    varnel::acquire(location);
}

void VarnelBeamResultState::add(KzBeamStressResultantsLocation *location) {
    if (!location) return;
    stressLocations_.push_back(location);
    varnel::acquire(location);
}
