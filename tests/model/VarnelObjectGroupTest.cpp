#include "varnel/model/VarnelObjectGroup.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/VirtualSlot.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/results/VarnelNodeResultLocation.h"
#include "varnel/results/VarnelObjectGroupResultState.h"

TEST(VarnelObjectGroup, StartsEmptyUserDefinedAndCalculated) {
    const VarnelObjectGroup group("G");
    EXPECT_EQ(group.getName(), "G");
    EXPECT_FALSE(group.getChanged());
    EXPECT_TRUE(group.getUserDefined());
    EXPECT_TRUE(group.getCalculate());
    EXPECT_TRUE(group.getObjects().empty());
    EXPECT_EQ(group.getBase().getVector(0), KzVector3D(1, 0, 0));
    EXPECT_EQ(group.getBase().getVector(3), KzVector3D());
    EXPECT_EQ(group.findResultState(0), nullptr);
}

TEST(VarnelObjectGroup, SettersMarkNoChange) {
    VarnelObjectGroup group("G");
    group.setName("H");
    group.setUserDefined(false);
    group.setCalculate(false);
    group.setOffset(KzVector3D(1, 2, 3));
    group.remove();
    EXPECT_FALSE(group.getChanged());
    EXPECT_EQ(group.getName(), "H");
    EXPECT_FALSE(group.getUserDefined());
    EXPECT_FALSE(group.getCalculate());
    EXPECT_EQ(group.getBase().getVector(3), KzVector3D(1, 2, 3));
    group.setChanged(true);
    EXPECT_TRUE(group.getChanged());
}

TEST(VarnelObjectGroup, AnObjectCanStandInItTwice) {
    VarnelPoint first{KzVector3D()}, second{KzVector3D()};
    VarnelObjectGroup group("G");
    group.add(&first);
    group.add(&second);
    group.add(&first);
    EXPECT_TRUE(group.getChanged());
    EXPECT_EQ(group.getObjects(), (std::list<VarnelObject *>{&first, &second, &first}));
    EXPECT_TRUE(group.hasObject(&first));
    group.remove(&first);
    EXPECT_EQ(group.getObjects(), std::list<VarnelObject *>{&second});
    EXPECT_FALSE(group.hasObject(&first));
    EXPECT_FALSE(group.hasObject(nullptr));
}

TEST(VarnelObjectGroup, RemovingAStrangerMarksAChange) {
    VarnelPoint point{KzVector3D()};
    VarnelObjectGroup group("G");
    group.remove(&point);
    EXPECT_TRUE(group.getChanged());
}

TEST(VarnelObjectGroup, GivesOneResultStateToANumber) {
    VarnelObjectGroup group("G");
    EXPECT_EQ(group.findResultState(3), nullptr);
    VarnelObjectGroupResultState *state = group.giveResultState(3);
    EXPECT_EQ(group.giveResultState(3), state);
    EXPECT_EQ(group.findResultState(3), state);
    EXPECT_NE(group.giveResultState(-1), state);
    EXPECT_FALSE(group.getChanged());
}

TEST(VarnelObjectGroup, RemovedResultsLiveUntilTheGroupDies) {
    VarnelObjectGroup group("G");
    VarnelObjectGroupResultState *state = group.giveResultState(3);
    state->giveResultPosition(KzVector3D(1, 2, 3));
    group.removeResults();
    EXPECT_EQ(group.findResultState(3), nullptr);
    EXPECT_EQ(state->getNodalResults().size(), 1U);
    EXPECT_NE(group.giveResultState(3), state);
}

TEST(VarnelObjectGroup, CopiesShareMembersAndResults) {
    VarnelPoint point{KzVector3D()};
    auto source = std::make_unique<VarnelObjectGroup>("G");
    source->add(&point);
    source->setUserDefined(false);
    source->setCalculate(false);
    source->setOffset(KzVector3D(1, 0, 0));
    VarnelObjectGroupResultState *state = source->giveResultState(3);
    VarnelObjectGroup copied(*source);
    VarnelObjectGroup assigned("H");
    VarnelObjectGroupResultState *former = assigned.giveResultState(5);
    assigned = *source;
    const VarnelObjectGroup &same = assigned;
    assigned = same;
    source.reset();
    for (const VarnelObjectGroup *group : {&copied, &assigned}) {
        EXPECT_EQ(group->getName(), "G");
        EXPECT_TRUE(group->getChanged());
        EXPECT_FALSE(group->getUserDefined());
        EXPECT_FALSE(group->getCalculate());
        EXPECT_EQ(group->getObjects(), std::list<VarnelObject *>{&point});
        EXPECT_EQ(group->getBase().getVector(3), KzVector3D(1, 0, 0));
        EXPECT_EQ(group->findResultState(3), state);
        EXPECT_EQ(group->findResultState(5), nullptr);
    }
    EXPECT_TRUE(former->getNodalResults().empty()) << "it lives until the group dies";
}

TEST(VarnelObjectGroup, CopiesHaveListsOfTheirOwn) {
    VarnelPoint point{KzVector3D()};
    VarnelObjectGroup source("G");
    source.add(&point);
    VarnelObjectGroupResultState *state = source.giveResultState(3);
    VarnelObjectGroup copied(source);
    source.setChanged(false);
    copied.remove(&point);
    copied.removeResults();
    EXPECT_FALSE(source.getChanged());
    EXPECT_TRUE(source.hasObject(&point));
    EXPECT_EQ(source.findResultState(3), state);
    copied.setChanged(false);
    copied.removeResults();
    EXPECT_FALSE(copied.getChanged());
}

TEST(VarnelObjectGroup, AnEntryOfNothingIsAMemberLikeAnyOther) {
    VarnelObjectGroup group("G");
    group.add(nullptr);
    group.add(nullptr);
    EXPECT_TRUE(group.hasObject(nullptr));
    group.remove(nullptr);
    EXPECT_TRUE(group.getObjects().empty());
}

TEST(VarnelObjectGroup, VirtualOperationsStandInTheirSlots) {
    EXPECT_EQ(varnel::virtualSlot(&VarnelObjectGroup::getChanged), 0);
    EXPECT_EQ(varnel::virtualSlot(&VarnelObjectGroup::setChanged), 1);
    EXPECT_TRUE(std::has_virtual_destructor_v<VarnelObjectGroup>);
}
