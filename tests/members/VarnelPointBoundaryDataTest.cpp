#include "varnel/members/VarnelPointBoundaryData.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

#include "tests/support/Places.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/KzMatrix44.h"

namespace {

using Springs = std::vector<double>;

const Springs sixZeros(6);

VarnelPointBoundaryData quietRecord() {
    VarnelPointBoundaryData data;
    data.setChanged(false);
    return data;
}

void fill(VarnelPointBoundaryData &data) {
    data.setStiffness({1.0, 2.0, 3.0, 4.0, 5.0, 6.0});
    data.setName("column");
    data.setHeight(2.5);
    data.setSpecificWeight(18.0);
    data.setTransferOwnWeight(true);
    data.setDof(21);
    data.setAngle(0.3, 2);
    data.setChanged(false);
}

void expectFilled(const VarnelPointBoundaryData &data) {
    EXPECT_EQ((Springs{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}), data.getStiffness());
    EXPECT_EQ("column", data.getName());
    EXPECT_EQ(2.5, data.getHeight());
    EXPECT_EQ(18.0, data.getSpecificWeight());
    EXPECT_TRUE(data.doTransferOwnWeight());
    EXPECT_EQ(21, data.getDof());
    EXPECT_DOUBLE_EQ(0.3, data.getBase().getAngle(2));
}

TEST(VarnelPointBoundaryData, IsBornChangedWithoutSpringsAndFrame) {
    const VarnelPointBoundaryData data;
    EXPECT_TRUE(data.getChanged()) << "through its new frame";
    EXPECT_FALSE(data.VarnelBoundaryData::getChanged());
    EXPECT_TRUE(data.getBase().getChanged());
    EXPECT_EQ(nullptr, data.getBaseMatrix());
    EXPECT_EQ(nullptr, data.getStiffnessData());
    EXPECT_EQ(0, data.getDof());
    EXPECT_EQ("", data.getName());
    EXPECT_EQ(3.0, data.getHeight());
    EXPECT_EQ(25.0, data.getSpecificWeight());
    EXPECT_FALSE(data.doTransferOwnWeight());
}

TEST(VarnelPointBoundaryData, MadeOfZerosHasNoSpringsAndIsChanged) {
    const VarnelPointBoundaryData data(7, sixZeros);
    EXPECT_EQ(7, data.getDof());
    EXPECT_EQ(nullptr, data.getStiffnessData());
    EXPECT_TRUE(data.getChanged());
    EXPECT_TRUE(data.VarnelBoundaryData::getChanged());
}

TEST(VarnelPointBoundaryData, MadeOfStiffnessesHasSprings) {
    const VarnelPointBoundaryData data(0, {1.0, 2.0, 3.0, 4.0, 5.0, 6.0});
    EXPECT_EQ((Springs{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}), data.getStiffness());
}

TEST(VarnelPointBoundaryData, AsksAndTellsValuesAndFrame) {
    VarnelPointBoundaryData data;
    data.setChanged(false);
    EXPECT_FALSE(data.getChanged());
    EXPECT_FALSE(data.getBase().getChanged());
    data.setDof(1);
    EXPECT_TRUE(data.getChanged());
    EXPECT_FALSE(data.getBase().getChanged());
    data.setChanged(true);
    EXPECT_TRUE(data.VarnelBoundaryData::getChanged());
    EXPECT_TRUE(data.getBase().getChanged());
}

TEST(VarnelPointBoundaryData, SettingTheFrameMarksTheFrameAlone) {
    struct Row {
        const char *setter;
        std::function<void(VarnelPointBoundaryData &)> call;
    };
    const Row rows[] = {
        {"setBase", [](VarnelPointBoundaryData &d) { d.setBase(KzMatrix44::getId()); }},
        {"setBaseMatrix", [](VarnelPointBoundaryData &d) { d.setBaseMatrix(KzMatrix44::getId()); }},
        {"setAngle", [](VarnelPointBoundaryData &d) { d.setAngle(0.5, 1); }},
        {"setAngle to zero", [](VarnelPointBoundaryData &d) { d.setAngle(0.0, 1); }},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.setter);
        VarnelPointBoundaryData data;
        data.setChanged(false);
        row.call(data);
        EXPECT_TRUE(data.getChanged());
        EXPECT_TRUE(data.getBase().getChanged());
        EXPECT_FALSE(data.VarnelBoundaryData::getChanged());
    }
}

TEST(VarnelPointBoundaryData, KeepsAFrame) {
    KzMatrix44 turned = KzMatrix44::getId();
    turned.setVector(0, KzVector3D(0.0, 1.0, 0.0));
    turned.setVector(1, KzVector3D(-1.0, 0.0, 0.0));
    VarnelPointBoundaryData data;
    data.setBase(turned);
    ASSERT_NE(nullptr, data.getBaseMatrix());
    EXPECT_EQ(KzVector3D(0.0, 1.0, 0.0), data.getBaseMatrix()->getVector(0));
    EXPECT_EQ(data.getBase().getMatrix(), data.getBaseMatrix());
    data.setBaseMatrix(KzMatrix44::getId());
    EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), data.getBaseMatrix()->getVector(0));
}

