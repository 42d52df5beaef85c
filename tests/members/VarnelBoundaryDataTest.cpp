#include "varnel/members/VarnelBoundaryData.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <type_traits>
#include <vector>

#include "tests/support/Places.h"

namespace {

using Springs = std::vector<double>;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
const Springs sixZeros(6);

/// Makes the copy of derived records reachable.
struct Derived : VarnelBoundaryData {
    using VarnelBoundaryData::copy;
    using VarnelBoundaryData::VarnelBoundaryData;
};

void fill(VarnelBoundaryData &data) {
    data.setStiffness({1.0, 2.0, 3.0, 4.0, 5.0, 6.0});
    data.setName("column");
    data.setHeight(2.5);
    data.setSpecificWeight(18.0);
    data.setTransferOwnWeight(true);
    data.setDof(21);
    data.setChanged(false);
}

void expectFilled(const VarnelBoundaryData &data) {
    EXPECT_EQ((Springs{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}), data.getStiffness());
    EXPECT_EQ("column", data.getName());
    EXPECT_EQ(2.5, data.getHeight());
    EXPECT_EQ(18.0, data.getSpecificWeight());
    EXPECT_TRUE(data.doTransferOwnWeight());
    EXPECT_EQ(21, data.getDof());
}

TEST(VarnelBoundaryStiffnessData, IsBornWithoutStiffness) {
    const VarnelBoundaryStiffnessData springs;
    EXPECT_EQ(KzVector3D(), springs.getDispStiff());
    EXPECT_EQ(KzVector3D(), springs.getRotStiff());
}

TEST(VarnelBoundaryStiffnessData, CopiesTakeBothVectors) {
    VarnelBoundaryStiffnessData source;
    source.setDispStiff(KzVector3D(1.0, 2.0, 3.0));
    source.setRotStiff(KzVector3D(4.0, 5.0, 6.0));
    VarnelBoundaryStiffnessData copy(source), assigned;
    assigned = source;
    source.setDispStiff(KzVector3D());
    source.setRotStiff(KzVector3D());
    for (const VarnelBoundaryStiffnessData *taken : {&copy, &assigned}) {
        EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), taken->getDispStiff());
        EXPECT_EQ(KzVector3D(4.0, 5.0, 6.0), taken->getRotStiff());
    }
}

TEST(VarnelBoundaryData, IsBornWithDefaults) {
    const VarnelBoundaryData data;
    EXPECT_EQ(nullptr, data.getStiffnessData());
    EXPECT_EQ(sixZeros, data.getStiffness());
    EXPECT_EQ("", data.getName());
    EXPECT_EQ(3.0, data.getHeight());
    EXPECT_EQ(25.0, data.getSpecificWeight());
    EXPECT_FALSE(data.doTransferOwnWeight());
    EXPECT_EQ(0, data.getDof());
    EXPECT_FALSE(data.getChanged());
    EXPECT_FALSE(std::is_polymorphic<VarnelBoundaryData>::value);
}

TEST(VarnelBoundaryData, TakesAnyDofAtBirthUnchanged) {
    for (const int dof : {1, 63, -1, std::numeric_limits<int>::min()}) {
        const VarnelBoundaryData data(dof);
        EXPECT_EQ(dof, data.getDof());
        EXPECT_FALSE(data.getChanged());
    }
}

TEST(VarnelBoundaryData, MarksAChangeWhereItIsMeantTo) {
    struct Row {
        const char *setter;
        std::function<void(VarnelBoundaryData &)> call;
        bool changed;
    };
    const Row rows[] = {
        {"setDof", [](VarnelBoundaryData &d) { d.setDof(0); }, true},
        {"setStiffness",
         [](VarnelBoundaryData &d) {
             d.setStiffness({1.0, 1.0, 1.0});
         },
         true},
        {"setStiffness of nothing", [](VarnelBoundaryData &d) { d.setStiffness({}); }, true},
        {"resetStiffness", [](VarnelBoundaryData &d) { d.resetStiffness(); }, true},
        {"setDispStiff", [](VarnelBoundaryData &d) { d.setDispStiff(KzVector3D(1.0, 1.0, 1.0)); }, false},
        {"setRotStiff", [](VarnelBoundaryData &d) { d.setRotStiff(KzVector3D(1.0, 1.0, 1.0)); }, false},
        {"setStiffnessData", [](VarnelBoundaryData &d) { d.setStiffnessData(nullptr); }, false},
        {"setName", [](VarnelBoundaryData &d) { d.setName("n"); }, false},
        {"setHeight", [](VarnelBoundaryData &d) { d.setHeight(1.0); }, false},
        {"setSpecificWeight", [](VarnelBoundaryData &d) { d.setSpecificWeight(1.0); }, false},
        {"setTransferOwnWeight", [](VarnelBoundaryData &d) { d.setTransferOwnWeight(true); }, false},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.setter);
        VarnelBoundaryData data;
        row.call(data);
        EXPECT_EQ(row.changed, data.getChanged());
    }
}

TEST(VarnelBoundaryData, SixTinyStiffnessesLeaveNoSprings) {
    VarnelBoundaryData data;
    data.setStiffness(Springs(6, 5.0));
    data.setStiffness(Springs(6, 0.0005));
    EXPECT_EQ(nullptr, data.getStiffnessData());
    EXPECT_EQ(sixZeros, data.getStiffness());
}

