#include "varnel/stages/VarnelConstructionStage.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <vector>

#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/model/VarnelDB.h"
#include "varnel/stages/VarnelBeamState.h"
#include "varnel/stages/VarnelLineLoadState.h"
#include "varnel/stages/VarnelPlateState.h"
#include "varnel/stages/VarnelPointBoundaryState.h"
#include "varnel/stages/VarnelPointLoadState.h"

namespace {

using States = std::list<VarnelObjectState *>;

/// The state that a plain walk along the list finds.
VarnelObjectState *walkTo(const VarnelConstructionStage &stage, const VarnelStateObject *object) {
    for (VarnelObjectState *state : stage.getObjectStates())
        if (state->getStateObject() == object) return state;
    return nullptr;
}

/// A beam state that counts the living ones.
class CountedState : public VarnelBeamState {
  public:
    CountedState(VarnelBeam *beam, int &living) : VarnelBeamState(beam), living_(living) { ++living_; }
    ~CountedState() override { --living_; }

  private:
    int &living_;
};

/// A host's stage with records of its own for beams.
class HostStage : public VarnelConstructionStage {
  public:
    int living = 0;
    VarnelBeamState *next = nullptr;  // handed out instead of a new state
    bool refuses = false;

    ~HostStage() override { removeStates(); }

