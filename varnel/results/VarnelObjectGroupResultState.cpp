#include "varnel/results/VarnelObjectGroupResultState.h"

#include <memory>

#include "varnel/members/SharedLists.h"
#include "varnel/results/VarnelNodeResultLocation.h"

VarnelObjectGroupResultState::VarnelObjectGroupResultState() = default;

VarnelObjectGroupResultState::VarnelObjectGroupResultState(const VarnelObjectGroupResultState &other)
    : Shared(other), nodalResults_(other.nodalResults_) {
    varnel::acquireAll(nodalResults_);
    for (VarnelNodeResultLocation *record : nodalResults_) places_.enter(record);
}

VarnelObjectGroupResultState &VarnelObjectGroupResultState::operator=(
    const VarnelObjectGroupResultState &other) {
    if (this == &other) return *this;
    std::list<VarnelNodeResultLocation *> taken(other.nodalResults_);
    varnel::acquireAll(taken);
    clear();
    nodalResults_.swap(taken);
    for (VarnelNodeResultLocation *record : nodalResults_) places_.enter(record);
    return *this;
}

VarnelObjectGroupResultState::~VarnelObjectGroupResultState() {
    clear();
}

VarnelNodeResultLocation *VarnelObjectGroupResultState::giveResultPosition(const KzVector3D &position) {
    if (VarnelNodeResultLocation *record = places_.find(nodalResults_, position)) return record;
    auto made = std::make_unique<VarnelNodeResultLocation>(position);
    VarnelNodeResultLocation *const record = made.get();
    nodalResults_.push_back(record);
    varnel::acquire(made.release());
    places_.enter(record);
    return record;
}

void VarnelObjectGroupResultState::clear() {
    places_.clear(nodalResults_);
    varnel::releaseAll(nodalResults_);
}
