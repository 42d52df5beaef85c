#include "varnel/results/VarnelGapResultState.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "varnel/contracts/SysBase/InterfaceStressLocation.h"

namespace {

using SysBase::InterfaceStressLocation;

InterfaceStressLocation *stress(double value) {
    return new InterfaceStressLocation(KzVector3D(), value);
}

TEST(VarnelGapResultState, IsBornWithItsNumberAlone) {
    VarnelGapResultState state(4);
    EXPECT_EQ(4, state.getNumber());
    EXPECT_TRUE(state.getStressLocations().empty());
    state.setNumber(5);
    EXPECT_EQ(5, state.getNumber());
    EXPECT_FALSE(std::is_polymorphic<VarnelGapResultState>::value);
}

TEST(VarnelGapResultState, OwnsLocationsUntilTheyAreRemoved) {
    VarnelGapResultState state(4);
    InterfaceStressLocation *first = stress(1.0);
    InterfaceStressLocation *second = stress(2.0);
    state.add(first);
    state.add(nullptr);
    state.add(second);
    EXPECT_EQ((std::list<InterfaceStressLocation *>{first, second}), state.getStressLocations());
    state.removeStressLocations();
    EXPECT_TRUE(state.getStressLocations().empty());
    state.removeStressLocations();
    state.add(stress(3.0));
    EXPECT_EQ(1U, state.getStressLocations().size());
}

TEST(VarnelGapResultState, CopiesShareTheirLocations) {
    auto source = std::make_unique<VarnelGapResultState>(4);
    source->add(stress(1.0));
    const VarnelGapResultState copy(*source);
    VarnelGapResultState assigned(9);
    assigned.add(stress(2.0));
    assigned = *source;
    const VarnelGapResultState &same = assigned;
    assigned = same;
    EXPECT_EQ(source->getStressLocations(), copy.getStressLocations());
    source->removeStressLocations();
    source.reset();
    EXPECT_EQ(4, assigned.getNumber());
    ASSERT_EQ(1U, assigned.getStressLocations().size());
    EXPECT_EQ(1.0, assigned.getStressLocations().front()->getStress());
    EXPECT_EQ(assigned.getStressLocations(), copy.getStressLocations());
}

}  // namespace
