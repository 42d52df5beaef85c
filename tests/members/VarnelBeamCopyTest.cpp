#include <gtest/gtest.h>

#include <memory>
#include <utility>

#include "varnel/contracts/SysBase/BeamDesignLocation.h"
#include "varnel/contracts/SysBase/BeamResultState.h"
#include "varnel/geometry/VarnelBase.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelBeamProperties.h"
#include "varnel/members/VarnelGapControl.h"
#include "varnel/members/VarnelJoint.h"
#include "varnel/results/VarnelGapResultState.h"

namespace {

class VarnelBeamCopy : public testing::Test {
  protected:
    std::unique_ptr<VarnelBeam> fullBeam() {
        auto beam = std::make_unique<VarnelBeam>();
        beam->setLine(KzVector3D(), KzVector3D(3.0, 4.0, 0.0), 0);
        beam->setName("B1");
        beam->setNumber(8);
        beam->setActive(false);
        beam->setMeshSize(0.25);
        beam->setParts(4);
        beam->setFireExposed(true);
        beam->setBase(&base_);
        beam->setLeftGap(new VarnelGapControl());
        beam->setRightGap(new VarnelGapControl());
        beam->getRightGap()->giveResultState(1);
        beam->add(new VarnelJoint(0.5, 1));
        beam->giveResultState(1);
        beam->add(new SysBase::BeamDesignLocation(0.75));
        beam->setChanged(false);
        return beam;
    }

    void expectShared(const VarnelBeam &source, const VarnelBeam &target) {
        EXPECT_EQ(8, target.getNumber());
        EXPECT_FALSE(target.getActive());
        EXPECT_FALSE(target.getChanged());
        EXPECT_EQ(0.25, target.getMeshSize());
        EXPECT_TRUE(target.isFireExposed());
        EXPECT_EQ(&base_, target.getBase());
        EXPECT_EQ(source.getGeo(), target.getGeo());
        EXPECT_EQ(&source.getData(), &target.getData());
        EXPECT_EQ(source.getLeftGap(), target.getLeftGap());
        EXPECT_EQ(source.getRightGap(), target.getRightGap());
        EXPECT_EQ(source.getJoints(), target.getJoints());
        EXPECT_EQ(source.getFoundations(), target.getFoundations());
        EXPECT_EQ(source.getResultStates(), target.getResultStates());
        EXPECT_EQ(source.getDesignResults(), target.getDesignResults());
    }

