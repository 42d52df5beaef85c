#include "varnel/members/VarnelLoadDistributionArea.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/Places.h"
#include "tests/support/RecordingObjectVisitor.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/geometry/VarnelAreaRectangle.h"

namespace {

VarnelArea *square(double side) {
    return new VarnelAreaRectangle(KzVector3D(), side, side, 0.0);
}

TEST(VarnelLoadDistributionArea, IsBornChangedAndEmpty) {
    const VarnelLoadDistributionArea area;
    EXPECT_TRUE(area.getChanged());
    EXPECT_EQ(0, area.getNumber());
    EXPECT_EQ("", area.getName());
    EXPECT_EQ(nullptr, area.getGeo());
    EXPECT_EQ(&area, &area.getData());
}

TEST(VarnelLoadDistributionArea, SettingTheNameMarksAChangeOfItsOwn) {
    VarnelLoadDistributionArea area;
    area.setArea(square(2));
    area.setChanged(false);
    EXPECT_FALSE(area.getChanged());
    area.setNumber(3);
    EXPECT_FALSE(area.getChanged());
    area.setName(area.getName());
    EXPECT_TRUE(area.getChanged());
    EXPECT_FALSE(area.getGeo()->getChanged());
}

TEST(VarnelLoadDistributionArea, IsChangedWithItsOutlineAndPassesTheFlagToIt) {
    VarnelLoadDistributionArea area;
    area.setArea(square(2));
    VarnelPolyObject &outlined = area;
    outlined.setChanged(false);
    EXPECT_FALSE(outlined.getChanged());
    area.getGeo()->setCoor(0, KzVector3D(-1, 0, 0));
    EXPECT_TRUE(outlined.getChanged());
    outlined.setChanged(false);
    outlined.setChanged(true);
    EXPECT_TRUE(area.getGeo()->getChanged());
}

TEST(VarnelLoadDistributionArea, ACopyHasNameAndOutlineOfItsOwn) {
    auto source = std::make_unique<VarnelLoadDistributionArea>();
    source->setNumber(4);
    source->setName("L");
    source->setArea(square(2));
    source->setChanged(false);
    const VarnelLoadDistributionArea copy(*source);
    EXPECT_NE(source->getGeo(), copy.getGeo());
    source.reset();
    EXPECT_EQ("L", copy.getName());
    EXPECT_EQ(0, copy.getNumber());
    EXPECT_TRUE(copy.getChanged());
    EXPECT_DOUBLE_EQ(4.0, copy.getGeo()->getArea());
}

TEST(VarnelLoadDistributionArea, AssigningKeepsTheOutlineThatIsThere) {
    VarnelLoadDistributionArea source, target, bare;
    source.setName("L");
    source.setNumber(4);
    source.setArea(square(2));
    target.setArea(square(3));
    target.setChanged(false);
    EXPECT_EQ(&target, &(target = source));
    EXPECT_EQ("L", target.getName());
    EXPECT_EQ(0, target.getNumber());
    EXPECT_DOUBLE_EQ(9.0, target.getGeo()->getArea());
    EXPECT_FALSE(target.getChanged());
    bare.setData(source);
    EXPECT_DOUBLE_EQ(4.0, bare.getGeo()->getArea());
    bare.setData(VarnelLoadDistributionArea());
    EXPECT_EQ(nullptr, bare.getGeo());
    const VarnelLoadDistributionArea &same = target;
    target = same;
    EXPECT_DOUBLE_EQ(9.0, target.getGeo()->getArea());
}

TEST(VarnelLoadDistributionArea, WidensABoxByItsOutline) {
    VarnelLoadDistributionArea area;
    KzVector3D min(1, 1, 1), max(1, 1, 1);
    area.updateMinMax(&min, &max, KzMatrix44());
    EXPECT_EQ(KzVector3D(1, 1, 1), min);
    area.setArea(square(2));
    area.updateMinMax(&min, &max, varnel::planeAtHeight(3.0));
    EXPECT_EQ(KzVector3D(0, 0, 1), min);
    EXPECT_TRUE(varnel::isNear(KzVector3D(2, 2, 3), max));
}

TEST(VarnelLoadDistributionArea, IsVisitedAsALoadDistributionArea) {
    VarnelLoadDistributionArea area;
    varnel::RecordingObjectVisitor visitor;
    EXPECT_EQ(7, static_cast<VarnelObject &>(area).getVisited(&visitor));
    EXPECT_EQ("load distribution area", visitor.kind);
    EXPECT_EQ(&area, visitor.object);
    EXPECT_EQ(0, area.getVisited(nullptr));
}

TEST(VarnelLoadDistributionArea, KeepsItsSlots) {
    EXPECT_EQ(7, varnel::virtualSlot(&VarnelLoadDistributionArea::getChanged));
    EXPECT_EQ(8, varnel::virtualSlot(&VarnelLoadDistributionArea::setChanged));
}

}  // namespace
