#include "varnel/members/VarnelDesignData.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <type_traits>

#include "varnel/contracts/KzMaterialReinforcement.h"
#include "varnel/contracts/KzPreStressSteel.h"
#include "varnel/contracts/KzReinfStockMesh.h"
#include "varnel/contracts/Reinforcement/Schemes/Layout.h"

namespace {

using Data = VarnelDesignData;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

struct NumberField {
    const char *name;
    double (Data::*get)() const;
    void (Data::*set)(double);
    double byDefault;
};

const NumberField numberFields[] = {
    {"theta", &Data::getTheta, &Data::setTheta, 0.0},
    {"coverXu", &Data::getCoverXu, &Data::setCoverXu, 0.03},
    {"coverYu", &Data::getCoverYu, &Data::setCoverYu, 0.03},
    {"coverXl", &Data::getCoverXl, &Data::setCoverXl, 0.03},
    {"coverYl", &Data::getCoverYl, &Data::setCoverYl, 0.03},
    {"minimumSteel", &Data::getMinimumSteel, &Data::setMinimumSteel, 0.2},
    {"cnom", &Data::getCnom, &Data::setCnom, 0.03},
    {"minShearReinforcement", &Data::getMinShearReinforcement, &Data::setMinShearReinforcement, 0.6},
    {"shearAngle", &Data::getShearAngle, &Data::setShearAngle, 90.0},
    {"strutAngle", &Data::getStrutAngle, &Data::setStrutAngle, 0.0},
    {"jointPosition", &Data::getJointPosition, &Data::setJointPosition, 0.0},
    {"bondReinfAngle", &Data::getBondReinfAngle, &Data::setBondReinfAngle, 0.0},
    {"shearReinfStrength", &Data::getShearReinfStrength, &Data::setShearReinfStrength, 0.0},
};

KzMaterialReinforcement reinforcement("B500B", 7850.0, 78.5);
KzPreStressSteel prestressing("St1570/1770", 7850.0, 78.5);
KzReinfStockMesh lowerMesh("Q188A", 1.88, 1.88), upperMesh("Q257A", 2.57, 2.57);
Reinforcement::Schemes::Layout layout;

struct OtherField {
    const char *name;
    std::function<void(Data &)> alter;
};

const OtherField otherFields[] = {
    {"reinforcement", [](Data &data) { data.setReinforcement(&reinforcement); }},
    {"prestressingSteel", [](Data &data) { data.setPrestressingSteel(&prestressing); }},
    {"basicMeshL", [](Data &data) { data.setBasicMeshL(&lowerMesh); }},
    {"basicMeshU", [](Data &data) { data.setBasicMeshU(&upperMesh); }},
    {"shearJointSurface", [](Data &data) { data.setShearJointSurface(2); }},
    {"stressDesignType", [](Data &data) { data.setStressDesignType(1); }},
    {"reinforcementLayout", [](Data &data) { data.setReinforcementLayout(&layout); }},
};

/// A record in which no field has its default.
Data fullRecord() {
    Data data;
    double value = 1.5;
    for (const NumberField &field : numberFields) (data.*field.set)(value++);
    for (const OtherField &field : otherFields) field.alter(data);
    return data;
}

TEST(VarnelDesignData, IsAPlainRecord) {
    EXPECT_FALSE(std::is_polymorphic<Data>::value);
}

TEST(VarnelDesignData, IsBornWithDefaults) {
    const Data data;
    for (const NumberField &field : numberFields) {
        SCOPED_TRACE(field.name);
        EXPECT_EQ(field.byDefault, (data.*field.get)());
    }
    EXPECT_EQ(nullptr, data.getReinforcement());
    EXPECT_EQ(nullptr, data.getPrestressingSteel());
    EXPECT_EQ(nullptr, data.getBasicMeshL());
    EXPECT_EQ(nullptr, data.getBasicMeshU());
    EXPECT_EQ(1, data.getShearJointSurface());
    EXPECT_EQ(0, data.getStressDesignType());
    EXPECT_EQ(nullptr, data.getReinforcementLayout());
}

TEST(VarnelDesignData, HasANominalCoverOfThreeWhenMadeOfFiveNumbers) {
    const Data data(0.1, 0.2, 0.3, 0.4, 0.5);
    EXPECT_EQ(3.0, data.getCnom());
    EXPECT_EQ(0.1, data.getTheta());
    EXPECT_EQ(0.2, data.getCoverXu());
    EXPECT_EQ(0.3, data.getCoverYu());
    EXPECT_EQ(0.4, data.getCoverXl());
    EXPECT_EQ(0.5, data.getCoverYl());
}

TEST(VarnelDesignData, HasDefaultsInTheOtherFieldsWhenMadeOfFiveNumbers) {
    Data data(0.0, 0.03, 0.03, 0.03, 0.03);
    EXPECT_TRUE(data != Data());
    data.setCnom(0.03);
    EXPECT_TRUE(data == Data());
}

TEST(VarnelDesignData, KeepsEachNumberInAFieldOfItsOwn) {
    Data data;
    double value = 1.5;
    for (const NumberField &field : numberFields) (data.*field.set)(value++);
    value = 1.5;
    for (const NumberField &field : numberFields) {
        SCOPED_TRACE(field.name);
        EXPECT_EQ(value++, (data.*field.get)());
    }
}

TEST(VarnelDesignData, KeepsThingsAndKinds) {
    const Data data = fullRecord();
    EXPECT_EQ(&reinforcement, data.getReinforcement());
    EXPECT_EQ(&prestressing, data.getPrestressingSteel());
    EXPECT_EQ(&lowerMesh, data.getBasicMeshL());
    EXPECT_EQ(&upperMesh, data.getBasicMeshU());
    EXPECT_EQ(Design::ShearData::SMOOTH, data.getShearJointSurface());
    EXPECT_EQ(1, data.getStressDesignType());
    EXPECT_EQ(&layout, data.getReinforcementLayout());
}

TEST(VarnelDesignData, KeepsKindsWithoutAName) {
    Data data;
    data.setShearJointSurface(-7);
    data.setStressDesignType(std::numeric_limits<int>::max());
    EXPECT_EQ(-7, data.getShearJointSurface());
    EXPECT_EQ(std::numeric_limits<int>::max(), data.getStressDesignType());
}

TEST(VarnelDesignData, TwoDefaultRecordsAreEqual) {
    EXPECT_TRUE(Data() == Data());
    EXPECT_FALSE(Data() != Data());
}

TEST(VarnelDesignData, EveryFieldCountsInComparisons) {
    for (const NumberField &field : numberFields) {
        SCOPED_TRACE(field.name);
        Data data;
        (data.*field.set)(std::nextafter(field.byDefault, 1000.0));
        EXPECT_FALSE(data == Data());
        EXPECT_TRUE(Data() != data);
    }
    for (const OtherField &field : otherFields) {
        SCOPED_TRACE(field.name);
        Data data;
        field.alter(data);
        EXPECT_FALSE(data == Data());
        EXPECT_TRUE(Data() != data);
    }
}

TEST(VarnelDesignData, ThingsAreComparedByTheirAddress) {
    const KzMaterialReinforcement twin("B500B", 7850.0, 78.5);
    Data a, b;
    a.setReinforcement(&reinforcement);
    b.setReinforcement(const_cast<KzMaterialReinforcement *>(&twin));
    EXPECT_FALSE(a == b);
}

TEST(VarnelDesignData, WithANaNItIsUnequalToItself) {
    for (const NumberField &field : numberFields) {
        SCOPED_TRACE(field.name);
        Data data;
        (data.*field.set)(nan);
        const Data &same = data;
        EXPECT_FALSE(data == same);
        EXPECT_TRUE(data != same);
        EXPECT_FALSE(data == Data(data));
    }
}

TEST(VarnelDesignData, CopiesTakeEveryField) {
    const Data source = fullRecord();
    const Data copy(source);
    EXPECT_TRUE(copy == source);
    Data assigned;
    assigned = source;
    EXPECT_TRUE(assigned == source);
    const Data &same = assigned;
    assigned = same;
    EXPECT_TRUE(assigned == source);
}

TEST(VarnelDesignData, EqualRecordsHaveEqualHashes) {
    const varnel::DesignDataHash hash;
    EXPECT_EQ(hash(Data()), hash(Data()));
    EXPECT_EQ(hash(fullRecord()), hash(fullRecord()));
    for (const NumberField &field : numberFields) {
        SCOPED_TRACE(field.name);
        Data positive, negative;
        (positive.*field.set)(0.0);
        (negative.*field.set)(-0.0);
        ASSERT_TRUE(positive == negative);
        EXPECT_EQ(hash(positive), hash(negative));
    }
}

TEST(VarnelDesignData, HashesTellUsualRecordsApart) {
    const varnel::DesignDataHash hash;
    Data other;
    other.setCoverXu(0.04);
    EXPECT_NE(hash(Data()), hash(other));
    Data swapped(0.1, 0.2, 0.3, 0.4, 0.5), straight(0.1, 0.3, 0.2, 0.4, 0.5);
    EXPECT_NE(hash(swapped), hash(straight));
}

}  // namespace
