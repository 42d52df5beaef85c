#include "varnel/members/VarnelJoint.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/support/Noted.h"

namespace {

const double one[6] = {1.0, 2.0, 3.0, 4.0, 5.0, 6.0};
const double other[6] = {-1.0, -2.0, -3.0, -4.0, -5.0, -6.0};

void expectSix(const double *expected, const double *values) {
    ASSERT_NE(nullptr, values);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(expected[i], values[i]) << i;
}

TEST(VarnelJoint, IsBornOfStationAndDegreesOfFreedom) {
    const VarnelJoint plain(0.25, 5);
    EXPECT_EQ(0.25, plain.getPos());
    EXPECT_EQ(5, plain.getDof());
    EXPECT_EQ(0, plain.getType());
    EXPECT_EQ(nullptr, plain.getStiffness());
    EXPECT_EQ(nullptr, plain.getYield());
    EXPECT_EQ(3, VarnelJoint(0.25, 5, 3).getType());
}

TEST(VarnelJoint, DiesAsWhatItIs) {
    std::string notes;
    std::unique_ptr<VarnelJoint>(new varnel::Noted<VarnelJoint>(notes, 'J', 0.25, 5));
    EXPECT_EQ("J", notes);
}

TEST(VarnelJoint, StoresWhatItIsGiven) {
    VarnelJoint joint(0.0, 0);
    joint.setPos(7.5);
    joint.setDof(-1);
    joint.setType(9);
    EXPECT_EQ(7.5, joint.getPos());
    EXPECT_EQ(-1, joint.getDof());
    EXPECT_EQ(9, joint.getType());
}

TEST(VarnelJoint, CopiesSixValuesIntoOneArray) {
    VarnelJoint joint(0.0, 0);
    joint.setStiffness(one);
    EXPECT_EQ(nullptr, joint.getYield());
    const double *stiffness = joint.getStiffness();
    expectSix(one, stiffness);
    joint.setStiffness(other);
    EXPECT_EQ(stiffness, joint.getStiffness());
    expectSix(other, stiffness);
    joint.setYield(one);
    expectSix(one, joint.getYield());
    expectSix(other, joint.getStiffness());
    joint.setStiffness(joint.getStiffness());
    expectSix(other, joint.getStiffness());
}

TEST(VarnelJoint, IgnoresNullValues) {
    VarnelJoint joint(0.0, 0);
    joint.setStiffness(nullptr);
    joint.setYield(nullptr);
    EXPECT_EQ(nullptr, joint.getStiffness());
    EXPECT_EQ(nullptr, joint.getYield());
    joint.setStiffness(one);
    joint.setStiffness(nullptr);
    expectSix(one, joint.getStiffness());
}

TEST(VarnelJoint, CopiesHaveArraysOfTheirOwn) {
    auto source = std::make_unique<VarnelJoint>(0.5, 6, 2);
    source->setStiffness(one);
    const VarnelJoint copy(*source);
    VarnelJoint assigned(0.0, 0);
    assigned.setYield(other);
    assigned = *source;
    source.reset();
    for (const VarnelJoint *joint : {&copy, static_cast<const VarnelJoint *>(&assigned)}) {
        EXPECT_EQ(0.5, joint->getPos());
        EXPECT_EQ(6, joint->getDof());
        EXPECT_EQ(2, joint->getType());
        expectSix(one, joint->getStiffness());
        EXPECT_EQ(nullptr, joint->getYield());
    }
    const VarnelJoint &same = assigned;
    assigned = same;
    expectSix(one, assigned.getStiffness());
}

}  // namespace
