#include "varnel/geometry/VarnelPoint.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

#include "tests/support/Places.h"
#include "tests/support/RecordingObjectVisitor.h"
#include "tests/support/VirtualSlot.h"
#include "varnel/geometry/VarnelPlatePosition.h"

namespace {

using varnel::planeAtHeight;
using varnel::virtualSlot;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(VarnelPoint, KeepsTheOrderOfItsVirtualOperations) {
    EXPECT_EQ(2, virtualSlot(&VarnelPoint::updateMinMax));
    EXPECT_EQ(3, virtualSlot(&VarnelPoint::getVisited));
    EXPECT_EQ(4, virtualSlot(&VarnelPoint::isInPlane));
    EXPECT_EQ(5, virtualSlot(&VarnelPoint::touchesPlane));
    EXPECT_EQ(6, virtualSlot(&VarnelPoint::isIn));
    EXPECT_EQ(7, virtualSlot(&VarnelPoint::getChanged));
    EXPECT_EQ(8, virtualSlot(&VarnelPoint::setChanged));
    EXPECT_EQ(-1, virtualSlot(&VarnelPoint::setCoor));
    EXPECT_EQ(-1, virtualSlot(&VarnelPoint::setNumber));
    EXPECT_EQ(-1, virtualSlot(&VarnelPoint::clone));
}

TEST(VarnelPoint, IsBornChangedWithNumberZero) {
    const VarnelPoint point(KzVector3D(1.0, 2.0, 3.0));
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), point.getCoor());
    EXPECT_EQ(0, point.getNumber());
    EXPECT_TRUE(point.getChanged());
}

TEST(VarnelPoint, TakesANumberThoughItIsConstAndMarksNoChange) {
    VarnelPoint point{KzVector3D()};
    point.setChanged(false);
    const VarnelPoint &seen = point;
    seen.setNumber(-7);
    EXPECT_EQ(-7, point.getNumber());
    EXPECT_FALSE(point.getChanged());
}

class ListeningPoint : public VarnelPoint {
  public:
    ListeningPoint() : VarnelPoint(KzVector3D()) {}
    bool isInPlane(const KzMatrix44 &) const override { return inPlane; }
    void setChanged(bool value) override {
        heard += value ? 1 : 0;
        place = getCoor();
        VarnelPoint::setChanged(value);
    }

    int heard = 0;
    bool inPlane = false;
    KzVector3D place;
};

TEST(VarnelPoint, MovingItStoresThePlaceAndThenCallsTheVirtualFlagSetter) {
    ListeningPoint point;
    point.setChanged(false);
    point.setCoor(KzVector3D(4.0, 5.0, 6.0));
    EXPECT_EQ(1, point.heard);
    EXPECT_EQ(KzVector3D(4.0, 5.0, 6.0), point.place);
    EXPECT_TRUE(point.getChanged());
}

TEST(VarnelPoint, MovingItToWhereItIsMarksAChangeToo) {
    VarnelPoint point(KzVector3D(1.0, 0.0, 0.0));
    point.setChanged(false);
    point.setCoor(point.getCoor());
    EXPECT_TRUE(point.getChanged());
}

TEST(VarnelPoint, ACopyHasThePlaceButIsChangedAndHasNoNumber) {
    VarnelPoint source(KzVector3D(1.0, 2.0, 3.0));
    source.setNumber(9);
    source.setChanged(false);
    const VarnelPoint copy(source);
    const std::unique_ptr<VarnelPoint> clone(source.clone());
    for (const VarnelPoint *made : {&copy, static_cast<const VarnelPoint *>(clone.get())}) {
        EXPECT_EQ(source.getCoor(), made->getCoor());
        EXPECT_EQ(0, made->getNumber());
        EXPECT_TRUE(made->getChanged());
        EXPECT_EQ(0u, made->owners());
    }
}

TEST(VarnelPoint, AssignmentTakesThePlaceAloneAndKeepsNumberAndFlag) {
    VarnelPoint source(KzVector3D(1.0, 2.0, 3.0));
    source.setNumber(9);
    VarnelPoint target{KzVector3D()};
    target.setNumber(4);
    target.setChanged(false);
    target = source;
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), target.getCoor());
    EXPECT_EQ(4, target.getNumber());
    EXPECT_FALSE(target.getChanged());
    const VarnelPoint &itself = target;
    target = itself;
    EXPECT_EQ(KzVector3D(1.0, 2.0, 3.0), target.getCoor());
}

TEST(VarnelPoint, EqualityIsThatOfTheCoordinatesAlone) {
    VarnelPoint a(KzVector3D(1.0, 0.0, 3.0));
    VarnelPoint b(KzVector3D(1.0, -0.0, 3.0));
    b.setNumber(3);
    b.setChanged(false);
    EXPECT_EQ(1, a == b);
    EXPECT_EQ(0, a != b);
    b.setCoor(KzVector3D(1.0 + 1e-7, 0.0, 3.0));
    EXPECT_EQ(0, a == b);
    EXPECT_EQ(1, a != b);
}

