#include "varnel/model/VarnelObjectGroup.h"

#include <utility>

#include "varnel/geometry/VarnelObject.h"
#include "varnel/results/VarnelObjectGroupResultState.h"

VarnelObjectGroup::VarnelObjectGroup(const std::string &name) : name_(name) {}

VarnelObjectGroup::VarnelObjectGroup(const VarnelObjectGroup &other)
    : name_(other.name_),
      changed_(other.changed_),
      userDefined_(other.userDefined_),
      calculate_(other.calculate_),
      objects_(other.objects_),
      base_(other.base_),
      resultStates_(other.resultStates_) {}

VarnelObjectGroup &VarnelObjectGroup::operator=(const VarnelObjectGroup &other) {
    if (this == &other) return *this;
    name_ = other.name_;
    changed_ = other.changed_;
    userDefined_ = other.userDefined_;
    calculate_ = other.calculate_;
    objects_ = other.objects_;
    base_ = other.base_;
    removeResults();
    resultStates_ = other.resultStates_;
    return *this;
}

VarnelObjectGroup::~VarnelObjectGroup() = default;

KzMatrix44 VarnelObjectGroup::getBase() const {
    const KzMatrix44 *matrix = base_.getMatrix();
    return matrix ? *matrix : KzMatrix44();
}

void VarnelObjectGroup::add(VarnelObject *object) {
    objects_.append(object);
    changed_ = true;
}

void VarnelObjectGroup::remove(VarnelObject *object) {
    objects_.erase(object);
    changed_ = true;
}

void VarnelObjectGroup::remove() {
    objects_.clear();
}

VarnelObjectGroupResultState *VarnelObjectGroup::giveResultState(int number) {
    State &state = resultStates_[number];
    if (!state) state.reset(new VarnelObjectGroupResultState);
    return state.get();
}

VarnelObjectGroupResultState *VarnelObjectGroup::findResultState(int number) const {
    const auto state = resultStates_.find(number);
    return state == resultStates_.end() ? nullptr : state->second.get();
}

void VarnelObjectGroup::removeResults() {
    for (auto &[number, state] : resultStates_) formerStates_.push_back(std::move(state));
    resultStates_.clear();
}
