#include "varnel/members/VarnelLineBoundaryData.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <random>
#include <vector>

#include "tests/support/Places.h"
#include "tests/support/VirtualSlot.h"

namespace {

using Springs = std::vector<double>;

/// A record with no value at its default, unchanged.
std::unique_ptr<VarnelLineBoundaryData> fullRecord() {
    auto record = std::make_unique<VarnelLineBoundaryData>(21, "wall");
    record->setNumber(5);
    record->setWidth(0.24);
    record->setReference(record.get());
    record->setLocsys(1.0, 2.0, 3.0);
    record->setType(4);
    record->setLocal(true);
    record->setStiffness({1.0, 2.0, 3.0, 4.0, 5.0, 6.0});
    record->setHeight(2.5);
    record->setSpecificWeight(18.0);
    record->setTransferOwnWeight(true);
    record->setChanged(false);
    record->VarnelBoundaryData::setChanged(false);
    return record;
}

void expectValuesOfFullRecord(const VarnelLineBoundaryData &record) {
    EXPECT_EQ(21, record.getDof());
    EXPECT_EQ("wall", record.getName());
    EXPECT_EQ(0.24, record.getWidth());
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), record.getLocsys());
    EXPECT_TRUE(record.getLocal());
    EXPECT_EQ((Springs{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}), record.getStiffness());
    EXPECT_EQ(2.5, record.getHeight());
    EXPECT_EQ(18.0, record.getSpecificWeight());
    EXPECT_TRUE(record.doTransferOwnWeight());
}

TEST(VarnelLineBoundaryData, IsBornWithDefaults) {
    const VarnelLineBoundaryData record;
    EXPECT_EQ(KzVector3D(0.0, 0.0, 1.0), record.getLocsys());
    EXPECT_EQ(1, record.getType());
    EXPECT_EQ(0.0, record.getWidth());
    EXPECT_FALSE(record.getLocal());
    EXPECT_TRUE(record.getChanged());
    EXPECT_EQ(nullptr, record.getReference());
    EXPECT_FALSE(record.isReference());
    EXPECT_EQ(0, record.getDof());
    EXPECT_EQ("", record.getName());
    EXPECT_EQ(0, record.getNumber());
    EXPECT_EQ(3.0, record.getHeight());
    EXPECT_EQ(25.0, record.getSpecificWeight());
    EXPECT_FALSE(record.doTransferOwnWeight());
    EXPECT_EQ(nullptr, record.getStiffnessData());
}

TEST(VarnelLineBoundaryData, IsBornChangedWithDofAndName) {
    const VarnelLineBoundaryData record(7, "edge");
    EXPECT_EQ(7, record.getDof());
    EXPECT_EQ("edge", record.getName());
    EXPECT_TRUE(record.getChanged());
}

TEST(VarnelLineBoundaryData, IsBoundedInNothingUntilItStandsForItself) {
    VarnelLineBoundaryData record(0x3f, ""), other;
    VarnelLineBoundaryData *const references[] = {nullptr, &other};
    for (VarnelLineBoundaryData *reference : references) {
        record.setReference(reference);
        EXPECT_FALSE(record.isReference());
        for (const int mask : {0, 1, 2, 0x3f, -1}) EXPECT_FALSE(record.isBounded(mask)) << mask;
    }
}

TEST(VarnelLineBoundaryData, IsBoundedAsItsDofOnceItStandsForItself) {
    VarnelLineBoundaryData record(5, "");
    record.setReference(&record);
    EXPECT_TRUE(record.isReference());
    EXPECT_TRUE(record.isBounded(1));
    EXPECT_FALSE(record.isBounded(2));
    EXPECT_TRUE(record.isBounded(4));
    EXPECT_TRUE(record.isBounded(6));
    EXPECT_FALSE(record.isBounded(8));
    EXPECT_FALSE(record.isBounded(0));
    EXPECT_TRUE(record.isBounded(-1));
}