TEST(VarnelPointBoundaryData, AnAngleOfZeroMakesAnIdentityFrame) {
    for (const double zero : {0.0, -0.0}) {
        VarnelPointBoundaryData data;
        data.setAngle(0.7, 1);
        data.setAngle(zero, 1);
        ASSERT_NE(nullptr, data.getBaseMatrix()) << "unlike a frame by itself, which is dropped";
        EXPECT_EQ(KzVector3D(1.0, 0.0, 0.0), data.getBaseMatrix()->getVector(0));
        EXPECT_EQ(KzVector3D(0.0, 0.0, 1.0), data.getBaseMatrix()->getVector(2));
        EXPECT_EQ(0.0, data.getBase().getAngle(1));
    }
}

TEST(VarnelPointBoundaryData, AnyOtherAngleTurnsTheFrame) {
    VarnelPointBoundaryData data;
    data.setAngle(0.5, 1);
    EXPECT_DOUBLE_EQ(0.5, data.getBase().getAngle(1));
    data.setAngle(-0.25, 2);
    EXPECT_DOUBLE_EQ(-0.25, data.getBase().getAngle(2));
}

TEST(VarnelPointBoundaryData, CopiesHaveSpringsAndFrameOfTheirOwnAndAreChanged) {
    struct Record final : VarnelPointBoundaryData {};  // a record is freed as what it is
    auto source = std::make_unique<Record>();
    fill(*source);
    const VarnelPointBoundaryData copy(*source);
    VarnelPointBoundaryData assigned = quietRecord();
    assigned.setStiffness(Springs(6, 9.0));
    assigned.setChanged(false);
    assigned = *source;
    EXPECT_NE(source->getStiffnessData(), copy.getStiffnessData());
    EXPECT_NE(source->getBaseMatrix(), copy.getBaseMatrix());
    source.reset();
    for (const VarnelPointBoundaryData *taken :
         {&copy, static_cast<const VarnelPointBoundaryData *>(&assigned)}) {
        expectFilled(*taken);
        EXPECT_TRUE(taken->VarnelBoundaryData::getChanged());
        EXPECT_TRUE(taken->getBase().getChanged());
    }
}

TEST(VarnelPointBoundaryData, SpringsOfZerosDoNotSurviveACopy) {
    VarnelPointBoundaryData source;
    source.setDispStiff(KzVector3D(0.0, -0.0, 0.0));
    ASSERT_NE(nullptr, source.getStiffnessData());
    EXPECT_EQ(nullptr, VarnelPointBoundaryData(source).getStiffnessData());
    VarnelPointBoundaryData assigned(0, Springs(6, 9.0));
    assigned = source;
    EXPECT_EQ(nullptr, assigned.getStiffnessData());
    EXPECT_NE(nullptr, source.getStiffnessData());
}

TEST(VarnelPointBoundaryData, SpringsOfWhichOnePartIsZeroSurviveACopy) {
    VarnelPointBoundaryData source;
    source.setRotStiff(KzVector3D(0.0, 0.0, 1e-9));
    EXPECT_EQ(1e-9, VarnelPointBoundaryData(source).getStiffness()[5]);
    source.resetStiffness();
    source.setDispStiff(KzVector3D(1e-9, 0.0, 0.0));
    EXPECT_EQ(1e-9, VarnelPointBoundaryData(source).getStiffness()[0]);
}

TEST(VarnelPointBoundaryData, AssigningARecordWithoutFrameRemovesTheFrame) {
    VarnelPointBoundaryData target;
    fill(target);
    target = VarnelPointBoundaryData();
    EXPECT_EQ(nullptr, target.getBaseMatrix());
    EXPECT_EQ(nullptr, target.getStiffnessData());
}

TEST(VarnelPointBoundaryData, AssignedToItselfItKeepsItsValues) {
    VarnelPointBoundaryData data;
    fill(data);
    const VarnelPointBoundaryData &same = data;
    data = same;
    expectFilled(data);
    EXPECT_TRUE(data.VarnelBoundaryData::getChanged());
    EXPECT_TRUE(data.getBase().getChanged());
    VarnelPointBoundaryData zeros;
    zeros.setDispStiff(KzVector3D());
    const VarnelPointBoundaryData &sameZeros = zeros;
    zeros = sameZeros;
    EXPECT_NE(nullptr, zeros.getStiffnessData());
}

TEST(VarnelPointBoundaryData, ItsOperationsKeepTheirSlots) {
    EXPECT_EQ(0, varnel::virtualSlot(&VarnelPointBoundaryData::getChanged));
    EXPECT_EQ(1, varnel::virtualSlot(&VarnelPointBoundaryData::setChanged));
    EXPECT_FALSE(std::has_virtual_destructor<VarnelPointBoundaryData>::value);
}

}  // namespace
