#include "varnel/results/VarnelObjectGroupResultState.h"

#include <memory>

#include "varnel/members/SharedLists.h"
#include "varnel/results/VarnelNodeResultLocation.h"

VarnelObjectGroupResultState::VarnelObjectGroupResultState() = default;

VarnelObjectGroupResultState::VarnelObjectGroupResultState(const VarnelObjectGroupResultState &other)
    : Shared(other), nodalResults_(other.nodalResults_) {
    varnel::acquireAll(nodalResults_);
    tabulate();
}

VarnelObjectGroupResultState &VarnelObjectGroupResultState::operator=(
    const VarnelObjectGroupResultState &other) {
    if (this == &other) return *this;
    std::list<VarnelNodeResultLocation *> taken(other.nodalResults_);
    varnel::acquireAll(taken);
    clear();
    nodalResults_.swap(taken);
    tabulate();
    return *this;
}

VarnelObjectGroupResultState::~VarnelObjectGroupResultState() {
    clear();
}

VarnelNodeResultLocation *VarnelObjectGroupResultState::giveResultPosition(const KzVector3D &position) {
    if (VarnelNodeResultLocation *record = find(position)) return record;
    auto made = std::make_unique<VarnelNodeResultLocation>(position);
    VarnelNodeResultLocation *const record = made.get();
    nodalResults_.push_back(record);
    varnel::acquire(made.release());
    enter(record);
    return record;
}

void VarnelObjectGroupResultState::clear() {
    for (const VarnelNodeResultLocation *record : nodalResults_) watch_.unwatch(*record);
    table_.clear();
    watch_.reset();
    tabulable_ = true;
    varnel::releaseAll(nodalResults_);
}

VarnelNodeResultLocation *VarnelObjectGroupResultState::find(const KzVector3D &position) {
    if (tabulable_) {
        if (watch_.hasMoved()) tabulate();
        return table_.find(position);
    }
    for (VarnelNodeResultLocation *record : nodalResults_)
        if (record->getCoor() == position) return record;
    return nullptr;
}

/// Files the record behind all others, so that an earlier one at the same position stays the first.
void VarnelObjectGroupResultState::enter(VarnelNodeResultLocation *record) {
    if (!tabulable_) return;
    tabulable_ = watch_.watch(*record);
    table_.insert(record->getCoor(), record);
}

void VarnelObjectGroupResultState::tabulate() {
    table_.clear();
    watch_.reset();
    for (VarnelNodeResultLocation *record : nodalResults_) enter(record);
}
