#include "varnel/results/VarnelBeamResultState.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "varnel/contracts/KzBeamStressResultantsLocation.h"
#include "varnel/results/VarnelBeamDisplacementLocation.h"

namespace {

VarnelBeamDisplacementLocation *displacement(double pos) {
    return new VarnelBeamDisplacementLocation(pos, KzVector3D(1.0, 2.0, 3.0), KzVector3D(4.0, 5.0, 6.0));
}

TEST(VarnelBeamDisplacementLocation, IsBornZero) {
    const VarnelBeamDisplacementLocation location;
    EXPECT_EQ(0.0, location.getPos());
    EXPECT_EQ(KzVector3D(), location.getDisp());
    EXPECT_EQ(KzVector3D(), location.getRot());
}

TEST(VarnelBeamDisplacementLocation, HoldsAndCopiesItsValues) {
    VarnelBeamDisplacementLocation location(0.25, KzVector3D(1.0, 2.0, 3.0), KzVector3D(4.0, 5.0, 6.0));
    const VarnelBeamDisplacementLocation copy(location);
    location.setDisp(KzVector3D(7.0, 0.0, 0.0));
    location.setRot(KzVector3D(8.0, 0.0, 0.0));
    EXPECT_EQ(KzVector3D(7.0, 0.0, 0.0), location.getDisp());
    EXPECT_EQ(KzVector3D(8.0, 0.0, 0.0), location.getRot());
    EXPECT_EQ(0.25, copy.getPos());
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), copy.getDisp());
    EXPECT_EQ(KzVector3D(4.0, 5.0, 6.0), copy.getRot());
    EXPECT_TRUE(std::has_virtual_destructor<VarnelBeamDisplacementLocation>::value);
}

TEST(VarnelBeamResultState, IsBornEmpty) {
    const VarnelBeamResultState state;
    EXPECT_FALSE(state.getTh2());
    EXPECT_EQ(0, state.getNumber());
    EXPECT_TRUE(state.getDisplacementLocations().empty());
    EXPECT_TRUE(state.getStressLocations().empty());
    EXPECT_TRUE(std::has_virtual_destructor<VarnelBeamResultState>::value);
}

TEST(VarnelBeamResultState, HoldsNumberAndOrderOfTheory) {
    VarnelBeamResultState state(7, true);
    EXPECT_EQ(7, state.getNumber());
    EXPECT_TRUE(state.getTh2());
    state.setNumber(-3);
    state.setTh2(false);
    EXPECT_EQ(-3, state.getNumber());
    EXPECT_FALSE(state.getTh2());
}

TEST(VarnelBeamResultState, OwnsLocationsInTheOrderOfAdding) {
    VarnelBeamResultState state;
    VarnelBeamDisplacementLocation *first = displacement(0.0);
    VarnelBeamDisplacementLocation *second = displacement(1.0);
    auto *stress = new KzBeamStressResultantsLocation(0.5);
    state.add(first);
    state.add(second);
    state.add(stress);
    EXPECT_EQ((std::list<VarnelBeamDisplacementLocation *>{first, second}), state.getDisplacementLocations());
    EXPECT_EQ(std::list<KzBeamStressResultantsLocation *>{stress}, state.getStressLocations());
}

TEST(VarnelBeamResultState, IgnoresNullLocations) {
    VarnelBeamResultState state;
    state.add(static_cast<VarnelBeamDisplacementLocation *>(nullptr));
    state.add(static_cast<KzBeamStressResultantsLocation *>(nullptr));
    EXPECT_TRUE(state.getDisplacementLocations().empty());
    EXPECT_TRUE(state.getStressLocations().empty());
}

TEST(VarnelBeamResultState, CopiesShareTheirLocations) {
    auto source = std::make_unique<VarnelBeamResultState>(7, true);
    source->add(displacement(0.25));
    source->add(new KzBeamStressResultantsLocation(0.5));
    const VarnelBeamResultState copy(*source);
    VarnelBeamResultState assigned;
    assigned.add(displacement(0.75));
    assigned = *source;
    const VarnelBeamResultState &same = assigned;
    assigned = same;
    EXPECT_EQ(source->getDisplacementLocations(), copy.getDisplacementLocations());
    EXPECT_EQ(source->getStressLocations(), assigned.getStressLocations());
    source.reset();
    for (const VarnelBeamResultState *state :
         {&copy, static_cast<const VarnelBeamResultState *>(&assigned)}) {
        EXPECT_EQ(7, state->getNumber());
        EXPECT_TRUE(state->getTh2());
        ASSERT_EQ(1U, state->getDisplacementLocations().size());
        EXPECT_EQ(0.25, state->getDisplacementLocations().front()->getPos());
        ASSERT_EQ(1U, state->getStressLocations().size());
        EXPECT_EQ(0.5, state->getStressLocations().front()->getPos());
    }
}

}  // namespace
