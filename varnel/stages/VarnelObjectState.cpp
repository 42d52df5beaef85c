#include "varnel/stages/VarnelObjectState.h"

#include "varnel/geometry/VarnelStateObject.h"

VarnelObjectState &VarnelObjectState::operator=(const VarnelObjectState &other) {
    active_ = other.active_;
    if (watch_ && stateObject_ != other.stateObject_) watch_->objectReplaced();
    stateObject_ = other.stateObject_;
    return *this;
}

void VarnelObjectState::update() {
    if (stateObject_) stateObject_->setActive(active_);
}

void VarnelObjectState::setup() {
    // Without an object the state is inactive, although it was born active.
    active_ = stateObject_ && stateObject_->getActive();
}