TEST(VarnelPoint, APointWithoutAPlaceEqualsOnlyItself) {
    const VarnelPoint a(KzVector3D(nan, 0.0, 0.0));
    const VarnelPoint b(a);
    const VarnelPoint &itself = a;
    EXPECT_EQ(1, a == itself);
    EXPECT_EQ(0, a != itself);
    EXPECT_EQ(0, a == b);
    EXPECT_EQ(1, a != b);
}

TEST(VarnelPoint, LiesInAPlaneStrictlyBelowOneHundredth) {
    const struct {
        double height;
        bool inside;
    } rows[] = {{0.0, true},    {0.00999999, true},  {0.01, false},        {-0.00999999, true},
                {-0.01, false}, {0.01000001, false}, {-0.01000001, false}, {1e300, false}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.height);
        const VarnelPoint point(KzVector3D(7.0, -3.0, row.height));
        EXPECT_EQ(row.inside, point.isInPlane(KzMatrix44::getId()));
        EXPECT_EQ(row.inside, point.touchesPlane(KzMatrix44::getId()));
    }
    EXPECT_TRUE(VarnelPoint(KzVector3D(0.0, 0.0, 5.0)).isInPlane(planeAtHeight(5.0)));
    EXPECT_FALSE(VarnelPoint(KzVector3D(nan, nan, nan)).isInPlane(KzMatrix44::getId()));
}

TEST(VarnelPoint, TouchesAPlaneWhenItsVirtualCheckSaysSo) {
    ListeningPoint point;
    EXPECT_FALSE(point.touchesPlane(KzMatrix44::getId()));
    point.inPlane = true;
    EXPECT_TRUE(point.touchesPlane(planeAtHeight(1000.0)));
}

TEST(VarnelPoint, WidensTheGlobalBoxFromItsLocalCoordinates) {
    KzMatrix44 turned = planeAtHeight(10.0);
    turned.setVector(0, KzVector3D(0.0, 1.0, 0.0));
    turned.setVector(1, KzVector3D(-1.0, 0.0, 0.0));
    KzVector3D min(0.0, 0.0, 0.0);
    KzVector3D max(0.0, 0.0, 0.0);
    VarnelPoint(KzVector3D(2.0, 3.0, 1.0)).updateMinMax(&min, &max, turned);
    EXPECT_TRUE(varnel::isNear(KzVector3D(-3.0, 0.0, 0.0), min));
    EXPECT_TRUE(varnel::isNear(KzVector3D(0.0, 2.0, 11.0), max));
}

TEST(VarnelPoint, IgnoresABoxWithAMissingCorner) {
    const VarnelPoint point(KzVector3D(2.0, 3.0, 1.0));
    KzVector3D corner;
    point.updateMinMax(&corner, nullptr, KzMatrix44::getId());
    point.updateMinMax(nullptr, &corner, KzMatrix44::getId());
    point.updateMinMax(nullptr, nullptr, KzMatrix44::getId());
    EXPECT_EQ(KzVector3D(), corner);
}

TEST(VarnelPoint, VisitsAsAPointAlsoWhenItIsAPlatePosition) {
    VarnelPoint point{KzVector3D()};
    VarnelPlatePosition position(1.0, 2.0, 3.0);
    for (VarnelPoint *visited : {&point, static_cast<VarnelPoint *>(&position)}) {
        varnel::RecordingObjectVisitor visitor;
        EXPECT_EQ(7, visited->getVisited(&visitor));
        EXPECT_EQ("point", visitor.kind);
        EXPECT_EQ(visited, visitor.object);
    }
    EXPECT_EQ(0, point.getVisited(nullptr));
}

TEST(VarnelPoint, TakesPartInEveryLoadCase) {
    EXPECT_TRUE(VarnelPoint(KzVector3D()).isIn(nullptr));
}

TEST(VarnelPoint, TellsItsWatchOfEveryMoveAndOfNothingElse) {
    VarnelPoint point(KzVector3D(1.0, 0.0, 0.0));
    varnel::PointWatch watch;
    ASSERT_TRUE(watch.watch(point));
    point.setNumber(1);
    point.setChanged(false);
    point.setCoor(KzVector3D(1.0, 0.0, 0.0));
    EXPECT_FALSE(watch.hasMoved());
    point.setCoor(KzVector3D(2.0, 0.0, 0.0));
    EXPECT_TRUE(watch.hasMoved());
    watch.reset();
    point = VarnelPoint(KzVector3D(3.0, 0.0, 0.0));
    EXPECT_TRUE(watch.hasMoved());
    watch.reset();
    VarnelPoint(point).setCoor(KzVector3D());
    EXPECT_FALSE(watch.hasMoved());
    watch.unwatch(point);
    point.setCoor(KzVector3D());
    EXPECT_FALSE(watch.hasMoved());
}

}  // namespace