  protected:
    using VarnelConstructionStage::createState;
    VarnelBeamState *createState(VarnelBeam *beam) override {
        if (refuses) return nullptr;
        return next ? next : new CountedState(beam, living);
    }
};

TEST(VarnelConstructionStage, IsBornEmpty) {
    const VarnelConstructionStage stage;
    EXPECT_TRUE(stage.getObjectStates().empty());
    EXPECT_EQ(0, stage.getNumber());
    EXPECT_EQ("", stage.getName());
}

TEST(VarnelConstructionStage, GivesOneStateForEachObjectInTheOrderOfAsking) {
    VarnelConstructionStage stage;
    VarnelPlate plate(nullptr);
    VarnelBeam beam;
    VarnelPointBoundary boundary(KzVector3D(), 0, nullptr);
    VarnelPointLoad pointLoad;
    VarnelLineLoad lineLoad(nullptr);
    VarnelPlateState *plateState = stage.giveState(&plate);
    VarnelBeamState *beamState = stage.giveState(&beam);
    VarnelPointBoundaryState *boundaryState = stage.giveState(&boundary);
    VarnelPointLoadState *pointLoadState = stage.giveState(&pointLoad);
    VarnelLineLoadState *lineLoadState = stage.giveState(&lineLoad);
    EXPECT_EQ((States{plateState, beamState, boundaryState, pointLoadState, lineLoadState}),
              stage.getObjectStates());
    EXPECT_EQ(&plate, plateState->getPlate());
    EXPECT_EQ(&beam, beamState->getBeam());
    EXPECT_EQ(&boundary, boundaryState->getPointBoundary());
    EXPECT_EQ(&pointLoad, pointLoadState->getPointLoad());
    EXPECT_EQ(&lineLoad, lineLoadState->getLineLoad());
    EXPECT_EQ(plateState, stage.giveState(&plate));
    EXPECT_EQ(beamState, stage.giveState(&beam));
    EXPECT_EQ(boundaryState, stage.giveState(&boundary));
    EXPECT_EQ(pointLoadState, stage.giveState(&pointLoad));
    EXPECT_EQ(lineLoadState, stage.giveState(&lineLoad));
    EXPECT_EQ(5U, stage.getObjectStates().size());
}

TEST(VarnelConstructionStage, ANewStateIsActiveAlsoForAnInactiveObject) {
    VarnelConstructionStage stage;
    VarnelBeam beam;
    beam.setActive(false);
    VarnelBeamState *state = stage.giveState(&beam);
    EXPECT_TRUE(state->isActive());
    EXPECT_EQ(nullptr, state->getMaterial());
    state->setup();
    EXPECT_FALSE(state->isActive());
}

TEST(VarnelConstructionStage, ANullObjectHasAStateLikeAnyOther) {
    VarnelConstructionStage stage;
    VarnelPlateState *state = stage.giveState(static_cast<VarnelPlate *>(nullptr));
    ASSERT_NE(nullptr, state);
    EXPECT_EQ(nullptr, state->getPlate());
    EXPECT_EQ(state, stage.giveState(static_cast<VarnelPlate *>(nullptr)));
    EXPECT_EQ(1U, stage.getObjectStates().size());
}

TEST(VarnelConstructionStage, AStateOfAnotherClassIsAnsweredWithNull) {
    VarnelConstructionStage stage;
    stage.giveState(static_cast<VarnelPlate *>(nullptr));
    EXPECT_EQ(nullptr, stage.giveState(static_cast<VarnelBeam *>(nullptr)));
    EXPECT_EQ(nullptr, stage.giveState(static_cast<VarnelPointBoundary *>(nullptr)));
    EXPECT_EQ(nullptr, stage.giveState(static_cast<VarnelPointLoad *>(nullptr)));
    EXPECT_EQ(nullptr, stage.giveState(static_cast<VarnelLineLoad *>(nullptr)));
    EXPECT_EQ(1U, stage.getObjectStates().size());
}

TEST(VarnelConstructionStage, TakesAModelByKindsAndThenInTheOrderOfItsLists) {
    VarnelDB model(nullptr);
    const VarnelLineLoad *lineLoad = model.giveLineLoad(nullptr);
    const VarnelPointLoad *pointLoad = model.givePointLoad();
    const VarnelPointBoundary *boundary = model.givePointBoundary(KzVector3D(), 7);
    const VarnelPlate *plate = model.givePlate(true);
    const VarnelBeam *first = model.giveBeam(true);
    const VarnelBeam *second = model.giveBeam(true);
    HostStage stage;
    model.storeCurrentCSTProperties(&stage);
    model.storeCurrentCSTProperties(&stage);
    EXPECT_EQ(2, stage.living) << "the states of the first time are gone";
    std::vector<const VarnelStateObject *> objects;
    for (const VarnelObjectState *state : stage.getObjectStates()) objects.push_back(state->getStateObject());
    const std::vector<const VarnelStateObject *> expected{first,    second,    plate,
                                                          boundary, pointLoad, lineLoad};
    EXPECT_EQ(expected, objects);
}

TEST(VarnelConstructionStage, KeepsTheStatesOfObjectsThatLeaveTheModel) {
    VarnelDB model(nullptr);
    VarnelPlate *plate = model.givePlate(true);
    const std::unique_ptr<VarnelBeam> beam(model.giveBeam(true));
    VarnelConstructionStage stage;
    model.storeCurrentCSTProperties(&stage);
    const States states = stage.getObjectStates();
    ASSERT_EQ(2U, states.size());
    model.removeFromConstructionStage(plate);
    EXPECT_EQ(states, stage.getObjectStates());
    model.remove(beam.get(), false);
    model.remove(plate, true);
    EXPECT_EQ(states, stage.getObjectStates());
    EXPECT_EQ(beam.get(), stage.giveState(beam.get())->getBeam());
    EXPECT_EQ(states, stage.getObjectStates());
}

TEST(VarnelConstructionStage, RemoveStatesFreesThemAll) {
    HostStage stage;
    VarnelBeam beam;
    VarnelBeam other;
    stage.giveState(&beam);
    stage.giveState(&other);
    EXPECT_EQ(2, stage.living);
    stage.removeStates();
    EXPECT_EQ(0, stage.living);
    EXPECT_TRUE(stage.getObjectStates().empty());
    stage.removeStates();
    stage.giveState(&beam);
    EXPECT_EQ(1U, stage.getObjectStates().size());
}

TEST(VarnelConstructionStage, CopiesShareTheirStates) {
    auto source = std::make_unique<VarnelConstructionStage>();
    VarnelBeam beam;
    VarnelBeam other;
    source->setNumber(4);
    source->setName("slab cast");
    VarnelBeamState *state = source->giveState(&beam);
    VarnelConstructionStage copy(*source);
    VarnelConstructionStage assigned;
    assigned.giveState(&other);
    assigned = *source;
    const VarnelConstructionStage &same = assigned;
    assigned = same;
    for (VarnelConstructionStage *stage : {&copy, &assigned}) {
        EXPECT_EQ(4, stage->getNumber());
        EXPECT_EQ("slab cast", stage->getName());
        EXPECT_EQ(States{state}, stage->getObjectStates());
        EXPECT_EQ(state, stage->giveState(&beam));
    }
    source->removeStates();
    EXPECT_NE(state, source->giveState(&beam));
    source.reset();
    copy.giveState(&other);
    EXPECT_EQ(States{state}, assigned.getObjectStates());
    copy.removeStates();
    EXPECT_EQ(state, assigned.giveState(&beam));
    EXPECT_TRUE(state->isActive());
}

TEST(VarnelConstructionStage, FindsAStateThatCameToStandForAnotherObject) {
    VarnelConstructionStage stage;
    VarnelBeam beam;
    VarnelBeam other;
    VarnelBeam third;
    VarnelBeamState *first = stage.giveState(&beam);
    VarnelBeamState *second = stage.giveState(&other);
    VarnelConstructionStage copy(stage);
    *first = *second;
    EXPECT_EQ(first, stage.giveState(&other));
    EXPECT_EQ(first, copy.giveState(&other));
    *first = VarnelBeamState(&third);
    EXPECT_EQ(second, stage.giveState(&other));
    EXPECT_EQ(first, copy.giveState(&third));
    EXPECT_EQ(2U, stage.getObjectStates().size());
    EXPECT_NE(first, stage.giveState(&beam));
}

TEST(VarnelConstructionStage, AHostMaySupplyRecordsOfItsOwn) {
    HostStage stage;
    VarnelBeam beam;
    VarnelConstructionStage &base = stage;
    VarnelBeamState *state = base.giveState(&beam);
    EXPECT_NE(nullptr, dynamic_cast<CountedState *>(state));
    EXPECT_EQ(state, base.giveState(&beam));
}

TEST(VarnelConstructionStage, AHostMayDeclineToMakeAState) {
    HostStage stage;
    VarnelBeam beam;
    stage.refuses = true;
    EXPECT_EQ(nullptr, stage.giveState(&beam));
    EXPECT_EQ(States{nullptr}, stage.getObjectStates());
    stage.refuses = false;
    EXPECT_NE(nullptr, stage.giveState(&beam));
    stage.removeStates();
    EXPECT_TRUE(stage.getObjectStates().empty());
}

TEST(VarnelConstructionStage, UnrelatedStagesMayHoldOneState) {
    VarnelBeam beam;
    VarnelBeam other;
    VarnelConstructionStage first;
    VarnelBeamState *state = first.giveState(&beam);
    HostStage second;
    second.next = state;
    EXPECT_EQ(state, second.giveState(&beam));
    second.next = nullptr;
    *state = VarnelBeamState(&other);
    EXPECT_EQ(state, first.giveState(&other));
    EXPECT_EQ(state, second.giveState(&other));
    first.removeStates();
    EXPECT_EQ(state, second.giveState(&other));
    EXPECT_EQ(States{state}, second.getObjectStates());
}

TEST(VarnelConstructionStage, AnswersAsAPlainWalkDoes) {
    std::mt19937 random(9);
    std::vector<VarnelBeam> beams(12);
    std::uniform_int_distribution<std::size_t> place(0, beams.size() - 1);
    std::uniform_int_distribution<int> hundred(0, 99);
    std::vector<std::unique_ptr<VarnelConstructionStage>> stages(2);
    for (auto &stage : stages) stage = std::make_unique<VarnelConstructionStage>();
    for (int step = 0; step < 100000; ++step) {
        auto &stage = stages[static_cast<std::size_t>(step % 2)];
        const auto &other = stages[static_cast<std::size_t>((step + 1) % 2)];
        VarnelBeam *beam = &beams[place(random)];
        const int what = hundred(random);
        if (what < 5 && !stage->getObjectStates().empty()) {
            static_cast<VarnelBeamState &>(*stage->getObjectStates().front()) = VarnelBeamState(beam);
        } else if (what == 5) {
            stage->removeStates();
        } else if (what == 6) {
            *stage = *other;
        } else if (what == 7) {
            stage = std::make_unique<VarnelConstructionStage>(*other);
        } else {
            VarnelObjectState *expected = walkTo(*stage, beam);
            VarnelObjectState *given = stage->giveState(beam);
            ASSERT_EQ(expected ? expected : stage->getObjectStates().back(), given);
            ASSERT_EQ(given, walkTo(*stage, beam));
        }
    }
}

/// Reaches the operations that are not public.
class OpenStage : public VarnelConstructionStage {
  public:
    using VarnelConstructionStage::createState;
    VarnelObjectState *findObjectState(VarnelStateObject *) override { return found; }

