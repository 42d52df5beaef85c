#include "varnel/stages/VarnelConstructionStage.h"

#include <memory>

#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/SharedLists.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/stages/VarnelBeamState.h"
#include "varnel/stages/VarnelLineLoadState.h"
#include "varnel/stages/VarnelPlateState.h"
#include "varnel/stages/VarnelPointBoundaryState.h"
#include "varnel/stages/VarnelPointLoadState.h"

VarnelConstructionStage::VarnelConstructionStage() = default;

VarnelConstructionStage::VarnelConstructionStage(const VarnelConstructionStage &other)
    : ConstructionStage(other),
      objectStates_(other.objectStates_),
      table_(other.table_),
      watch_(other.watch_),
      tabulated_(other.tabulated_),
      tabulable_(other.tabulable_) {
    varnel::acquireAll(objectStates_);
}

VarnelConstructionStage &VarnelConstructionStage::operator=(const VarnelConstructionStage &other) {
    if (this == &other) return *this;
    ConstructionStage::operator=(other);
    table_ = other.table_;
    watch_ = other.watch_;
    tabulated_ = other.tabulated_;
    tabulable_ = other.tabulable_;
    varnel::shareList(objectStates_, other.objectStates_);
    return *this;
}

VarnelConstructionStage::~VarnelConstructionStage() {
    removeStates();
}

VarnelPlateState *VarnelConstructionStage::giveState(VarnelPlate *plate) {
    return findOrCreate<VarnelPlateState>(plate);
}

VarnelBeamState *VarnelConstructionStage::giveState(VarnelBeam *beam) {
    return findOrCreate<VarnelBeamState>(beam);
}

VarnelPointBoundaryState *VarnelConstructionStage::giveState(VarnelPointBoundary *boundary) {
    return findOrCreate<VarnelPointBoundaryState>(boundary);
}

VarnelPointLoadState *VarnelConstructionStage::giveState(VarnelPointLoad *load) {
    return findOrCreate<VarnelPointLoadState>(load);
}

VarnelLineLoadState *VarnelConstructionStage::giveState(VarnelLineLoad *load) {
    return findOrCreate<VarnelLineLoadState>(load);
}

void VarnelConstructionStage::removeStates() {
    table_.clear();
    // The states may live on in a copy of this stage, whose table must hear of them; this one need not.
    watch_.reset();
    tabulated_ = 0;
    tabulable_ = true;
    varnel::releaseAll(objectStates_);
}

VarnelLineLoadState *VarnelConstructionStage::createState(VarnelLineLoad *load) {
    return new VarnelLineLoadState(load);
}

VarnelPointLoadState *VarnelConstructionStage::createState(VarnelPointLoad *load) {
    return new VarnelPointLoadState(load);
}

VarnelPointBoundaryState *VarnelConstructionStage::createState(VarnelPointBoundary *boundary) {
    return new VarnelPointBoundaryState(boundary);
}

VarnelPlateState *VarnelConstructionStage::createState(VarnelPlate *plate) {
    return new VarnelPlateState(plate);
}

VarnelBeamState *VarnelConstructionStage::createState(VarnelBeam *beam) {
    return new VarnelBeamState(beam);
}

VarnelObjectState *VarnelConstructionStage::findObjectState(VarnelStateObject *object) {
    if (!tabulable_) return walkToState(object);
    if (watch_ && tabulated_ != watch_->replacements()) tabulate();
    const auto place = table_.find(object);
    return place == table_.end() ? nullptr : place->second;
}

template <class State, class Object>
State *VarnelConstructionStage::findOrCreate(Object *object) {
    if (VarnelObjectState *found = findObjectState(object)) return dynamic_cast<State *>(found);
    std::unique_ptr<State> made(createState(object));
    State *const state = made.get();
    objectStates_.push_back(state);
    varnel::acquire(made.release());
    if (state) enter(state);
    return state;
}

/// Files the state behind all others, so that an earlier one of the same object stays the first.
void VarnelConstructionStage::enter(VarnelObjectState *state) {
    if (!watch_) watch_.reset(new varnel::StateWatch);
    if (!state->watch_) state->watch_ = watch_;
    if (state->watch_.get() != watch_.get()) tabulable_ = false;
    table_.emplace(state->getStateObject(), state);
}

void VarnelConstructionStage::tabulate() {
    table_.clear();
    for (VarnelObjectState *state : objectStates_)
        if (state) table_.emplace(state->getStateObject(), state);
    tabulated_ = watch_->replacements();
}

VarnelObjectState *VarnelConstructionStage::walkToState(const VarnelStateObject *object) const {
    for (VarnelObjectState *state : objectStates_)
        if (state && state->getStateObject() == object) return state;
    return nullptr;
}
