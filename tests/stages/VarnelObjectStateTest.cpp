#include "varnel/stages/VarnelObjectState.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/KzMaterial.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/stages/VarnelBeamState.h"
#include "varnel/stages/VarnelLineLoadState.h"
#include "varnel/stages/VarnelObjectStateVisitor.h"
#include "varnel/stages/VarnelPlateState.h"
#include "varnel/stages/VarnelPointBoundaryState.h"
#include "varnel/stages/VarnelPointLoadState.h"

namespace {

using varnel::virtualSlot;

/// Remembers which kind of state it was shown.
class KindVisitor : public VarnelObjectStateVisitor {
  public:
    void visit(VarnelLineLoadState *state) override { record("line load", state); }
    void visit(VarnelPointLoadState *state) override { record("point load", state); }
    void visit(VarnelPointBoundaryState *state) override { record("point boundary", state); }
    void visit(VarnelBeamState *state) override { record("beam", state); }
    void visit(VarnelPlateState *state) override { record("plate", state); }

    std::string kind;
    const VarnelObjectState *visitedState = nullptr;

  private:
    void record(const char *visited, const VarnelObjectState *where) {
        kind = visited;
        visitedState = where;
    }
};

/// Shows the state to a visitor through the base class.
void expectVisitedAs(const char *kind, VarnelObjectState &state) {
    KindVisitor visitor;
    state.getVisited(&visitor);
    EXPECT_EQ(kind, visitor.kind);
    EXPECT_EQ(&state, visitor.visitedState);
    state.getVisited(nullptr);
}

TEST(VarnelObjectState, IsBornActiveWithItsObject) {
    VarnelStateObject object;
    object.setActive(false);
    const VarnelObjectState state(&object);
    EXPECT_TRUE(state.isActive());
    EXPECT_EQ(&object, state.getStateObject());
    EXPECT_EQ(nullptr, VarnelObjectState(nullptr).getStateObject());
}

TEST(VarnelObjectState, SetActiveLeavesTheObjectAlone) {
    VarnelStateObject object;
    VarnelObjectState state(&object);
    state.setActive(false);
    EXPECT_FALSE(state.isActive());
    EXPECT_TRUE(object.getActive());
}

TEST(VarnelObjectState, SetupTakesFromTheObjectAndUpdateAppliesToIt) {
    for (const bool active : {true, false}) {
        VarnelStateObject object;
        VarnelObjectState state(&object);
        object.setActive(active);
        state.setActive(!active);
        state.setup();
        EXPECT_EQ(active, state.isActive());
        state.setActive(!active);
        state.update();
        EXPECT_EQ(!active, object.getActive());
    }
}

TEST(VarnelObjectState, SetupWithoutAnObjectGivesInactive) {
    VarnelObjectState state(nullptr);
    state.update();
    EXPECT_TRUE(state.isActive());
    state.setup();
    EXPECT_FALSE(state.isActive());
}

/// For states that record the flag and nothing else.
template <class State, class Object>
void expectTakesAndAppliesTheFlag(Object &object) {
    State state(&object);
    object.setChanged(false);
    object.setActive(false);
    state.setup();
    EXPECT_FALSE(state.isActive());
    state.setActive(true);
    EXPECT_FALSE(object.getActive());
    state.update();
    EXPECT_TRUE(object.getActive());
    EXPECT_FALSE(object.getChanged());
}

TEST(VarnelObjectState, OfALoadOrASupportItTakesAndAppliesTheFlag) {
    VarnelLineLoad lineLoad(nullptr);
    VarnelPointLoad pointLoad;
    const auto boundary = std::make_unique<VarnelPointBoundary>(KzVector3D(), 0, nullptr);
    expectTakesAndAppliesTheFlag<VarnelLineLoadState>(lineLoad);
    expectTakesAndAppliesTheFlag<VarnelPointLoadState>(pointLoad);
    expectTakesAndAppliesTheFlag<VarnelPointBoundaryState>(*boundary);
}

TEST(VarnelObjectState, VisitsAsNothing) {
    VarnelObjectState state(nullptr);
    KindVisitor visitor;
    state.getVisited(&visitor);
    EXPECT_EQ("", visitor.kind);
    state.getVisited(nullptr);
}

TEST(VarnelObjectState, CopiesTakeFlagAndObject) {
    VarnelStateObject object;
    VarnelObjectState source(&object);
    source.setActive(false);
    const VarnelObjectState copy(source);
    VarnelObjectState assigned(nullptr);
    assigned = source;
    for (const VarnelObjectState *state : {&copy, static_cast<const VarnelObjectState *>(&assigned)}) {
        EXPECT_FALSE(state->isActive());
        EXPECT_EQ(&object, state->getStateObject());
    }
}

TEST(VarnelObjectState, ItsOperationsKeepTheirSlotsBeforeTheDestructor) {
    EXPECT_EQ(0, virtualSlot(&VarnelObjectState::update));
    EXPECT_EQ(1, virtualSlot(&VarnelObjectState::setup));
    EXPECT_EQ(2, virtualSlot(&VarnelObjectState::getVisited));
    EXPECT_TRUE(std::has_virtual_destructor<VarnelObjectState>::value);
}

TEST(VarnelObjectStateVisitor, ItsOperationsKeepTheirSlots) {
    using Visitor = VarnelObjectStateVisitor;
    EXPECT_EQ(2, virtualSlot<void(VarnelLineLoadState *)>(&Visitor::visit));
    EXPECT_EQ(3, virtualSlot<void(VarnelPointLoadState *)>(&Visitor::visit));
    EXPECT_EQ(4, virtualSlot<void(VarnelPointBoundaryState *)>(&Visitor::visit));
    EXPECT_EQ(5, virtualSlot<void(VarnelBeamState *)>(&Visitor::visit));
    EXPECT_EQ(6, virtualSlot<void(VarnelPlateState *)>(&Visitor::visit));
    EXPECT_TRUE(std::has_virtual_destructor<Visitor>::value);
}

TEST(VarnelLineLoadState, StandsForALineLoad) {
    VarnelLineLoad load(nullptr);
    VarnelLineLoadState state(&load);
    EXPECT_EQ(&load, state.getLineLoad());
    EXPECT_EQ(&load, state.getStateObject());
    expectVisitedAs("line load", state);
    EXPECT_EQ(&load, VarnelLineLoadState(state).getLineLoad());
    EXPECT_EQ(nullptr, VarnelLineLoadState(nullptr).getStateObject());
}

TEST(VarnelPointLoadState, StandsForAPointLoad) {
    VarnelPointLoad load;
    VarnelPointLoadState state(&load);
    EXPECT_EQ(&load, state.getPointLoad());
    EXPECT_EQ(&load, state.getStateObject());
    expectVisitedAs("point load", state);
    EXPECT_EQ(&load, VarnelPointLoadState(state).getPointLoad());
    EXPECT_EQ(nullptr, VarnelPointLoadState(nullptr).getStateObject());
}

TEST(VarnelPointBoundaryState, StandsForAPointBoundary) {
    const auto boundary = std::make_unique<VarnelPointBoundary>(KzVector3D(), 0, nullptr);
    VarnelPointBoundaryState state(boundary.get());
    EXPECT_EQ(boundary.get(), state.getPointBoundary());
    EXPECT_EQ(boundary.get(), state.getStateObject());
    expectVisitedAs("point boundary", state);
    EXPECT_EQ(boundary.get(), VarnelPointBoundaryState(state).getPointBoundary());
    EXPECT_EQ(nullptr, VarnelPointBoundaryState(nullptr).getStateObject());
}

/// The states of beams and plates, which have a material.
template <class State>
struct MemberOf;
template <>
struct MemberOf<VarnelBeamState> {
    using Type = VarnelBeam;
    static std::unique_ptr<Type> make() { return std::make_unique<Type>(); }
    static Type *of(const VarnelBeamState &state) { return state.getBeam(); }
    static constexpr const char *kind = "beam";
};
template <>
struct MemberOf<VarnelPlateState> {
    using Type = VarnelPlate;
    static std::unique_ptr<Type> make() { return std::make_unique<Type>(nullptr); }
    static Type *of(const VarnelPlateState &state) { return state.getPlate(); }
    static constexpr const char *kind = "plate";
};

template <class State>
class MemberState : public testing::Test {
  protected:
    std::unique_ptr<typename MemberOf<State>::Type> member_ = MemberOf<State>::make();
    KzMaterial concrete_{"C30/37", 2500.0, 25.0};
    KzMaterial steel_{"S235", 7850.0, 78.5};
};

using MemberStates = testing::Types<VarnelBeamState, VarnelPlateState>;
TYPED_TEST_SUITE(MemberState, MemberStates, );

TYPED_TEST(MemberState, StandsForItsMember) {
    using Member = MemberOf<TypeParam>;
    TypeParam state(this->member_.get());
    EXPECT_EQ(this->member_.get(), Member::of(state));
    EXPECT_EQ(this->member_.get(), state.getStateObject());
    EXPECT_EQ(nullptr, state.getMaterial());
    EXPECT_TRUE(state.isActive());
    expectVisitedAs(Member::kind, state);
}

TYPED_TEST(MemberState, SetupTakesFlagAndMaterial) {
    TypeParam state(this->member_.get());
    this->member_->setActive(false);
    this->member_->setMaterial(&this->concrete_, 0);
    state.setup();
    EXPECT_FALSE(state.isActive());
    EXPECT_EQ(&this->concrete_, state.getMaterial());
}

TYPED_TEST(MemberState, UpdateAppliesFlagAndMaterialAndMarksNoChange) {
    TypeParam state(this->member_.get());
    this->member_->setMaterial(&this->concrete_, 0);
    state.setActive(false);
    state.setMaterial(&this->steel_);
    this->member_->setChanged(false);
    state.update();
    EXPECT_FALSE(this->member_->getActive());
    EXPECT_EQ(&this->steel_, this->member_->getMaterial(0));
    EXPECT_FALSE(this->member_->getChanged());
}

TYPED_TEST(MemberState, ANullMaterialLeavesTheMembersOwn) {
    TypeParam state(this->member_.get());
    this->member_->setMaterial(&this->concrete_, 0);
    state.setActive(false);
    state.update();
    EXPECT_FALSE(this->member_->getActive());
    EXPECT_EQ(&this->concrete_, this->member_->getMaterial(0));
}

TYPED_TEST(MemberState, IsHarmlessWithoutAMember) {
    TypeParam state(nullptr);
    state.setMaterial(&this->steel_);
    state.update();
    state.setup();
    EXPECT_FALSE(state.isActive());
    EXPECT_EQ(&this->steel_, state.getMaterial());
    EXPECT_EQ(nullptr, state.getStateObject());
}

TYPED_TEST(MemberState, CopiesTakeAllFields) {
    using Member = MemberOf<TypeParam>;
    TypeParam source(this->member_.get());
    source.setMaterial(&this->steel_);
    source.setActive(false);
    const TypeParam copy(source);
    TypeParam assigned(nullptr);
    assigned = source;
    for (const TypeParam *state : {&copy, static_cast<const TypeParam *>(&assigned)}) {
        EXPECT_EQ(this->member_.get(), Member::of(*state));
        EXPECT_EQ(this->member_.get(), state->getStateObject());
        EXPECT_EQ(&this->steel_, state->getMaterial());
        EXPECT_FALSE(state->isActive());
    }
}

}  // namespace