    VarnelObjectState *found = nullptr;
};

TEST(VarnelConstructionStage, ItsOperationsKeepTheirSlots) {
    using varnel::virtualSlot;
    EXPECT_EQ(2, virtualSlot<VarnelLineLoadState *(VarnelLineLoad *)>(&OpenStage::createState));
    EXPECT_EQ(3, virtualSlot<VarnelPointLoadState *(VarnelPointLoad *)>(&OpenStage::createState));
    EXPECT_EQ(4, virtualSlot<VarnelPointBoundaryState *(VarnelPointBoundary *)>(&OpenStage::createState));
    EXPECT_EQ(5, virtualSlot<VarnelPlateState *(VarnelPlate *)>(&OpenStage::createState));
    EXPECT_EQ(6, virtualSlot<VarnelBeamState *(VarnelBeam *)>(&OpenStage::createState));
    EXPECT_EQ(7, virtualSlot(&OpenStage::findObjectState));
}

TEST(VarnelConstructionStage, AHostMaySearchInItsOwnWay) {
    OpenStage stage;
    VarnelBeam beam;
    VarnelBeamState elsewhere(&beam);
    stage.found = &elsewhere;
    EXPECT_EQ(&elsewhere, stage.giveState(&beam));
    EXPECT_TRUE(stage.getObjectStates().empty());
    stage.found = nullptr;
    EXPECT_NE(stage.giveState(&beam), stage.giveState(&beam));
    EXPECT_EQ(2U, stage.getObjectStates().size());
}

}  // namespace
