#include "varnel/contracts/SysBase/BeamResultState.h"

#include "varnel/contracts/Lists.h"
#include "varnel/contracts/SysBase/BeamDeformationsLocation.h"
#include "varnel/contracts/SysBase/BeamStressResultantsLocation.h"

namespace SysBase {

BeamResultState::~BeamResultState() {
    varnel::deleteAll(stressResultantsLocations_);
    varnel::deleteAll(deformationsLocations_);
}

void BeamResultState::add(BeamStressResultantsLocation *location) {
    if (location) stressResultantsLocations_.push_back(location);
}

void BeamResultState::add(BeamDeformationsLocation *location) {
    if (location) deformationsLocations_.push_back(location);
}

}  // namespace SysBase
