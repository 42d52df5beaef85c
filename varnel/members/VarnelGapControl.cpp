#include "varnel/members/VarnelGapControl.h"

#include <memory>

#include "varnel/members/SharedLists.h"
#include "varnel/results/VarnelGapResultState.h"

VarnelGapControl::VarnelGapControl() = default;

VarnelGapControl::VarnelGapControl(const VarnelGapControl &other)
    : Shared(other), thick_(other.thick_), resultStates_(other.resultStates_) {
    varnel::acquireAll(resultStates_);
}

VarnelGapControl &VarnelGapControl::operator=(const VarnelGapControl &other) {
    thick_ = other.thick_;
    varnel::shareList(resultStates_, other.resultStates_);
    return *this;
}

VarnelGapControl::~VarnelGapControl() {
    removeResults();
}

VarnelGapResultState *VarnelGapControl::giveResultState(int number) {
    if (VarnelGapResultState *state = findResultState(number)) return state;
    auto made = std::make_unique<VarnelGapResultState>(number);
    resultStates_.push_back(made.get());
    varnel::acquire(made.get());
    return made.release();
}

VarnelGapResultState *VarnelGapControl::findResultState(int number) const {
    for (VarnelGapResultState *state : resultStates_)
        if (state->getNumber() == number) return state;
    return nullptr;
}

void VarnelGapControl::removeResults() {
    varnel::releaseAll(resultStates_);
}