    VarnelBase base_;
};

TEST_F(VarnelBeamCopy, HasAxisRecordAndDesignResultsOfItsOwn) {
    auto source = fullBeam();
    const VarnelBeam copy(*source);
    EXPECT_NE(source->getGeo(), copy.getGeo());
    EXPECT_NE(&source->getData(), &copy.getData());
    ASSERT_EQ(1u, copy.getDesignResults().size());
    EXPECT_NE(source->getDesignResults()[0], copy.getDesignResults()[0]);
    source.reset();
    EXPECT_EQ(KzVector3D(3.0, 4.0, 0.0), copy.getEndVec());
    EXPECT_EQ("B1", copy.getName());
    EXPECT_EQ(4, copy.getParts());
    EXPECT_EQ(0.75, copy.getDesignResults()[0]->getPos());
}

TEST_F(VarnelBeamCopy, PassesOverMissingDesignResults) {
    VarnelBeam source;
    source.add(static_cast<SysBase::BeamDesignLocation *>(nullptr));
    source.add(new SysBase::BeamDesignLocation(0.25));
    const VarnelBeam copy(source);
    ASSERT_EQ(1u, copy.getDesignResults().size());
    EXPECT_EQ(0.25, copy.getDesignResults()[0]->getPos());
}

TEST_F(VarnelBeamCopy, LeavesTheRestAsInANewBeam) {
    const VarnelBeam copy(*fullBeam());
    EXPECT_EQ(0, copy.getNumber());
    EXPECT_TRUE(copy.getActive());
    EXPECT_TRUE(copy.getChanged());
    EXPECT_EQ(0.5, copy.getMeshSize());
    EXPECT_FALSE(copy.isFireExposed());
    EXPECT_EQ(nullptr, copy.getBase());
    EXPECT_EQ(nullptr, copy.getLeftGap());
    EXPECT_EQ(nullptr, copy.getRightGap());
    EXPECT_TRUE(copy.getJoints().empty());
    EXPECT_TRUE(copy.getFoundations().empty());
    EXPECT_TRUE(copy.getResultStates().empty());
    EXPECT_EQ(nullptr, copy.findResultState(1));
}

TEST_F(VarnelBeamCopy, AssignedSharesAllWithItsSource) {
    auto source = fullBeam();
    VarnelBeam target;
    target.setLeftGap(new VarnelGapControl());
    target.add(new VarnelJoint(0.1, 1));
    target.giveResultState(9);
    target.add(new SysBase::BeamDesignLocation());
    target = *source;
    expectShared(*source, target);
    EXPECT_EQ(source->findResultState(1), target.findResultState(1));
    EXPECT_EQ(nullptr, target.findResultState(9));
}

TEST_F(VarnelBeamCopy, AssignedOutlivesItsSource) {
    auto source = fullBeam();
    VarnelBeam target;
    target = *source;
    source.reset();
    EXPECT_EQ(5.0, target.getLength());
    EXPECT_EQ("B1", target.getName());
    EXPECT_EQ(0.5, target.getJoints().front()->getPos());
    EXPECT_EQ(1, target.findResultState(1)->getStateNumber());
    EXPECT_EQ(0.75, target.getDesignResults()[0]->getPos());
    EXPECT_NE(nullptr, target.getRightGap()->findResultState(1))
        << "a dying beam leaves shared results alone";
}

TEST_F(VarnelBeamCopy, SourceOutlivesTheAssigned) {
    auto source = fullBeam();
    auto target = std::make_unique<VarnelBeam>();
    *target = *source;
    target.reset();
    EXPECT_EQ(5.0, source->getLength());
    EXPECT_EQ(1, source->getNumberOfJoints());
    EXPECT_EQ(0.75, source->getDesignResults()[0]->getPos());
}

TEST_F(VarnelBeamCopy, AssignedToItselfStaysAsItIs) {
    auto beam = fullBeam();
    const VarnelBeam &same = *beam;
    *beam = same;
    EXPECT_EQ(5.0, beam->getLength());
    EXPECT_EQ(1, beam->getNumberOfJoints());
    EXPECT_EQ(1u, beam->getResultStates().size());
    EXPECT_NE(nullptr, beam->findResultState(1));
    EXPECT_NE(nullptr, beam->getLeftGap());
}

TEST_F(VarnelBeamCopy, AChainOfAssignmentsFreesEachObjectOnce) {
    auto a = fullBeam(), b = fullBeam(), c = fullBeam();
    *a = *b;
    *b = *c;
    *c = *a;
    *a = *b;
    b.reset();
    EXPECT_EQ(5.0, a->getLength());
    EXPECT_EQ(5.0, c->getLength());
    a.reset();
    EXPECT_EQ(1, c->getNumberOfJoints());
}

TEST_F(VarnelBeamCopy, WhatOneSharerDropsStaysWithTheOther) {
    auto source = fullBeam();
    VarnelBeam target;
    target = *source;
    source->removeJoints();
    source->removeResults();
    EXPECT_EQ(0.5, target.getJoints().front()->getPos());
    EXPECT_EQ(1, target.getResultStates().front()->getStateNumber());
    EXPECT_EQ(0.75, target.getDesignResults()[0]->getPos());
    source->giveResultState(2);
    EXPECT_EQ(nullptr, target.findResultState(2));
}

}  // namespace