TEST(VarnelLineBoundaryData, MarksAChangeWhereItIsMeantTo) {
    struct Row {
        const char *setter;
        std::function<void(VarnelLineBoundaryData &)> call;
        bool changed;
        bool commonPartChanged;
    };
    const Row rows[] = {
        {"setLocal", [](VarnelLineBoundaryData &r) { r.setLocal(false); }, true, false},
        {"setWidth", [](VarnelLineBoundaryData &r) { r.setWidth(0.0); }, true, false},
        {"setLocsys", [](VarnelLineBoundaryData &r) { r.setLocsys(KzVector3D(1.0, 0.0, 0.0)); }, false,
         false},
        {"setType", [](VarnelLineBoundaryData &r) { r.setType(2); }, false, false},
        {"setReference", [](VarnelLineBoundaryData &r) { r.setReference(&r); }, false, false},
        {"setName", [](VarnelLineBoundaryData &r) { r.setName("n"); }, false, false},
        {"setNumber", [](VarnelLineBoundaryData &r) { r.setNumber(2); }, false, false},
        {"setHeight", [](VarnelLineBoundaryData &r) { r.setHeight(2.0); }, false, false},
        {"setSpecificWeight", [](VarnelLineBoundaryData &r) { r.setSpecificWeight(2.0); }, false, false},
        {"setTransferOwnWeight", [](VarnelLineBoundaryData &r) { r.setTransferOwnWeight(true); }, false,
         false},
        {"setDof", [](VarnelLineBoundaryData &r) { r.setDof(1); }, false, true},
        {"setStiffness",
         [](VarnelLineBoundaryData &r) {
             r.setStiffness({1.0, 1.0, 1.0});
         },
         false, true},
        {"resetStiffness", [](VarnelLineBoundaryData &r) { r.resetStiffness(); }, false, true},
        {"setDispStiff", [](VarnelLineBoundaryData &r) { r.setDispStiff(KzVector3D()); }, false, false},
        {"setRotStiff", [](VarnelLineBoundaryData &r) { r.setRotStiff(KzVector3D()); }, false, false},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.setter);
        VarnelLineBoundaryData record;
        record.setChanged(false);
        record.VarnelBoundaryData::setChanged(false);
        row.call(record);
        EXPECT_EQ(row.changed, record.getChanged());
        EXPECT_EQ(row.commonPartChanged, record.VarnelBoundaryData::getChanged());
    }
}

TEST(VarnelLineBoundaryData, KeepsItsFlagApartFromTheCommonOne) {
    VarnelLineBoundaryData record;
    record.VarnelBoundaryData::setChanged(true);
    record.setChanged(false);
    EXPECT_FALSE(record.getChanged());
    EXPECT_TRUE(record.VarnelBoundaryData::getChanged());
}

TEST(VarnelLineBoundaryData, IsNamedThroughEachOfItsBases) {
    VarnelLineBoundaryData record;
    static_cast<VarnelPosition &>(record).setName("as position");
    EXPECT_EQ("as position", static_cast<VarnelBoundaryData &>(record).getName());
    static_cast<VarnelBoundaryData &>(record).setName("as boundary");
    EXPECT_EQ("as boundary", static_cast<VarnelPosition &>(record).getName());
    EXPECT_EQ("as boundary", record.getName());
}

TEST(VarnelLineBoundaryData, KeepsAnyLocalSystemType) {
    VarnelLineBoundaryData record;
    for (const int type : {0, 2, -1, 1000000}) {
        record.setType(type);
        EXPECT_EQ(type, record.getType());
    }
}

TEST(VarnelLineBoundaryData, CopyHasNoReferenceAndTypeOne) {
    const auto source = fullRecord();
    const VarnelLineBoundaryData copy(*source);
    EXPECT_EQ(nullptr, copy.getReference());
    EXPECT_EQ(1, copy.getType());
    EXPECT_EQ(4, source->getType());
    EXPECT_TRUE(source->isReference());
}

TEST(VarnelLineBoundaryData, CopyTakesTheValuesAndIsChanged) {
    auto source = fullRecord();
    const VarnelLineBoundaryData copy(*source);
    EXPECT_NE(source->getStiffnessData(), copy.getStiffnessData());
    source.reset();
    expectValuesOfFullRecord(copy);
    EXPECT_EQ(0, copy.getNumber());
    EXPECT_TRUE(copy.getChanged());
    EXPECT_TRUE(copy.VarnelBoundaryData::getChanged());
}

TEST(VarnelLineBoundaryData, AssignmentKeepsTypeAndNumberAndDropsTheReference) {
    auto source = fullRecord();
    VarnelLineBoundaryData target, other;
    target.setType(9);
    target.setNumber(3);
    target.setReference(&other);
    target.setChanged(false);
    target = *source;
    source.reset();
    expectValuesOfFullRecord(target);
    EXPECT_EQ(9, target.getType());
    EXPECT_EQ(3, target.getNumber());
    EXPECT_EQ(nullptr, target.getReference());
    EXPECT_TRUE(target.getChanged());
}