TEST(VarnelBoundaryData, StiffnessCountsAboveAThousandthInEitherDirection) {
    const double limit = 0.001;
    struct Row {
        double value;
        bool counts;
    };
    const Row rows[] = {{limit, false},
                        {std::nextafter(limit, 0.0), false},
                        {std::nextafter(limit, 1.0), true},
                        {-limit, false},
                        {std::nextafter(-limit, -1.0), true},
                        {-5.0, true},
                        {nan, false},
                        {std::numeric_limits<double>::infinity(), true}};
    for (const Row &row : rows) {
        SCOPED_TRACE(row.value);
        for (std::size_t place = 0; place < 6; ++place) {
            Springs values(6);
            values[place] = row.value;
            VarnelBoundaryData data;
            data.setStiffness(values);
            EXPECT_EQ(row.counts, data.getStiffnessData() != nullptr) << place;
        }
    }
}

TEST(VarnelBoundaryData, ThreeStiffnessesSetTheDisplacementPartOnly) {
    VarnelBoundaryData data;
    data.setStiffness({1.0, 2.0, 3.0});
    EXPECT_EQ((Springs{1.0, 2.0, 3.0, 0.0, 0.0, 0.0}), data.getStiffness());
    data.setStiffness({1.0, 2.0, 3.0, 4.0, 5.0, 6.0});
    data.setStiffness({7.0, 8.0, 9.0});
    EXPECT_EQ((Springs{7.0, 8.0, 9.0, 4.0, 5.0, 6.0}), data.getStiffness());
}

TEST(VarnelBoundaryData, OneRotationStiffnessMakesSprings) {
    VarnelBoundaryData data;
    data.setStiffness({0.0, 0.0, 0.0, 0.0, 0.0, 5.0});
    ASSERT_NE(nullptr, data.getStiffnessData());
    EXPECT_EQ(KzVector3D(0.0, 0.0, 5.0), data.getStiffnessData()->getRotStiff());
    EXPECT_EQ(KzVector3D(), data.getStiffnessData()->getDispStiff());
}

TEST(VarnelBoundaryData, ShortListsKeepWhatTheyDoNotCover) {
    const Springs before{1.0, 2.0, 3.0, 4.0, 5.0, 6.0};
    struct Row {
        Springs values, expected;
    };
    const Row rows[] = {{{9.0}, before},
                        {{9.0, 9.0}, before},
                        {{9.0, 9.0, 9.0}, {9.0, 9.0, 9.0, 4.0, 5.0, 6.0}},
                        {{9.0, 9.0, 9.0, 9.0, 9.0}, {9.0, 9.0, 9.0, 4.0, 5.0, 6.0}},
                        {{9.0, 9.0, 9.0, 9.0, 9.0, 9.0, 8.0}, Springs(6, 9.0)},
                        {{0.0, 0.0}, sixZeros}};
    for (const Row &row : rows) {
        SCOPED_TRACE(row.values.size());
        VarnelBoundaryData data;
        data.setStiffness(before);
        data.setStiffness(row.values);
        EXPECT_EQ(row.expected, data.getStiffness());
    }
}

TEST(VarnelBoundaryData, ShortListsMakeSpringsOfZeros) {
    VarnelBoundaryData data;
    data.setStiffness({9.0});
    ASSERT_NE(nullptr, data.getStiffnessData());
    EXPECT_EQ(sixZeros, data.getStiffness());
}

TEST(VarnelBoundaryData, SetsEitherPartAlone) {
    VarnelBoundaryData data;
    data.setRotStiff(KzVector3D(4.0, 5.0, 6.0));
    EXPECT_EQ((Springs{0.0, 0.0, 0.0, 4.0, 5.0, 6.0}), data.getStiffness());
    data.setDispStiff(KzVector3D());
    ASSERT_NE(nullptr, data.getStiffnessData());
    data.resetStiffness();
    data.setDispStiff(KzVector3D(0.0, 0.0, 0.0));
    EXPECT_NE(nullptr, data.getStiffnessData()) << "zeros set this way are springs";
}

TEST(VarnelBoundaryData, TakesSpringsOver) {
    VarnelBoundaryData data;
    auto *springs = new VarnelBoundaryStiffnessData;
    springs->setDispStiff(KzVector3D(1.0, 0.0, 0.0));
    data.setStiffnessData(springs);
    data.setStiffnessData(springs);
    EXPECT_EQ(springs, data.getStiffnessData());
    EXPECT_EQ(1.0, data.getStiffness()[0]);
    data.setStiffnessData(new VarnelBoundaryStiffnessData);
    EXPECT_EQ(sixZeros, data.getStiffness());
}

TEST(VarnelBoundaryData, MemberwiseCopiesShareTheSprings) {
    auto source = std::make_unique<VarnelBoundaryData>();
    fill(*source);
    const VarnelBoundaryData copy(*source);
    VarnelBoundaryData assigned;
    assigned.setStiffness(Springs(6, 9.0));
    assigned = *source;
    EXPECT_EQ(source->getStiffnessData(), copy.getStiffnessData());
    EXPECT_EQ(source->getStiffnessData(), assigned.getStiffnessData());
    EXPECT_FALSE(copy.getChanged());
    source.reset();
    expectFilled(copy);
    expectFilled(assigned);
    const VarnelBoundaryData &same = assigned;
    assigned = same;
    expectFilled(assigned);
    assigned.setDispStiff(KzVector3D(8.0, 8.0, 8.0));
    EXPECT_EQ(8.0, copy.getStiffness()[0]);
}

TEST(VarnelBoundaryData, DerivedRecordsCopyTheSpringsAndAreChangedThen) {
    auto source = std::make_unique<Derived>();
    fill(*source);
    Derived target;
    target.setStiffness(Springs(6, 9.0));
    target.setChanged(false);
    target.copy(*source);
    EXPECT_NE(source->getStiffnessData(), target.getStiffnessData());
    source.reset();
    expectFilled(target);
    EXPECT_TRUE(target.getChanged());
    target.copy(target);
    expectFilled(target);
    target.copy(Derived());
    EXPECT_EQ(nullptr, target.getStiffnessData());
}

}  // namespace
