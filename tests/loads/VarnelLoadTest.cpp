#include "varnel/loads/VarnelLoad.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "tests/support/VirtualSlot.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelBeamLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"

namespace {

/// The least load: a record, and a count of the calls of the virtual setChanged.
class PlainLoad : public VarnelLoad {
  public:
    int getVisited(VarnelObjectVisitor *) override { return 0; }
    bool isInPlane(const KzMatrix44 &) const override { return false; }
    bool touchesPlane(const KzMatrix44 &) const override { return false; }
    KzVector3D getCOG() override { return KzVector3D(); }
    bool isNull() override { return true; }
    void setChanged(bool changed) override {
        ++calls;
        VarnelLoad::setChanged(changed);
    }

    VarnelLoadData data;
    int calls = 0;

  private:
    VarnelLoadData *getBaseData() override { return &data; }
};

TEST(VarnelLoadData, IsBornEmptyAndGlobalWithoutALoadcase) {
    const VarnelLoadData data;
    EXPECT_EQ("", data.getName());
    EXPECT_EQ(0, data.getType());
    EXPECT_EQ(nullptr, data.getLoadcase());
}

TEST(VarnelLoadData, CopiesNameTypeAndTheLoadcasePointer) {
    SysBase::Loadcase loadcase(3);
    VarnelLoadData data;
    data.setName("wind");
    data.setType(VarnelLoadData::LocalLoad);
    data.setLoadcase(&loadcase);
    const VarnelLoadData copy(data);
    VarnelLoadData assigned;
    assigned = data;
    for (const VarnelLoadData *record : {&copy, static_cast<const VarnelLoadData *>(&assigned)}) {
        EXPECT_EQ("wind", record->getName());
        EXPECT_EQ(1, record->getType());
        EXPECT_EQ(&loadcase, record->getLoadcase());
    }
}

TEST(VarnelLoadData, SettingTheNameToTheSameStringObjectIsSafe) {
    VarnelLoadData data;
    data.setName("a name that is too long to be kept inside the string object");
    data.setName(data.getName());
    EXPECT_EQ("a name that is too long to be kept inside the string object", data.getName());
    const VarnelLoadData &same = data;
    data = same;
    EXPECT_EQ("a name that is too long to be kept inside the string object", data.getName());
}

TEST(VarnelLoadData, TakesAnyNumberAsItsType) {
    VarnelLoadData data;
    data.setType(-17);
    EXPECT_EQ(-17, data.getType());
}

TEST(VarnelLoadData, HasNoVirtualOperations) {
    EXPECT_FALSE(std::is_polymorphic<VarnelLoadData>::value);
    EXPECT_FALSE(std::is_polymorphic<VarnelPointLoadData>::value);
    EXPECT_FALSE(std::is_polymorphic<VarnelBeamLoadData>::value);
    EXPECT_FALSE(std::is_polymorphic<VarnelLineLoadData>::value);
    EXPECT_FALSE(std::is_polymorphic<VarnelAreaLoadData>::value);
}

TEST(VarnelLoad, OfPointsAndLinesAloneCanBeSwitchedOff) {
    EXPECT_TRUE((std::is_base_of<VarnelStateObject, VarnelPointLoad>::value));
    EXPECT_TRUE((std::is_base_of<VarnelStateObject, VarnelLineLoad>::value));
    EXPECT_FALSE((std::is_base_of<VarnelStateObject, VarnelBeamLoad>::value));
    EXPECT_FALSE((std::is_base_of<VarnelStateObject, VarnelAreaLoad>::value));
}

TEST(VarnelLoad, IsBornUnchangedDeadAndWithoutALoadcase) {
    PlainLoad load;
    EXPECT_FALSE(load.getChanged());
    EXPECT_EQ(1, load.getLcType());
    EXPECT_TRUE(load.isDead());
    EXPECT_EQ(nullptr, load.getLoadcase());
    EXPECT_EQ(0, load.getType());
    EXPECT_EQ(0, load.getNumber());
    EXPECT_EQ("", load.getName());
}

TEST(VarnelLoad, IsDeadForLoadcaseTypeOneOnly) {
    PlainLoad load;
    for (int type : {-1, 0, 2, 3, 100}) {
        SCOPED_TRACE(type);
        load.setLcType(type);
        EXPECT_EQ(type, load.getLcType());
        EXPECT_FALSE(load.isDead());
    }
    load.setLcType(static_cast<SysBase::LoadcaseData::Type>(1));
    EXPECT_TRUE(load.isDead());
}

TEST(VarnelLoad, IsInItsLoadcaseByIdentity) {
    SysBase::Loadcase mine(1), equal(1);
    PlainLoad load;
    EXPECT_TRUE(load.isIn(nullptr));
    EXPECT_FALSE(load.isIn(&mine));
    load.setLoadcase(&mine);
    EXPECT_FALSE(load.isIn(nullptr));
    EXPECT_TRUE(load.isIn(&mine));
    EXPECT_FALSE(load.isIn(&equal));
    VarnelObject &object = load;
    EXPECT_TRUE(object.isIn(&mine));
}

TEST(VarnelLoad, SettingTheLoadcaseGoesThroughTheVirtualFlagEvenWithTheOldValue) {
    SysBase::Loadcase loadcase(1);
    PlainLoad load;
    load.setLoadcase(&loadcase);
    EXPECT_TRUE(load.getChanged());
    EXPECT_EQ(1, load.calls);
    load.setChanged(false);
    load.setLoadcase(&loadcase);
    EXPECT_TRUE(load.getChanged());
    EXPECT_EQ(3, load.calls);
    EXPECT_EQ(&loadcase, load.data.getLoadcase());
}

TEST(VarnelLoad, OtherSettersMarkNoChange) {
    PlainLoad load;
    load.setType(VarnelLoadData::LocalLoad);
    load.setType(5);
    load.setLcType(2);
    load.setName("snow");
    load.setNumber(4);
    EXPECT_FALSE(load.getChanged());
    EXPECT_EQ(0, load.calls);
    EXPECT_EQ(5, load.data.getType());
    EXPECT_EQ("snow", load.data.getName());
    EXPECT_EQ("snow", load.getName());
}

TEST(VarnelLoad, ForgetsADyingLoadcaseWithoutAFlag) {
    SysBase::Loadcase dying(1), other(2);
    PlainLoad load;
    load.setLoadcase(&dying);
    load.setChanged(false);
    load.forgetLoadcase(&other);
    EXPECT_EQ(&dying, load.getLoadcase());
    load.forgetLoadcase(&dying);
    EXPECT_EQ(nullptr, load.getLoadcase());
    EXPECT_FALSE(load.getChanged());
    load.forgetLoadcase(nullptr);
    EXPECT_EQ(nullptr, load.getLoadcase());
}

TEST(VarnelLoad, CopiesTakeNumberAndLoadcaseTypeAndAreChanged) {
    PlainLoad source;
    source.setNumber(9);
    source.setLcType(2);
    source.setChanged(false);
    PlainLoad copy(source);
    PlainLoad assigned;
    assigned = source;
    for (const PlainLoad *load : {&copy, &assigned}) {
        EXPECT_EQ(9, load->getNumber());
        EXPECT_EQ(2, load->getLcType());
        EXPECT_TRUE(load->getChanged());
    }
    EXPECT_FALSE(source.getChanged());
}

TEST(VarnelLoad, DoesNotWidenABox) {
    PlainLoad load;
    KzVector3D min(1.0, 1.0, 1.0), max(2.0, 2.0, 2.0);
    load.updateMinMax(&min, &max, KzMatrix44::getId());
    EXPECT_EQ(KzVector3D(1.0, 1.0, 1.0), min);
    EXPECT_EQ(KzVector3D(2.0, 2.0, 2.0), max);
}

TEST(VarnelLoad, KeepsItsSlots) {
    using varnel::virtualSlot;
    EXPECT_EQ(2, virtualSlot(&VarnelLoad::updateMinMax));
    EXPECT_EQ(3,
              virtualSlot(static_cast<int (VarnelLoad::*)(VarnelObjectVisitor *)>(&VarnelLoad::getVisited)));
    EXPECT_EQ(4, virtualSlot(&VarnelLoad::isInPlane));
    EXPECT_EQ(5, virtualSlot(&VarnelLoad::touchesPlane));
    EXPECT_EQ(6, virtualSlot(&VarnelLoad::isIn));
    EXPECT_EQ(7, virtualSlot(&VarnelLoad::getChanged));
    EXPECT_EQ(8, virtualSlot(&VarnelLoad::setChanged));
    EXPECT_EQ(9, virtualSlot(&VarnelLoad::getCOG));
    EXPECT_EQ(11, virtualSlot(&VarnelLoad::isNull));  // 10 is the private record
    EXPECT_EQ(2, virtualSlot(&VarnelPosition::setName));
    EXPECT_EQ(3, virtualSlot(&VarnelPosition::getName));
}

}  // namespace