TEST(VarnelLineBoundaryData, AssignmentWithoutSpringsRemovesThem) {
    const auto target = fullRecord();
    *target = VarnelLineBoundaryData();
    EXPECT_EQ(nullptr, target->getStiffnessData());
}

TEST(VarnelLineBoundaryData, AssignedToItselfItKeepsItsValues) {
    const auto record = fullRecord();
    const VarnelLineBoundaryData &same = *record;
    *record = same;
    expectValuesOfFullRecord(*record);
    EXPECT_EQ(4, record->getType());
    EXPECT_EQ(nullptr, record->getReference());
    EXPECT_TRUE(record->getChanged());
}

TEST(VarnelLineBoundaryData, WhenItDiesNobodyRefersToItAnyMore) {
    VarnelLineBoundaryData first, second, third, bystander;
    bystander.setReference(&first);
    {
        VarnelLineBoundaryData representative(63, "");
        representative.setReference(&representative);
        for (VarnelLineBoundaryData *record : {&first, &second, &third})
            record->setReference(&representative);
        EXPECT_EQ(&representative, second.getReference());
    }
    EXPECT_EQ(nullptr, first.getReference());
    EXPECT_EQ(nullptr, second.getReference());
    EXPECT_EQ(nullptr, third.getReference());
    EXPECT_EQ(&first, bystander.getReference());
}

TEST(VarnelLineBoundaryData, ReferrersLeaveInAnyOrder) {
    VarnelLineBoundaryData target, other;
    std::vector<std::unique_ptr<VarnelLineBoundaryData>> referrers;
    for (int i = 0; i < 5; ++i) {
        referrers.push_back(std::make_unique<VarnelLineBoundaryData>());
        referrers.back()->setReference(&target);
        referrers.back()->setReference(&target);
    }
    referrers[2].reset();
    referrers[4]->setReference(&other);
    referrers[0]->setReference(nullptr);
    *referrers[1] = VarnelLineBoundaryData();
    EXPECT_EQ(&other, referrers[4]->getReference());
    EXPECT_EQ(nullptr, referrers[0]->getReference());
    EXPECT_EQ(nullptr, referrers[1]->getReference());
    EXPECT_EQ(&target, referrers[3]->getReference());
}

TEST(VarnelLineBoundaryData, ReferencesHoldThroughAnyOrderOfSettingAndDying) {
    std::mt19937 random(11);
    const std::size_t count = 12;
    std::vector<std::unique_ptr<VarnelLineBoundaryData>> records(count);
    std::vector<std::size_t> expected(count, count);  // count stands for none
    for (auto &record : records) record = std::make_unique<VarnelLineBoundaryData>();
    for (int step = 0; step < 5000; ++step) {
        const std::size_t i = random() % count;
        const std::size_t j = random() % (count + 1);
        switch (random() % 4) {
            case 0:
                records[i] = std::make_unique<VarnelLineBoundaryData>();
                expected[i] = count;
                for (std::size_t &target : expected)
                    if (target == i) target = count;
                break;
            case 1:
                *records[i] = *records[j % count];
                expected[i] = count;
                break;
            default:
                records[i]->setReference(j == count ? nullptr : records[j].get());
                expected[i] = j;
        }
        for (std::size_t k = 0; k < count; ++k)
            ASSERT_EQ(expected[k] == count ? nullptr : records[expected[k]].get(), records[k]->getReference())
                << step;
    }
}

TEST(VarnelLineBoundaryData, ItsOperationsKeepTheirSlots) {
    using varnel::virtualSlot;
    EXPECT_EQ(2, virtualSlot<void(const std::string &)>(&VarnelLineBoundaryData::setName));
    EXPECT_EQ(3, virtualSlot(&VarnelLineBoundaryData::getName));
    EXPECT_EQ(4, virtualSlot(&VarnelLineBoundaryData::getChanged));
    EXPECT_EQ(5, virtualSlot(&VarnelLineBoundaryData::setChanged));
    EXPECT_EQ(-1, virtualSlot(&VarnelLineBoundaryData::isBounded));
    EXPECT_EQ(-1, virtualSlot(&VarnelLineBoundaryData::isReference));
}

TEST(VarnelLineBoundaryData, IsDeletedThroughItsPosition) {
    std::unique_ptr<VarnelPosition> position = fullRecord();
    EXPECT_EQ("wall", position->getName());
}

}  // namespace
