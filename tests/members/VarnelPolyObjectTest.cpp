#include "varnel/members/VarnelPolyObject.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/support/CountedPoint.h"
#include "tests/support/Places.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/geometry/VarnelAreaRectangle.h"
#include "varnel/geometry/VarnelStraight.h"

namespace {

using varnel::CountedPoint;
using varnel::planeAtHeight;

/// The least that an object with an outline must bring.
class Outlined : public VarnelPolyObject {
  public:
    using VarnelPolyObject::copy;

    int getVisited(VarnelObjectVisitor *) override { return 0; }
    void setName(const std::string &name) override { name_ = name; }
    const std::string &getName() const override { return name_; }
    void setChanged(bool changed) override {
        ++flagged;
        VarnelPolyObject::setChanged(changed);
    }

    int flagged = 0;

  private:
    std::string name_;
};

VarnelArea *square(double side) {
    return new VarnelAreaRectangle(KzVector3D(), side, side, 0.0);
}

/// An outline of one line whose points are counted.
VarnelArea *countedArea() {
    auto *area = new VarnelArea;
    area->addLine(new VarnelStraight(new CountedPoint(KzVector3D()), new CountedPoint(KzVector3D(1, 0, 0))));
    return area;
}

TEST(VarnelPolyObject, IsBornWithoutAnOutline) {
    const Outlined object;
    EXPECT_EQ(nullptr, object.getGeo());
    EXPECT_EQ(0, object.getNumber());
}

TEST(VarnelPolyObject, WithoutAnOutlineIsUnchangedAndNowhere) {
    Outlined object;
    object.setChanged(true);
    EXPECT_FALSE(object.getChanged());
    EXPECT_FALSE(object.isInPlane(KzMatrix44()));
    EXPECT_FALSE(object.touchesPlane(KzMatrix44()));
    EXPECT_TRUE(object.isIn(nullptr));
}

TEST(VarnelPolyObject, AsksItsOutlineForChangesAndPlanes) {
    Outlined object;
    object.setArea(square(2));
    EXPECT_TRUE(object.isInPlane(planeAtHeight(0.0)));
    EXPECT_FALSE(object.isInPlane(planeAtHeight(1.0)));
    object.setChanged(false);
    EXPECT_FALSE(object.getChanged());
    object.getGeo()->setCoor(0, KzVector3D(0, 0, 1));
    EXPECT_TRUE(object.getChanged());
    EXPECT_FALSE(object.isInPlane(planeAtHeight(0.0)));
    EXPECT_TRUE(object.touchesPlane(planeAtHeight(0.0)));
    EXPECT_TRUE(object.touchesPlane(planeAtHeight(1.0)));
    EXPECT_FALSE(object.touchesPlane(planeAtHeight(2.0)));
    object.setChanged(false);
    EXPECT_FALSE(object.getGeo()->getChanged());
}

TEST(VarnelPolyObject, SettingAnOutlineMarksAChangeThroughTheVirtualOperation) {
    Outlined object;
    auto *area = square(2);
    area->setChanged(false);
    object.setArea(area);
    EXPECT_EQ(1, object.flagged);
    EXPECT_TRUE(area->getChanged());
}

TEST(VarnelPolyObject, AReplacedOutlineIsTheCallers) {
    Outlined object;
    object.setArea(countedArea());
    const std::unique_ptr<VarnelArea> former(object.getGeo());
    object.setArea(nullptr);
    EXPECT_EQ(nullptr, object.getGeo());
    EXPECT_EQ(2, CountedPoint::alive);
    EXPECT_EQ(1u, former->getNumLines());
}

TEST(VarnelPolyObject, SettingTheSameOutlineKeepsIt) {
    Outlined object;
    object.setArea(countedArea());
    object.setArea(object.getGeo());
    ASSERT_NE(nullptr, object.getGeo());
    EXPECT_EQ(2, CountedPoint::alive);
    EXPECT_EQ(2, object.flagged);
}

TEST(VarnelPolyObject, TakesItsOutlineAlong) {
    auto object = std::make_unique<Outlined>();
    object->setArea(countedArea());
    EXPECT_EQ(2, CountedPoint::alive);
    object.reset();
    EXPECT_EQ(0, CountedPoint::alive);
}

TEST(VarnelPolyObject, ACopyHasAnOutlineOfItsOwnAndTheNumberZero) {
    auto source = std::make_unique<Outlined>();
    source->setNumber(4);
    source->setArea(square(2));
    const Outlined copy(*source);
    EXPECT_NE(source->getGeo(), copy.getGeo());
    source.reset();
    EXPECT_EQ(0, copy.getNumber());
    ASSERT_NE(nullptr, copy.getGeo());
    EXPECT_DOUBLE_EQ(4.0, copy.getGeo()->getArea());
    EXPECT_EQ(nullptr, Outlined(Outlined()).getGeo());
}

TEST(VarnelPolyObject, AnAssignedObjectTakesTheNumberAndSharesTheOutline) {
    auto source = std::make_unique<Outlined>();
    source->setNumber(4);
    source->setArea(square(2));
    Outlined target;
    target.setArea(countedArea());
    target = *source;
    EXPECT_EQ(0, CountedPoint::alive);
    EXPECT_EQ(source->getGeo(), target.getGeo());
    source.reset();
    const Outlined &same = target;
    target = same;
    EXPECT_EQ(4, target.getNumber());
    EXPECT_DOUBLE_EQ(4.0, target.getGeo()->getArea());
}

TEST(VarnelPolyObject, TakingOverNoOutlineFreesTheOwnOne) {
    Outlined target;
    target.setArea(countedArea());
    target.copy(Outlined());
    EXPECT_EQ(nullptr, target.getGeo());
    EXPECT_EQ(0, CountedPoint::alive);
    EXPECT_EQ(2, target.flagged);
}

TEST(VarnelPolyObject, TakingOverAnOutlineCopiesItWhereThereIsNone) {
    Outlined source, target;
    source.setNumber(3);
    source.setArea(square(2));
    target.copy(source);
    EXPECT_NE(source.getGeo(), target.getGeo());
    EXPECT_DOUBLE_EQ(4.0, target.getGeo()->getArea());
    EXPECT_EQ(1, target.flagged);
    EXPECT_EQ(0, target.getNumber());
}

TEST(VarnelPolyObject, TakingOverAnOutlineKeepsTheOneThatIsThere) {
    Outlined source, target;
    source.setArea(square(2));
    target.setArea(square(3));
    target.setChanged(false);
    const int flagged = target.flagged;
    target.copy(source);
    EXPECT_DOUBLE_EQ(9.0, target.getGeo()->getArea());
    EXPECT_FALSE(target.getChanged());
    EXPECT_EQ(flagged, target.flagged);
    target.copy(target);
    EXPECT_DOUBLE_EQ(9.0, target.getGeo()->getArea());
}

TEST(VarnelPolyObject, AppendsItsVirtualOperationsToThoseOfAnObject) {
    EXPECT_EQ(7, varnel::virtualSlot(&VarnelPolyObject::getChanged));
    EXPECT_EQ(8, varnel::virtualSlot(&VarnelPolyObject::setChanged));
}

}  // namespace
